#include "documents/pair/protected_pane.h"

#include "language/commands/coloured_insertion.h"
#include "language/commands/rem_block.h"
#include "language/commands/text_transfer.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct ProtectedPaneTest : testing::Test {
    static constexpr const char* text = "Rem a /I b\r\n/O c";
    TestProgram t;
    Editor& editor = t.editor();
    Pane& macro = editor.MacroText;

    ProtectedPaneTest()
    {
        macro.setText(text);
        editor.TabStrip1.Select(2);
        t.menus().mnuPreferencesProtectMacroFile.Click();
        editor.macro.Changed = changed::saved;
        macro.setSelLength(14);
    }
    /// The command only reports that the pane is protected.
    template <typename Command> void expectRefused(Command command)
    {
        const std::size_t levels = editor.macro.Undo.Levels.size();
        t.files.clearWrites();
        editor.status("");
        command();
        EXPECT_EQ(t.status(), "untitled.m50 is protected and can't be edited.");
        EXPECT_EQ(macro.Text(), text);
        EXPECT_EQ(macro.SelLength(), 14);
        EXPECT_EQ(editor.macro.Changed, changed::saved);
        EXPECT_EQ(editor.macro.Undo.Levels.size(), levels);
        EXPECT_EQ(t.program().shared.IsLoading, 0);
        EXPECT_TRUE(t.files.writes().empty());
    }
};

TEST_F(ProtectedPaneTest, TakesNoSlashModifierAndNoDelay)
{
    for (Button& button : editor.FrameMacros.Command1) expectRefused([&] { button.Click(); });
}

TEST_F(ProtectedPaneTest, TakesNoInsertionByTheInsertionOperations)
{
    constexpr Colour red = 255;
    expectRefused([&] { BeginColInsert(editor); });
    expectRefused([&] { InsertColouredString(editor, "x", red); });
    expectRefused([&] { InsertColouredStringNoSpace(editor, "x", red); });
    expectRefused([&] { InsertBlackBlanks(editor); });
    expectRefused([&] { InsertCarriageReturn(editor); });
    expectRefused([&] {
        editor.insertion.InsertText = "x";
        InsertBlackText(editor);
    });
    expectRefused([&] {
        BeginColInsert(editor);
        CheckAtLineBeginning(editor);
        InsertColouredString(editor, "x", red);
        EndColInsert(editor);
    });
    macro.setSelLength(0);
    CheckAtLineBeginning(editor);
    EXPECT_EQ(macro.Text(), text);
    EXPECT_EQ(macro.SelStart(), 0);
}

TEST_F(ProtectedPaneTest, TakesNoTransfer)
{
    expectRefused([&] { SafeinTransferText(editor, "RAW (#5B)"); });
    EXPECT_EQ(editor.TempRichTextBox.Text(), "");
    editor.TempRichTextBox.setText("BTN S1");
    expectRefused([&] { MacroTransferText(editor); });
    EXPECT_EQ(editor.TempRichTextBox.Text(), "");
}

TEST_F(ProtectedPaneTest, TakesNoAlignSlashes)
{
    t.settings().ApplyColoursOnFileOpen = 1;
    t.menus().mnuViewColourJoystick.handler = [] { ADD_FAILURE() << "nothing to colour"; };
    expectRefused([&] { t.menus().mnuViewAlignSlashes.Click(); });
}

TEST_F(ProtectedPaneTest, TakesNoBlockCommand)
{
    expectRefused([&] { t.menus().mnuEditREMblock.Click(); });
    expectRefused([&] { t.menus().mnuEditREMunblock.Click(); });
    expectRefused([&] { RemBlockCommon(editor); });
}

TEST_F(ProtectedPaneTest, IsStillColouredAndReformatted)
{
    t.menus().mnuViewColourMacro.Click();
    EXPECT_EQ(macro.formatAt(12).colour, t.settings().SlashColour);
    EXPECT_NE(t.settings().SlashColour, 0);
    t.menus().mnuViewReformat.Click();
    EXPECT_EQ(macro.formatAt(12).colour, 0);
    EXPECT_EQ(macro.Text(), text);
}

TEST_F(ProtectedPaneTest, LeavesTheOtherPaneOpenAndEndsWithTheProtection)
{
    editor.TabStrip1.Select(1);
    editor.FrameMacros.Command1[0].Click();
    EXPECT_EQ(editor.JoystickText.Text(), "/U ");
    editor.TabStrip1.Select(2);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    macro.setSelStart(0);
    editor.FrameMacros.Command1[0].Click();
    EXPECT_EQ(macro.Text(), std::string("/U ") + text);
}

} // namespace
} // namespace tarvex
