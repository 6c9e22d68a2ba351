#include "templates/template_editor_fixture.h"

#include "language/base_format.h"
#include "templates/template_edit.h"

namespace tarvex {
namespace {

const std::string folder = "c:\\tarvex\\Templates\\";

TEST_F(TemplateEditorTest, ColoursAreAppliedByTheRulesOfTheLanguage)
{
    type("BTN S1 a\r\n");
    window.mnuColourApply.Click();
    EXPECT_EQ(pane.formatAt(0).colour, t.settings().BTNColour);
    EXPECT_EQ(pane.formatAt(7).colour, 0);
    EXPECT_EQ(window.TemplateChanged, 1);
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "BTN S1 a\r\n");
    EXPECT_EQ(pane.formatAt(0).colour, 0);
}

TEST_F(TemplateEditorTest, AColourByHandIsNoChangeOfTheFile)
{
    type("red");
    window.TemplateChanged = 0;
    pane.setSelStart(0);
    pane.setSelLength(3);
    window.ColourLabel1_Click();
    EXPECT_EQ(t.editor().ColourSelector.target, ColourTarget::Template);
    t.editor().ColourSelector.Command1[1].Click();
    EXPECT_EQ(pane.formatAt(0).colour, t.settings().RemStatements);
    EXPECT_EQ(window.ColourLabel1, t.settings().RemStatements);
    EXPECT_EQ(window.TemplateChanged, 0);
    window.mnuPopBlack.Click();
    EXPECT_EQ(pane.formatAt(0).colour, 0);
}

TEST_F(TemplateEditorTest, LayoutRefreshKeepsColoursAndTheSavedState)
{
    type("red");
    pane.setSelStart(0);
    pane.setSelLength(3);
    pane.setSelColor(255);
    window.TemplateChanged = 0;
    t.settings().TextFontName = "Courier New";
    window.mnuViewrefreshLayout.Click();
    EXPECT_EQ(pane.formatAt(0).colour, 255);
    EXPECT_EQ(pane.formatAt(0).fontName, "Courier New");
    EXPECT_EQ(pane.SelLength(), 3);
    EXPECT_EQ(window.TemplateChanged, 0);
    EXPECT_EQ(t.status(), "Layout refreshed ... (I wish I was!)");
}

TEST_F(TemplateEditorTest, UndoGoesBackWordByWordAndRedoForward)
{
    t.pressKeys(pane, "one two");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "one");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "");
    EXPECT_FALSE(window.mnuUndo.Enabled);
    window.mnuRedo.Click();
    window.mnuRedo.Click();
    EXPECT_EQ(text(), "one two");
    EXPECT_FALSE(window.mnuRedo.Enabled);
}

TEST_F(TemplateEditorTest, RepeatedBlanksAreOneUndoLevelAndLaterOnesTheirOwn)
{
    t.pressKeys(pane, "a  b c\r\rd");
    const auto undone = [this] {
        window.mnuUndo.Click();
        return text();
    };
    EXPECT_EQ(undone(), "a  b c");
    EXPECT_EQ(undone(), "a  b");
    EXPECT_EQ(undone(), "a");
    EXPECT_EQ(undone(), "");
    EXPECT_EQ(undone(), "") << "there is no more";
}

TEST_F(TemplateEditorTest, BackspacesRunningAreOneUndoLevel)
{
    t.pressKeys(pane, "abcd\b\bx\b");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "abx");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "abcd");
}

TEST_F(TemplateEditorTest, WhatWasUndoneStaysReachableBelowANewLevel)
{
    t.pressKeys(pane, "one two");
    window.mnuUndo.Click();
    t.pressKeys(pane, "X");
    EXPECT_EQ(text().size(), 4U);
    EXPECT_FALSE(window.mnuRedo.Enabled);
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "one two") << "the newest level before";
}

TEST_F(TemplateEditorTest, AsManyUndoLevelsAreKeptAsAreSet)
{
    t.settings().UndoMax = 2;
    t.pressKeys(pane, "a b c d e");
    EXPECT_EQ(window.Undo.Levels.size(), 3U);
    window.mnuUndo.Click();
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "a b c");
    EXPECT_FALSE(window.mnuUndo.Enabled);
}

TEST_F(TemplateEditorTest, AnUndoIsAChangeAndPutsTheCaretBack)
{
    t.pressKeys(pane, "one two");
    window.TemplateChanged = 0;
    pane.setSelStart(1);
    window.mnuUndo.Click();
    EXPECT_EQ(window.TemplateChanged, 1);
    EXPECT_EQ(pane.SelStart(), 3);
}

TEST_F(TemplateEditorTest, CutAndPasteAreUndoLevelsOfTheirOwn)
{
    t.pressKeys(pane, "one");
    window.mnuSelectAll.Click();
    window.mnuCut.Click();
    EXPECT_EQ(text(), "");
    EXPECT_EQ(pane.SelIndent(), paragraphIndent) << "also of the empty text";
    EXPECT_EQ(t.clipboard.content.text, "one");
    window.mnuPaste.Click();
    window.mnuPaste.Click();
    EXPECT_EQ(text(), "oneone");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "one");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "one");
}

TEST_F(TemplateEditorTest, WithoutASelectionCutAndCopyLeaveTheClipboard)
{
    t.clipboard.content.text = "before";
    t.pressKeys(pane, "one");
    const std::size_t levels = window.Undo.Levels.size();
    window.mnuCopy.Click();
    window.mnuCut.Click();
    EXPECT_EQ(t.clipboard.content.text, "before");
    t.pressKeys(pane, "s");
    EXPECT_EQ(window.Undo.Levels.size(), levels) << "a cut of nothing opens no level";
}

TEST_F(TemplateEditorTest, FailuresOfTheEditCommandsAreReportedUnderTheirProcedures)
{
    const auto broken = [](const auto&...) { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); };
    const auto reported = [this] { return t.program().shared.errors.ErrorProcedure; };
    type("one");
    window.mnuSelectAll.Click();
    t.clipboard.content.text = "x";
    Connection listening = pane.edited.connect([&](const Pane::Edit&) { broken(); });
    window.mnuCut.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuCut_Click");
    window.mnuPaste.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuPaste_Click");
    listening.disconnect();
    listening = window.Find.Visible.changed.connect([&] { broken(); });
    window.mnuFind.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuFind_Click");
    listening.disconnect();
    window.Find.What.Text = "one";
    type("one");
    listening = pane.selectionChanged.connect([&] { broken(); });
    window.mnuFindNext.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuFindNext_Click");
    window.mnuFindPrevious.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuFindPrevious_Click");
}

TEST_F(TemplateEditorTest, UndoDoesNotReachIntoTheFileBefore)
{
    type("mine");
    window.TemplateChanged = 0;
    t.files.addFile(folder + "a.txt", "other");
    open(folder + "a.txt");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "other");
}

TEST_F(TemplateEditorTest, ANegativeNumberOfUndoLevelsIsNone)
{
    t.settings().UndoMax = -5; // the settings file may say anything
    type("a");
    type("b");
    EXPECT_FALSE(window.mnuUndo.Enabled);
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "ab");
}

TEST_F(TemplateEditorTest, TheClipboardCarriesColours)
{
    type("red");
    pane.setSelStart(0);
    pane.setSelLength(3);
    pane.setSelColor(255);
    window.mnuCut.Click();
    EXPECT_EQ(text(), "");
    EXPECT_EQ(t.clipboard.content.text, "red");
    window.mnuPaste.Click();
    EXPECT_EQ(text(), "red");
    EXPECT_EQ(pane.formatAt(0).colour, 255);
}

TEST_F(TemplateEditorTest, AParagraphKeepsItsIndentWhileItIsEditedAndATextBegunAnewHasTheUsualOne)
{
    type("far");
    pane.setSelIndent(600);
    type("x");
    EXPECT_EQ(pane.formatAt(0).indent, 600);
    pane.userEdit(0, static_cast<std::int64_t>(pane.TextLength()), "");
    type("new");
    EXPECT_EQ(pane.formatAt(0).indent, paragraphIndent);
}

TEST_F(TemplateEditorTest, LayoutAndIndentAreRefreshedInTheWholeTextAndTheCaretStays)
{
    type("one\r\ntwo");
    pane.setSelIndent(600);
    pane.setSelStart(6);
    t.settings().TextFontName = "Courier New";
    t.settings().TextFontBold = 1;
    window.mnuViewrefreshLayout.Click();
    for (const std::size_t at : {std::size_t{0}, std::size_t{6}}) {
        EXPECT_EQ(pane.formatAt(at).fontName, "Courier New") << at;
        EXPECT_TRUE(pane.formatAt(at).bold) << at;
        EXPECT_EQ(pane.formatAt(at).indent, paragraphIndent) << at;
    }
    EXPECT_EQ(pane.SelStart(), 6);
    t.settings().TextFontName = "Arial";
    pane.setSelIndent(600);
    t.editor().status("");
    window.mnuRefreshIndent.Click();
    EXPECT_EQ(pane.formatAt(6).indent, paragraphIndent);
    EXPECT_EQ(pane.formatAt(0).fontName, "Courier New") << "the indent alone";
    EXPECT_EQ(pane.SelStart(), 6);
    EXPECT_EQ(t.status(), "Layout refreshed ... (I wish I was!)");
}

TEST_F(TemplateEditorTest, ChangesThatNoKeyAnnouncesShareTheirLevelUntilAnUndoOrAnotherFile)
{
    type("a");
    type("b");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "");
    window.mnuRedo.Click();
    type("c");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "ab") << "what was redone is a level";
    t.files.addFile(folder + "other.txt", "file");
    t.dialogues.answers = {Answer::No};
    open(folder + "other.txt");
    EXPECT_FALSE(window.mnuUndo.Enabled || window.mnuRedo.Enabled);
    EXPECT_EQ(window.TemplateChanged, 0);
    type("x");
    EXPECT_TRUE(window.mnuUndo.Enabled);
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "file");
}

TEST_F(TemplateEditorTest, ColoursByHandAreLevelsOfTheirOwn)
{
    type("one");
    window.mnuSelectAll.Click();
    pane.setSelColor(255);
    t.pressKeys(pane, "two");
    window.mnuSelectAll.Click();
    int focused = 0;
    const Connection focus = pane.focusWanted.connect([&focused] { ++focused; });
    GetCustomColour(window, 0x123456);
    EXPECT_EQ(focused, 1);
    pane.setSelLength(0);
    pane.userEdit(0, 0, "x");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "two");
    UpdateLabelColours(window);
    EXPECT_EQ(window.ColourLabel1, pane.SelColor());
}

TEST_F(TemplateEditorTest, ColouringSaysWhatItDidAndAnEmptyTextIsNoChange)
{
    window.mnuColourApply.Click();
    EXPECT_EQ(window.TemplateChanged, 0);
    EXPECT_FALSE(window.mnuUndo.Enabled);
    type("BTN S1 a\r\n");
    const std::string editing = t.status();
    window.mnuColourApply.Click();
    EXPECT_NE(t.status(), editing);
    EXPECT_EQ(t.status(), t.program().mum.StatusBar.Panels(panel::progress).Text.get());
}

TEST_F(TemplateEditorTest, ThePopUpOffersWhatSelectionAndClipboardAllow)
{
    type("abc");
    popUpTemplateMenu(window, false);
    EXPECT_EQ(t.dialogues.popUps.back(), "mnuPopShow");
    EXPECT_FALSE(window.mnuCut.Enabled);
    EXPECT_FALSE(window.mnuCopy.Enabled);
    EXPECT_FALSE(window.mnuPaste.Enabled);
    window.mnuSelectAll.Click();
    t.clipboard.content.text = "x";
    popUpTemplateMenu(window, true);
    EXPECT_EQ(t.dialogues.popUpsAtCaret, std::vector<std::string>{"mnuPopShow"});
    EXPECT_EQ(t.dialogues.popUps.size(), 1U);
    EXPECT_TRUE(window.mnuCut.Enabled);
    EXPECT_TRUE(window.mnuCopy.Enabled);
    EXPECT_TRUE(window.mnuPaste.Enabled);
}

TEST_F(TemplateEditorTest, OneSelectedLetterCanBeCutAndOneLevelRedone)
{
    t.pressKeys(pane, "a b");
    pane.setSelStart(0);
    pane.setSelLength(1);
    popUpTemplateMenu(window, false);
    EXPECT_TRUE(window.mnuCut.Enabled && window.mnuCopy.Enabled);
    window.mnuUndo.Click();
    EXPECT_TRUE(window.mnuRedo.Enabled);
    window.mnuRedo.Click();
    EXPECT_FALSE(window.mnuRedo.Enabled);
    EXPECT_EQ(text(), "a b");
}

TEST_F(TemplateEditorTest, TextToBlackAndTheRulesColoursAreLevelsOfTheirOwn)
{
    const std::string line = "BTN S1 a\r\n";
    type(line);
    window.mnuColourApply.Click();
    const Colour coloured = pane.formatAt(0).colour;
    EXPECT_NE(coloured, 0);
    window.mnuUndo.Click();
    EXPECT_EQ(text(), line);
    EXPECT_EQ(pane.formatAt(0).colour, 0);
    window.mnuRedo.Click();
    window.mnuSelectAll.Click();
    window.mnuTextToBlack.Click();
    EXPECT_EQ(pane.formatAt(0).colour, 0);
    window.mnuUndo.Click();
    EXPECT_EQ(text(), line);
    EXPECT_EQ(pane.formatAt(0).colour, coloured);
}

} // namespace
} // namespace tarvex
