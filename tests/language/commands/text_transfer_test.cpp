#include "language/commands/text_transfer.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct TransferTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Pane& joystick = editor.JoystickText;
    Settings& settings = t.settings();

    TransferTest() { t.menus().mnuInsertWithColour.Checked = true; }
    Colour colourOf(const std::string& word) { return joystick.formatAt(joystick.Text().find(word)).colour; }
    void transferMacro(const std::string& text)
    {
        editor.TempRichTextBox.setText(text);
        MacroTransferText(editor);
    }
};

TEST_F(TransferTest, ATransferAtTheVeryStartPutsNoBlankInFront)
{
    SafeinTransferText(editor, "RAW (#5B)");
    EXPECT_EQ(joystick.Text(), "RAW (#5B)");
    EXPECT_EQ(joystick.SelStart(), 9);
}

TEST_F(TransferTest, ATransferBehindALineFeedOrABlankPutsNoBlankInFront)
{
    t.typeJoystick("one\r\n");
    SafeinTransferText(editor, "a ");
    SafeinTransferText(editor, "b");
    EXPECT_EQ(joystick.Text(), "one\r\na b");
}

TEST_F(TransferTest, ATransferBehindAWordKeepsABlankBetween)
{
    t.typeJoystick("one");
    SafeinTransferText(editor, "two");
    EXPECT_EQ(joystick.Text(), "one two");
    SafeinTransferText(editor, "RAW (#5B) three /P Rem four");
    EXPECT_EQ(joystick.Text(), "one two RAW (#5B) three /P Rem four") << "coloured, too";
}

TEST_F(TransferTest, SafeinColoursItsFourKindsOfWords)
{
    SafeinTransferText(editor, "x /P RAW (#5B) DLY(60) RAW(1) BTN S1 Rem tail");
    EXPECT_EQ(colourOf("/P"), settings.SlashColour);
    EXPECT_EQ(colourOf("RAW ("), settings.RAWColour);
    EXPECT_EQ(colourOf("#5B"), 0);
    EXPECT_EQ(colourOf(") DLY"), settings.RAWColour);
    EXPECT_EQ(colourOf("DLY("), settings.RAWColour);
    EXPECT_EQ(colourOf("RAW(1"), 0) << "not one of its passes";
    EXPECT_EQ(colourOf("BTN"), 0);
    EXPECT_EQ(colourOf("tail"), settings.RemStatements);
}

TEST_F(TransferTest, MacroTransferColoursByTheJoystickFilesWordsLessNULLCHR)
{
    transferMacro("BTN S1 USE TQS\r\nNULLCHR 1\r\nRPT(3) ~ note");
    EXPECT_EQ(colourOf("BTN"), settings.BTNColour);
    EXPECT_EQ(colourOf("USE"), settings.MiscellaneousColour);
    EXPECT_EQ(colourOf("NULLCHR"), 0);
    EXPECT_EQ(colourOf("RPT("), settings.RAWColour);
    EXPECT_EQ(colourOf("note"), settings.RemStatements);
    EXPECT_EQ(editor.TempRichTextBox.Text(), "");
}

TEST_F(TransferTest, WithoutMnuInsertWithColourTheBlockArrivesInDefaultTextColour)
{
    t.menus().mnuInsertWithColour.Checked = false;
    t.program().shared.DefaultTextColour = 77;
    SafeinTransferText(editor, "/P RAW (#5B) Rem tail");
    ASSERT_EQ(joystick.runs().size(), 1U);
    EXPECT_EQ(joystick.formatAt(0).colour, 77);
    EXPECT_EQ(joystick.formatAt(0).fontName, settings.TextFontName);
}

TEST_F(TransferTest, AnUnclosedDLYIsHeldAndTheTextStillArrives)
{
    std::string held;
    t.desktop.whileWaitingForEscape = [&] { held = t.status(); };
    editor.status("before");
    SafeinTransferText(editor, "/P DLY(60");
    EXPECT_EQ(joystick.Text(), "/P DLY(60");
    EXPECT_EQ(held, "before held by DLY( in line 1. Press Esc to go on, Ctrl+S to save.");
    EXPECT_EQ(t.status(), "before");
}

TEST_F(TransferTest, AnEmptyTextTransfersNothing)
{
    t.typeJoystick("one");
    joystick.setSelStart(0);
    joystick.setSelLength(3);
    SafeinTransferText(editor, "");
    transferMacro("");
    EXPECT_EQ(joystick.Text(), "one");
    EXPECT_EQ(joystick.SelLength(), 3);
}

TEST_F(TransferTest, ATransferReplacesTheSelectionAsOneUserEdit)
{
    settings.HighlightLineOnUndo = 0;
    t.typeJoystick("one two");
    joystick.setSelStart(4);
    joystick.setSelLength(3);
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    SafeinTransferText(editor, "2");
    EXPECT_EQ(joystick.Text(), "one 2");
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels + 1);
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "one two");
}

TEST_F(TransferTest, ATransferOpensAnUndoLevelThoughAKeyChangedNothing)
{
    settings.HighlightLineOnUndo = 0;
    joystick.setText("one ");
    joystick.setSelStart(4);
    joystick.KeyPress('x'); // as in a pane that refuses the key
    SafeinTransferText(editor, "2");
    EXPECT_EQ(joystick.Text(), "one 2");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "one ");
}

TEST_F(TransferTest, ABlockForTheMacroPaneGoesThereInTheJoystickFilesColours)
{
    editor.TabStrip1.Select(2);
    transferMacro("RKR UP a");
    EXPECT_EQ(editor.MacroText.Text(), "RKR UP a");
    EXPECT_EQ(editor.MacroText.formatAt(0).colour, settings.MiscellaneousColour);
    EXPECT_EQ(joystick.Text(), "");
}

TEST_F(TransferTest, ThePanesCaretsAndTheProgressBarAreLeftAlone)
{
    t.typeJoystick("x ");
    editor.joystick.Caret = 1;
    editor.macro.Caret = 5;
    editor.status("before");
    transferMacro("BTN S1 Rem x");
    EXPECT_EQ(editor.joystick.Caret, 1);
    EXPECT_EQ(editor.macro.Caret, 5);
    EXPECT_EQ(t.status(), "before");
    EXPECT_FALSE(t.program().mum.ProgressBar1.Visible);
}

TEST_F(TransferTest, OneCharacterIsTransferredToo)
{
    transferMacro("x");
    EXPECT_EQ(joystick.Text(), "x");
}

TEST_F(TransferTest, OfTwoUnclosedStatementsTheFirstAloneWaitsForTheUser)
{
    int waits = 0;
    t.desktop.whileWaitingForEscape = [&] { ++waits; };
    t.menus().mnuInsertWithColour.Checked = true;
    SafeinTransferText(editor, "RAW (a DLY(b");
    EXPECT_EQ(waits, 1);
}

} // namespace
} // namespace tarvex
