#include "documents/editing/line_highlight.h"
#include "language/commands/align_slashes.h"
#include "language/commands/layout_refresh.h"
#include "language/commands/rem_block.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

constexpr Colour red = 255;

struct LayoutTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Pane& joystick = editor.JoystickText;
    Pane& macro = editor.MacroText;

    void paint(Pane& pane, std::int64_t start, std::int64_t length)
    {
        pane.setSelStart(start);
        pane.setSelLength(length);
        pane.setSelColor(red);
        pane.setSelFontName("Odd");
        pane.setSelItalic(true);
        pane.setSelStart(0);
    }
    void select(std::int64_t start, std::int64_t length)
    {
        editor.selected().pane.setSelStart(start);
        editor.selected().pane.setSelLength(length);
    }
};

// ---- reformat and refresh indent ------------------------------------------------------------------------------------

TEST_F(LayoutTest, ReformatTakesColoursAndFontsFromTheWholeText)
{
    t.typeJoystick("BTN S1 x\r\nUSE TQS");
    paint(joystick, 2, 9);
    editor.joystick.Caret = 4;
    t.menus().mnuViewReformat.Click();
    EXPECT_EQ(joystick.Text(), "BTN S1 x\r\nUSE TQS");
    ASSERT_EQ(joystick.runs().size(), 1U);
    const CharacterFormat& format = joystick.formatAt(0);
    EXPECT_EQ(format.colour, 0);
    EXPECT_EQ(format.fontName, t.settings().TextFontName);
    EXPECT_FALSE(format.italic);
    EXPECT_EQ(format.indent, 20);
    EXPECT_EQ(joystick.SelStart(), 4);
    EXPECT_EQ(t.status(), "Layout refreshed ... (I wish I was!)");
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    EXPECT_EQ(editor.TempRichTextBox.Text(), "");
    EXPECT_FALSE(editor.TempRichTextBox.Visible);
}

TEST_F(LayoutTest, ReformatLeavesTheChangedFlagAsItWas)
{
    for (const std::int16_t state : {changed::noText, changed::saved, changed::modified}) {
        joystick.setText("x");
        paint(joystick, 0, 1);
        editor.joystick.Changed = state;
        t.menus().mnuViewReformat.Click();
        EXPECT_EQ(joystick.formatAt(0).colour, 0);
        EXPECT_EQ(editor.joystick.Changed, state);
    }
}

TEST_F(LayoutTest, ReformatPutsTheNewStateIntoTheNewestUndoLevel)
{
    t.typeJoystick("abc");
    paint(joystick, 0, 3);
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    t.menus().mnuViewReformat.Click();
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels);
    EXPECT_TRUE(editor.joystick.Undo.Levels[0].Text == joystick.TextRTF());
}

TEST_F(LayoutTest, ReformatWithARecordedCaretBelow0PutsTheCaretTo0AndGoesOn)
{
    t.typeJoystick("BTN S1");
    editor.joystick.Caret = -1;
    t.menus().mnuViewReformat.Click();
    EXPECT_EQ(joystick.SelStart(), 0);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_mnuViewReformat_Click");
    EXPECT_EQ(t.status(), "Layout refreshed ... (I wish I was!)");
    EXPECT_EQ(editor.TempRichTextBox.Text(), "");
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST_F(LayoutTest, ReformatActsOnTheSelectedTabOnly)
{
    t.typeJoystick("j");
    t.typeMacro("m");
    paint(joystick, 0, 1);
    paint(macro, 0, 1);
    editor.TabStrip1.Select(2);
    t.menus().mnuViewReformat.Click();
    EXPECT_EQ(joystick.formatAt(0).colour, red);
    EXPECT_EQ(macro.formatAt(0).colour, 0);
}

TEST_F(LayoutTest, ReformatShowsThatItIsAtWork)
{
    t.typeJoystick("j");
    std::vector<std::string> lines;
    const auto listening =
        t.program().mum.StatusBar.Panels(1).Text.changed.connect([&] { lines.push_back(t.status()); });
    t.menus().mnuViewReformat.Click();
    EXPECT_THAT(lines, ElementsAre("Reformatting layout. Please wait ...", "Layout refreshed ... (I wish I was!)"));
}

TEST_F(LayoutTest, RefreshIndentKeepsFontsAndColours)
{
    t.typeJoystick("abc\r\ndef");
    paint(joystick, 1, 4);
    select(0, 8);
    joystick.setSelIndent(500);
    t.menus().mnuViewrefreshIndent.Click();
    EXPECT_EQ(joystick.formatAt(0).indent, 20);
    EXPECT_EQ(joystick.formatAt(6).indent, 20);
    EXPECT_EQ(joystick.formatAt(2).colour, red);
    EXPECT_EQ(joystick.formatAt(2).fontName, "Odd");
    EXPECT_EQ(t.status(), "Layout refreshed ... (I wish I was!)");
}

// ---- AlignSlashes ---------------------------------------------------------------------------------------------------

TEST_F(LayoutTest, AlignSlashesRewritesThePaneAsOneEditInThePlainFormat)
{
    t.settings().ApplyColoursOnFileOpen = 0;
    t.typeJoystick("BTN T2   /I Chaff\r\n/O Flare");
    paint(joystick, 0, 5);
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    editor.joystick.Changed = changed::saved;
    t.menus().mnuViewAlignSlashes.Click();
    EXPECT_EQ(joystick.Text(), "BTN T2 /I Chaff\r\n       /O Flare\r\n");
    EXPECT_EQ(joystick.runs().size(), 1U);
    EXPECT_EQ(joystick.formatAt(0).colour, 0);
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels + 1);
    EXPECT_EQ(t.status(), " OK - done!");
    EXPECT_FALSE(t.files.fileExists("c:\\TXalign.txt"));
    EXPECT_FALSE(t.files.fileExists("c:\\TXalign2.txt"));
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "BTN T2   /I Chaff\r\n/O Flare");
}

TEST_F(LayoutTest, AlignSlashesAsksForPatienceWhileItWorks)
{
    t.typeJoystick("BTN   S1");
    std::vector<std::string> texts;
    Property<std::string>& panel = t.program().mum.StatusBar.Panels(1).Text;
    const Connection watching = panel.changed.connect([&] { texts.push_back(panel); });
    t.menus().mnuViewAlignSlashes.Click();
    EXPECT_EQ(texts.front(), " Hang on - this could take time ...");
    EXPECT_EQ(texts.back(), " OK - done!");
}

TEST_F(LayoutTest, AlignSlashesOpensAnUndoLevelThoughAKeyChangedNothing)
{
    t.settings().HighlightLineOnUndo = 0;
    t.settings().ApplyColoursOnFileOpen = 0;
    joystick.setText("BTN   S1");
    joystick.KeyPress('x'); // as in a pane that refuses the key
    t.menus().mnuViewAlignSlashes.Click();
    EXPECT_EQ(joystick.Text(), "BTN S1\r\n");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "BTN   S1");
}

TEST_F(LayoutTest, AlignSlashesOfAnEmptyPaneDoesNothing)
{
    t.files.clearWrites();
    editor.status("before");
    t.menus().mnuViewAlignSlashes.Click();
    EXPECT_EQ(t.status(), "before");
    EXPECT_TRUE(t.files.writes().empty());
}

TEST_F(LayoutTest, AlignSlashesIndentsByTheSettings)
{
    t.settings().ApplyColoursOnFileOpen = 0;
    t.settings().IndentSpaces = 4;
    t.typeJoystick("BTN S1 a");
    t.menus().mnuViewAlignSlashes.Click();
    EXPECT_EQ(joystick.Text(), "BTN S1 a\r\n");
    t.settings().IndentAsWell = 1;
    t.menus().mnuViewAlignSlashes.Click();
    EXPECT_EQ(joystick.Text(), "    BTN S1 a\r\n");
}

TEST_F(LayoutTest, AlignSlashesInTheMacroPaneStillColoursTheJoystickFile)
{
    t.typeMacro("Fire = /T  a");
    editor.TabStrip1.Select(2);
    int joystickColoured = 0;
    int macroColoured = 0;
    t.menus().mnuViewColourJoystick.handler = [&] { ++joystickColoured; };
    t.menus().mnuViewColourMacro.handler = [&] { ++macroColoured; };
    t.settings().ApplyColoursOnFileOpen = 1;
    t.menus().mnuViewAlignSlashes.Click();
    EXPECT_EQ(macro.Text(), "Fire = /T a\r\n");
    EXPECT_EQ(joystickColoured, 1);
    t.settings().ApplyColoursOnFileOpen = 0;
    t.menus().mnuViewAlignSlashes.Click();
    EXPECT_EQ(joystickColoured, 1);
    EXPECT_EQ(macroColoured, 0);
}

TEST_F(LayoutTest, AlignSlashesLeavesThePaneAloneWhenAWorkFileFails)
{
    t.settings().ApplyColoursOnFileOpen = 0;
    t.files.addFile("c:\\TXalign2.txt", "somebody's");
    for (const char* path : {"c:\\TXalign.txt", "c:\\TXalign2.txt"}) {
        joystick.setText("BTN   S1");
        t.files.failWrites(path, RuntimeError(ErrorCode::DiskFull, "full"));
        t.menus().mnuViewAlignSlashes.Click();
        EXPECT_EQ(joystick.Text(), "BTN   S1") << path;
        t.files.failWrites(path, std::nullopt);
    }
}

TEST_F(LayoutTest, AlignForLayoutsLeavesItsOutputInTheFileAndNeverIndents)
{
    t.settings().IndentAsWell = 1;
    t.typeJoystick("BTN  S1");
    AlignForLayouts(editor);
    EXPECT_EQ(t.fileText("c:\\TXalign2.txt"), "BTN S1\r\n");
    EXPECT_EQ(joystick.Text(), "BTN  S1");
}

// ---- comment blocks -------------------------------------------------------------------------------------------------

TEST_F(LayoutTest, REMblockCommentsOutTheCaretsLine)
{
    t.menus().mnuInsertWithColour.Checked = true;
    t.typeJoystick("one\r\ntwo\r\nthree");
    select(7, 0);
    t.menus().mnuEditREMblock.Click();
    EXPECT_EQ(joystick.Text(), "one\r\nRem two\r\nthree");
    EXPECT_EQ(joystick.formatAt(5).colour, t.settings().RemStatements);
    EXPECT_EQ(joystick.SelStart(), 11);
    EXPECT_EQ(editor.joystick.Caret, 11);
    EXPECT_EQ(editor.joystick.SelectionLength, 0);
    t.settings().HighlightLineOnUndo = 0;
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "one\r\ntwo\r\nthree");
}

TEST_F(LayoutTest, REMblockWithoutColourWritesInTheLinesOwn)
{
    t.menus().mnuInsertWithColour.Checked = false;
    t.typeJoystick("one");
    t.menus().mnuEditREMblock.Click();
    EXPECT_EQ(joystick.Text(), "Rem one");
    EXPECT_EQ(joystick.formatAt(0).colour, 0);
}

TEST_F(LayoutTest, REMblockCommentsOutEveryLineTheSelectionTouchesAsOneUndoStep)
{
    t.settings().HighlightLineOnUndo = 0;
    t.typeJoystick("one\r\n\r\nthree\r\nfour");
    select(2, 7); // from "e" up to within "three"
    t.menus().mnuEditREMblock.Click();
    EXPECT_EQ(joystick.Text(), "Rem one\r\nRem \r\nRem three\r\nfour");
    EXPECT_EQ(joystick.SelStart(), 6);
    EXPECT_EQ(t.status(3), "Line no: 1");
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "one\r\n\r\nthree\r\nfour");
}

TEST_F(LayoutTest, REMunblockTakesTheCommentWordBackAndLeavesOtherLines)
{
    t.settings().HighlightLineOnUndo = 0;
    t.typeJoystick("REM one\r\ntwo Rem\r\n Rem three\r\nrem\r\nRem four");
    select(0, 36);
    t.menus().mnuEditREMunblock.Click();
    EXPECT_EQ(joystick.Text(), "one\r\ntwo Rem\r\n Rem three\r\n\r\nfour");
    EXPECT_EQ(joystick.SelStart(), 0);
    EXPECT_EQ(editor.joystick.SelectionLength, 0);
    EXPECT_EQ(t.status(3), "Line no: 1");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "REM one\r\ntwo Rem\r\n Rem three\r\nrem\r\nRem four");
}

TEST_F(LayoutTest, REMunblockUndoesREMblock)
{
    const std::string text = "one\r\n\r\n  two /P x\r\nthree";
    editor.TabStrip1.Select(2);
    t.typeMacro(text);
    select(0, static_cast<std::int64_t>(text.size()));
    t.menus().mnuEditREMblock.Click();
    EXPECT_NE(macro.Text(), text);
    select(0, static_cast<std::int64_t>(macro.TextLength()));
    t.menus().mnuEditREMunblock.Click();
    EXPECT_EQ(macro.Text(), text);
}

TEST_F(LayoutTest, REMblockWritesWhatWritingLineByLineGivesAndSparesTheColoursOfTheLines)
{
    for (const bool coloured : {false, true}) {
        t.menus().mnuInsertWithColour.Checked = coloured;
        Pane expected(editor.formats);
        joystick.setText("\r\none\r\n\r\ntwo three\r\nfour\r\n");
        paint(joystick, 3, 4);
        paint(joystick, 11, 2);
        expected.setFont(joystick.Font());
        expected.setSelIndent(20);
        expected.setTextRTF(joystick.TextRTF());
        for (std::int64_t line = 0; line < 5; ++line) {
            expected.setSelStart(expected.lineStart(line));
            if (coloured) expected.setSelColor(t.settings().RemStatements);
            expected.setSelText("Rem ");
        }
        select(0, 22); // up to within "four"
        t.menus().mnuEditREMblock.Click();
        EXPECT_EQ(joystick.Text(), "Rem \r\nRem one\r\nRem \r\nRem two three\r\nRem four\r\n");
        EXPECT_TRUE(joystick.TextRTF() == expected.TextRTF()) << coloured;
        select(0, 40);
        t.menus().mnuEditREMunblock.Click();
        EXPECT_EQ(joystick.Text(), "\r\none\r\n\r\ntwo three\r\nfour\r\n");
        EXPECT_EQ(joystick.formatAt(3).colour, red);
        EXPECT_EQ(joystick.formatAt(11).colour, red);
        EXPECT_EQ(joystick.formatAt(13).colour, 0);
    }
}

TEST_F(LayoutTest, TheBlockCommandsWriteManyLinesInOneEdit)
{
    std::string plain;
    std::string commented;
    for (int line = 0; line < 20000; ++line) {
        plain += "BTN S1 x\r\n";
        commented += "Rem BTN S1 x\r\n";
    }
    joystick.setText(plain);
    int edits = 0;
    const auto listening = joystick.edited.connect([&](const Pane::Edit&) { ++edits; });
    select(0, static_cast<std::int64_t>(plain.size()) - 1);
    t.menus().mnuEditREMblock.Click();
    EXPECT_EQ(joystick.Text(), commented);
    EXPECT_EQ(edits, 1);
    select(0, static_cast<std::int64_t>(commented.size()));
    t.menus().mnuEditREMunblock.Click();
    EXPECT_EQ(joystick.Text(), plain);
    EXPECT_EQ(edits, 2);
}

TEST_F(LayoutTest, TheBlockCommandsTakeTheCaretsLineWhileAStatementFlashes)
{
    joystick.setText("one\r\ntwo\r\nRem three");
    select(6, 0);
    flashText(editor, 0, 18);
    t.menus().mnuEditREMblock.Click();
    EXPECT_EQ(joystick.Text(), "one\r\nRem two\r\nRem three");
    EXPECT_EQ(joystick.SelStart(), 10);
    flashText(editor, 0, 22);
    t.menus().mnuEditREMunblock.Click();
    EXPECT_EQ(joystick.Text(), "one\r\ntwo\r\nRem three");
}

TEST_F(LayoutTest, ALineOfREMunblockThatDoesntBeginWithTheCommentWordStaysAsItIs)
{
    const std::string text = "Remark\r\nrem_1\r\nRem2\r\nRem\xE9\r\n rem\r\nre\r\nRe";
    joystick.setText(text);
    select(0, static_cast<std::int64_t>(text.size()));
    t.menus().mnuEditREMunblock.Click();
    EXPECT_EQ(joystick.Text(), text);
}

TEST_F(LayoutTest, REMunblockTakesTheCommentWordBeforeWhatIsNoWordCharacter)
{
    joystick.setText("Rem----\r\nrem\tx\r\nREM  y\r\nrem");
    select(0, 27);
    t.menus().mnuEditREMunblock.Click();
    EXPECT_EQ(joystick.Text(), "----\r\n\tx\r\n y\r\n");
}

TEST_F(LayoutTest, REMunblockOverLinesWithoutACommentChangesNothing)
{
    joystick.setText("one\r\nRemark\r\n");
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    editor.joystick.Changed = changed::saved;
    select(5, 6);
    t.menus().mnuEditREMunblock.Click();
    EXPECT_EQ(joystick.Text(), "one\r\nRemark\r\n");
    EXPECT_EQ(editor.joystick.Changed, changed::saved);
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    EXPECT_EQ(joystick.SelStart(), 5);
    EXPECT_EQ(editor.joystick.Caret, 5);
    EXPECT_EQ(editor.joystick.SelectionLength, 0);
    EXPECT_EQ(t.status(3), "Line no: 2");
}

TEST_F(LayoutTest, AfterREMunblockTheRecordedCaretIsThePanesEvenWhereTheTextHasBecomeTooShort)
{
    joystick.setText("Rem ");
    select(4, 0);
    editor.joystick.Caret = 1;
    t.menus().mnuEditREMunblock.Click();
    EXPECT_EQ(joystick.Text(), "");
    EXPECT_EQ(joystick.SelStart(), 0);
    EXPECT_EQ(editor.joystick.Caret, 0);
}

TEST_F(LayoutTest, REMblockOfOneLineOpensAnUndoLevelThoughAKeyChangedNothing)
{
    t.settings().HighlightLineOnUndo = 0;
    joystick.setText("one");
    joystick.KeyPress('x'); // as in a pane that refuses the key
    t.menus().mnuEditREMblock.Click();
    EXPECT_EQ(joystick.Text(), "Rem one");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "one");
}

TEST_F(LayoutTest, TheBlockCommandsEndAtTheLastLineWithASelectionToTheTextsEnd)
{
    t.typeJoystick("a\r\n");
    select(0, 3);
    t.menus().mnuEditREMblock.Click();
    EXPECT_EQ(joystick.Text(), "Rem a\r\nRem ");
}

TEST_F(LayoutTest, REMblockWithoutColourWritesInTheFormatThatTypingThereWould)
{
    t.menus().mnuInsertWithColour.Checked = false;
    t.typeJoystick("ab\r\n\r\ncd\r\n");
    joystick.setSelStart(2);
    joystick.setSelLength(2);
    joystick.setSelColor(0x00FF00); // of the first line's end
    joystick.setSelStart(6);
    joystick.setSelLength(1);
    joystick.setSelColor(red);
    joystick.setSelStart(8);
    joystick.setSelLength(2);
    joystick.setSelColor(0xFF0000); // of the last line's end
    select(0, 10);
    REMblock(editor);
    ASSERT_EQ(joystick.Text(), "Rem ab\r\nRem \r\nRem cd\r\nRem ");
    EXPECT_EQ(joystick.formatAt(0).colour, 0);
    EXPECT_EQ(joystick.formatAt(8).colour, 0x00FF00) << "an empty line";
    EXPECT_EQ(joystick.formatAt(14).colour, red);
    EXPECT_EQ(joystick.formatAt(22).colour, 0xFF0000) << "the empty line at the end";
}

TEST_F(LayoutTest, AProtectedFileIsNeitherCommentedOutNorIn)
{
    t.typeMacro("Rem a\r\nRem b");
    t.menus().mnuPreferencesProtectMacroFile.Click();
    editor.TabStrip1.Select(2);
    for (const auto& act : {REMblock, REMunblock}) {
        select(0, 9);
        act(editor);
        EXPECT_EQ(macro.Text(), "Rem a\r\nRem b");
        EXPECT_EQ(macro.SelLength(), 9);
        EXPECT_EQ(editor.shared.IsLoading, 0);
    }
}

TEST_F(LayoutTest, AfterACommentNothingIsRecordedAsSelected)
{
    t.typeJoystick("ab\r\ncd");
    editor.joystick.SelectionLength = 7;
    select(0, 5);
    REMblock(editor);
    EXPECT_EQ(editor.joystick.SelectionLength, 0);
    editor.joystick.SelectionLength = 7;
    select(0, 0);
    REMblock(editor);
    EXPECT_EQ(editor.joystick.SelectionLength, 0);
}

TEST_F(LayoutTest, AlignedTextHasNoSelectionRecordedAndItsTopInSight)
{
    t.typeJoystick("BTN S1 /U a\r\n/D b");
    editor.joystick.SelectionLength = 7;
    editor.joystick.Caret = 3;
    AlignSlashes(editor);
    EXPECT_EQ(editor.joystick.SelectionLength, 0);
    EXPECT_EQ(editor.joystick.Caret, 0);
}

} // namespace
} // namespace tarvex
