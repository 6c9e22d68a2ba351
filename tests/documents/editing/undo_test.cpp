#include "documents/editing/undo.h"

#include "documents/editing/line_highlight.h"
#include "documents/find/replace_text.h"
#include "documents/window/colour_selector.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct UndoTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Pane& pane = editor.JoystickText;
    UndoHistory& history = editor.joystick.Undo;

    UndoTest() { t.settings().HighlightLineOnUndo = 0; }
    void press(const std::string& keys) { t.pressKeys(pane, keys); }
    std::string caption(const MenuItem& item) { return item.Caption; }
};

TEST_F(UndoTest, AWordAndABlankOnANewDocumentOpenTwoLevels)
{
    press("abc");
    EXPECT_EQ(history.Levels.size(), 2U);
    press(" ");
    EXPECT_EQ(history.Levels.size(), 3U);
    EXPECT_EQ(history.Levels[0].Text.text(), "abc ");
    EXPECT_EQ(history.Levels[1].Text.text(), "abc");
    EXPECT_EQ(history.Levels[2].Text.text(), "");
}

TEST_F(UndoTest, TwelveWordsWithUndoMaxAtTenLeaveElevenLevels)
{
    t.settings().UndoMax = 10;
    for (int word = 0; word < 12; ++word) press("word ");
    EXPECT_EQ(history.Levels.size(), 11U);
    EXPECT_NE(history.Levels.back().Text.text(), "") << "the oldest fell off";
}

TEST_F(UndoTest, ABlankInAnEmptyPaneOpensNoNewLevel)
{
    press(" ");
    EXPECT_EQ(history.Levels.size(), 1U);
    EXPECT_EQ(history.Levels[0].Text.text(), " ");
}

TEST_F(UndoTest, ARunOfBlanksOrReturnsIsOneLevel)
{
    press("ab");
    press("   ");
    EXPECT_EQ(history.Levels.size(), 3U);
    press("\r\r\r");
    EXPECT_EQ(history.Levels.size(), 4U);
    press(" ");
    EXPECT_EQ(history.Levels.size(), 5U);
}

TEST_F(UndoTest, ABackspaceDoesNotEndARunOfBlanksOrReturns)
{
    press("ab \b ");
    EXPECT_EQ(history.Levels.size(), 4U) << "the last blank belongs to the first";
    press("\r\b\r");
    EXPECT_EQ(history.Levels.size(), 6U);
    press("c ");
    EXPECT_EQ(history.Levels.size(), 7U) << "another key ends it";
}

TEST_F(UndoTest, EachBackspaceOpensALevel)
{
    press("abc");
    press("\b\b");
    EXPECT_EQ(history.Levels.size(), 4U);
    EXPECT_EQ(pane.Text(), "a");
}

TEST_F(UndoTest, AChangeWithoutAKeyOpensALevelOfItsOwn)
{
    press("abc");
    pane.setSelText("pasted");
    EXPECT_EQ(history.Levels.size(), 3U);
}

TEST_F(UndoTest, UndoAndRedoBringTextAndCaretBack)
{
    press("one ");
    press("two");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "one");
    EXPECT_EQ(pane.SelStart(), 3);
    EXPECT_EQ(editor.joystick.Caret, 3);
    EXPECT_EQ(history.Position, 2U);
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(pane.Text(), "one two");
    EXPECT_EQ(pane.SelStart(), 7);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST_F(UndoTest, UndoRestoresColoursAsWellAsText)
{
    press("Rem x");
    pane.setSelStart(0);
    pane.setSelLength(3);
    pane.setSelColor(8421504);
    pane.setSelStart(5);
    pane.setSelText(" more");
    pane.setSelStart(0);
    pane.setSelLength(10);
    pane.setSelColor(0);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.formatAt(0).colour, 8421504);
    EXPECT_EQ(pane.Text(), "Rem x more");
}

TEST_F(UndoTest, WhatWasUndoneCanStillBeReachedAfterANewWord)
{
    press("one ");
    press("two ");
    t.menus().mnuEditUndo.Click();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "one");
    press("new");
    EXPECT_EQ(history.Position, 1U);
    std::vector<std::string> reached;
    while (t.menus().mnuEditUndo.Enabled) {
        t.menus().mnuEditUndo.Click();
        reached.push_back(pane.Text());
    }
    EXPECT_NE(std::find(reached.begin(), reached.end(), "one two "), reached.end());
}

TEST_F(UndoTest, ABlankTypedAfterUndoingBackToAnEmptyPaneKeepsTheNewestLevel)
{
    pane.setSelText("my long work");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "");
    press(" ");
    EXPECT_EQ(history.Position, 1U);
    EXPECT_EQ(history.Levels[1].Text.text(), "my long work");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "my long work");
}

TEST_F(UndoTest, WhatIsUndoneAfterASaveIsUnsavedText)
{
    t.files.addFile("c:\\a\\x.b50", "A");
    t.files.addFile("c:\\a\\x.m50", "");
    t.openBoth("c:\\a\\x.b50");
    press("new");
    t.menus().mnuFileSave.Click();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "A");
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    EXPECT_EQ(t.program().mum.StatusBar.Panels(2).Picture.get(), 3);
}

TEST_F(UndoTest, UndoOrRedoToTheSavedTextIsSavedAgain)
{
    t.files.addFile("c:\\a\\x.b50", "A");
    t.files.addFile("c:\\a\\x.m50", "");
    t.openBoth("c:\\a\\x.b50");
    const auto state = [&] { return t.program().mum.StatusBar.Panels(2).Picture.get() - 2; };
    press("x");
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "A");
    EXPECT_EQ(editor.joystick.Changed, changed::saved);
    EXPECT_EQ(state(), changed::saved);
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    t.menus().mnuFileSave.Click();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(editor.joystick.Changed, changed::modified) << "the file holds the other text now";
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(editor.joystick.Changed, changed::saved);
    EXPECT_EQ(state(), changed::saved);
}

TEST_F(UndoTest, UndoToTheSavedTextLeavesNothingToRecover)
{
    t.files.addFile("c:\\a\\x.b50", "A");
    t.files.addFile("c:\\a\\x.m50", "");
    t.openBoth("c:\\a\\x.b50");
    press("x");
    EXPECT_EQ(t.files.list("c:\\tarvex\\Recover").size(), 1U);
    t.menus().mnuEditUndo.Click();
    EXPECT_TRUE(t.files.list("c:\\tarvex\\Recover").empty());
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(t.files.list("c:\\tarvex\\Recover").size(), 1U);
}

TEST_F(UndoTest, ANewDocumentUndoneToNothingStaysModified)
{
    press("x");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "");
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
}

/// A command, and what it leaves of "one two" with "two" selected and "cut" in the clipboard.
struct WritingCommand {
    const char* name;
    void (*run)(TestProgram&);
    const char* text;
};

class AfterAKeyThatChangedNothing : public UndoTest, public testing::WithParamInterface<WritingCommand> {};

TEST_P(AfterAKeyThatChangedNothing, TheCommandStillOpensALevel)
{
    press("one two");
    pane.setSelStart(4);
    pane.setSelLength(3);
    t.clipboard.content = {.text = "cut", .rtf = {}};
    t.program().operations.UpdateCCPButtons();
    pane.KeyPress('x'); // as in a pane that refuses the key
    const std::size_t levels = history.Levels.size();
    GetParam().run(t);
    EXPECT_EQ(pane.Text(), GetParam().text);
    EXPECT_EQ(history.Levels.size(), levels + 1);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "one two");
    EXPECT_EQ(pane.formatAt(4).colour, 0);
}

INSTANTIATE_TEST_SUITE_P(
    UndoTest, AfterAKeyThatChangedNothing,
    testing::Values(
        WritingCommand{"Cut", [](TestProgram& program) { program.menus().mnuEditCut.Click(); }, "one "},
        WritingCommand{"Paste", [](TestProgram& program) { program.menus().mnuEditPaste.Click(); }, "one cut"},
        WritingCommand{"Delete", [](TestProgram& program) { program.menus().mnuEditDelete.Click(); }, "one "},
        WritingCommand{"DeleteKey",
                       [](TestProgram& program) {
                           program.editor().JoystickText.EditComing();
                           program.editor().JoystickText.userEdit(4, 3, "");
                       },
                       "one "},
        WritingCommand{"Replace",
                       [](TestProgram& program) {
                           program.program().findAndReplace.ComboTextReplaceWith.Text = "2";
                           ReplaceText(program.program().findAndReplace);
                       },
                       "one 2"},
        WritingCommand{"ColourByHand",
                       [](TestProgram& program) {
                           showColourSelector(program.editor(), ColourTarget::Pane);
                           ColourSelector_Command1_Click(program.editor(), 1);
                       },
                       "one two"}),
    [](const auto& command) { return std::string(command.param.name); });

TEST_F(UndoTest, AProtectedMacroFileIsNotUndone)
{
    editor.TabStrip1.Select(2);
    t.pressKeys(editor.MacroText, "m");
    t.menus().mnuPreferencesProtectMacroFile.Click();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(editor.MacroText.Text(), "m");
}

TEST_F(UndoTest, CaptionsTipsAndButtonsShowHowFarItGoes)
{
    press("a b");
    EXPECT_EQ(caption(t.menus().mnuEditUndo), "&Undo (2)");
    EXPECT_EQ(t.program().mum.Toolbar1.Buttons(11).ToolTipText.get(), "Undo (2)");
    EXPECT_TRUE(t.program().mum.Toolbar1.Buttons(11).Enabled);
    EXPECT_FALSE(t.menus().mnuEditRedo.Enabled);
    t.menus().mnuEditUndo.Click();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(caption(t.menus().mnuEditUndo), "&Undo");
    EXPECT_FALSE(t.menus().mnuEditUndo.Enabled);
    EXPECT_EQ(caption(t.menus().mnuEditRedo), "&Redo (2)");
    EXPECT_EQ(t.program().mum.Toolbar1.Buttons(12).ToolTipText.get(), "Redo (2)");
}

TEST_F(UndoTest, AtBothEndsNothingHappens)
{
    press("a");
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(pane.Text(), "a");
    t.menus().mnuEditUndo.Click();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "");
    EXPECT_EQ(history.Position, 2U);
}

TEST_F(UndoTest, EachDocumentHasItsOwnHistory)
{
    press("j");
    EXPECT_TRUE(t.menus().mnuEditUndo.Enabled);
    editor.TabStrip1.Select(2);
    EXPECT_FALSE(t.menus().mnuEditUndo.Enabled);
    t.pressKeys(editor.MacroText, "m");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(editor.MacroText.Text(), "");
    EXPECT_EQ(pane.Text(), "j");
}

TEST_F(UndoTest, OpeningAFileStartsItsHistoryAnew)
{
    press("old");
    t.files.addFile("c:\\a\\x.b50", "BTN S1 x");
    t.files.addFile("c:\\a\\x.m50", "");
    t.dialogues.answers = {Answer::No};
    t.openBoth("c:\\a\\x.b50");
    EXPECT_FALSE(t.menus().mnuEditUndo.Enabled);
    press("n");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "BTN S1 x");
}

TEST_F(UndoTest, DeleteUndosFromMemoryEmptiesBoth)
{
    press("j");
    t.pressKeys(editor.MacroText, "m");
    DeleteUndosFromMemory(editor);
    EXPECT_EQ(history.Levels.size(), 1U);
    EXPECT_EQ(editor.macro.Undo.Levels.size(), 1U);
    EXPECT_TRUE(history.Levels[0].Text.empty());
    EXPECT_FALSE(t.menus().mnuEditUndo.Enabled);
}

// ---- line highlight ----

TEST_F(UndoTest, UndoHighlightsTheLineTouchedWhenTheSettingAsksForIt)
{
    pane.setSelText("first\r\nsecond");
    pane.setSelText(" more");
    t.settings().HighlightLineOnUndo = 1;
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.SelText(), "second");
    EXPECT_TRUE(editor.TimerBlinkLine.Enabled);
}

TEST_F(UndoTest, TheLineFlashesOffOnOffAndEndsWithACaretAtItsBeginning)
{
    pane.setSelText("first\r\nsecond\r\nthird");
    pane.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    EXPECT_EQ(pane.SelText(), "second");
    EXPECT_EQ(t.status(3), "Line no: 2");
    editor.TimerBlinkLine.Tick();
    EXPECT_EQ(pane.SelText(), "");
    editor.TimerBlinkLine.Tick();
    EXPECT_EQ(pane.SelText(), "second");
    editor.TimerBlinkLine.Tick();
    EXPECT_EQ(pane.SelText(), "");
    EXPECT_EQ(pane.SelStart(), 7);
    EXPECT_TRUE(editor.TimerBlinkLine.Enabled);
    editor.TimerBlinkLine.Tick();
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
}

TEST_F(UndoTest, AnEditEndsTheFlashing)
{
    pane.setSelText("line");
    t.menus().mnuViewHighlightLine.Click();
    t.typeJoystick("x");
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
}

TEST_F(UndoTest, AKeyDuringTheFlashingDoesNotWriteOverTheLine)
{
    pane.setSelText("first\r\nsecond");
    t.menus().mnuViewHighlightLine.Click();
    EXPECT_EQ(pane.SelText(), "second");
    press("x");
    EXPECT_EQ(pane.Text(), "first\r\nxsecond");
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
}

TEST_F(UndoTest, ClipboardCommandsDuringTheFlashingLeaveTheLineAlone)
{
    t.clipboard.content.text = "x";
    for (MenuItem* item : {&t.menus().mnuEditCut, &t.menus().mnuEditDelete, &t.menus().mnuEditPaste}) {
        pane.setText("first\r\nsecond");
        pane.setSelStart(9);
        t.menus().mnuViewHighlightLine.Click();
        EXPECT_EQ(pane.SelText(), "second");
        item->Click();
        EXPECT_EQ(pane.Text(), item == &t.menus().mnuEditPaste ? "first\r\nxsecond" : "first\r\nsecond") << item->Name;
    }
}

TEST_F(UndoTest, ACharacterTypedAfterAnUndoEndsTheRunOfBlanks)
{
    press("ab ");
    t.menus().mnuEditUndo.Click();
    editor.TimerBlinkLine.Enabled = false;
    pane.setSelStart(2);
    press("x");
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    press(" ");
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels + 1);
}

TEST_F(UndoTest, ARunOfBlanksTypedAfterAnUndoIsOneLevel)
{
    press("ab cd");
    t.menus().mnuEditUndo.Click();
    ASSERT_EQ(pane.Text(), "ab");
    const std::size_t levels = history.Levels.size();
    press("   ");
    EXPECT_EQ(history.Levels.size(), levels + 1);
    EXPECT_EQ(history.Levels[0].Text.text(), "ab   ");
    EXPECT_EQ(history.Levels[1].Text.text(), "ab cd");
}

TEST_F(UndoTest, AReturnTypedAfterAnUndoEndsTheRunOfBlanks)
{
    press("ab ");
    t.menus().mnuEditUndo.Click();
    press("\r");
    const std::size_t levels = history.Levels.size();
    press("\r");
    EXPECT_EQ(history.Levels.size(), levels) << "one run of Returns";
    press(" ");
    EXPECT_EQ(history.Levels.size(), levels + 1);
}

TEST_F(UndoTest, AProtectedMacroFileSaysSoInsteadOfBeingUndone)
{
    editor.TabStrip1.Select(2);
    t.typeMacro("a");
    t.menus().mnuPreferencesProtectMacroFile.Click();
    for (MenuItem* item : {&t.menus().mnuEditUndo, &t.menus().mnuEditPaste}) {
        editor.status("");
        item->Click();
        EXPECT_EQ(t.status(), editor.macro.FileName + " is protected and can't be edited.") << item->Name;
        EXPECT_EQ(editor.MacroText.Text(), "a");
    }
}

TEST_F(UndoTest, AnEmptyPaneHasNoLineToHighlight)
{
    t.menus().mnuViewHighlightLine.Click();
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
}

TEST_F(UndoTest, HighlightErrorLineShowsTheLineOfTheJoystickFile)
{
    pane.setSelText("one\r\ntwo\r\nthree");
    editor.TabStrip1.Select(2);
    HighlightErrorLine(editor, 3);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
    EXPECT_EQ(pane.SelText(), "three");
}

TEST_F(UndoTest, ALineNumberOutsideTheFileIsInvalid)
{
    pane.setSelText("one\r\ntwo");
    for (const int line : {0, -1, 3}) {
        HighlightErrorLine(editor, line);
        EXPECT_EQ(t.lastBox().title, "Hmmm....bizarre...");
        EXPECT_EQ(t.lastBox().text, "The line number is invalid");
        EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    }
    EXPECT_EQ(t.dialogues.boxes.size(), 3U);
    HighlightErrorLine(editor, 2);
    EXPECT_EQ(t.dialogues.boxes.size(), 3U);
}

} // namespace
} // namespace tarvex
