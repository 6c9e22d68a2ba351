#include "generators/single_text_form.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct RemStatement : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    SingleTextForm& window = t.program().generators.rem;

    /// F6, then the user writes, perhaps takes the tick away, and clicks OK.
    void insertRem(const std::string& words, bool lineEnd = true)
    {
        t.dialogues.whileModal = [this, words, lineEnd] {
            window.Form.Visible = true;
            window.RichTextBox1.userEdit(0, 0, words);
            window.CheckAddCR.Value = lineEnd;
            window.Command1.Click();
            EXPECT_FALSE(window.Form.Visible);
        };
        t.menus().mnuInsertRemStatement.Click();
    }
    const std::string& joystick() const { return editor.JoystickText.Text(); }
};

TEST_F(RemStatement, StandsWithTwoBlanksAfterTheWordAndEndsItsLine)
{
    insertRem("eject when hit");
    EXPECT_EQ(joystick(), "Rem  eject when hit\r\n");
    EXPECT_EQ(t.dialogues.modalForms, std::vector<std::string>{"SingleTextForm"});
}

TEST_F(RemStatement, IsOfTheColourOfCommentsInBothPanes)
{
    t.settings().RemStatements = 0x123456;
    insertRem("a");
    EXPECT_EQ(editor.JoystickText.formatAt(0).colour, 0x123456);
    editor.TabStrip1.Select(2);
    insertRem("b");
    EXPECT_EQ(editor.MacroText.Text(), "Rem  b\r\n");
    EXPECT_EQ(editor.MacroText.formatAt(5).colour, 0x123456);
}

TEST_F(RemStatement, WithoutInsertWithColourItIsPlain)
{
    t.settings().InsertWithColour = 0;
    insertRem("a");
    EXPECT_EQ(joystick(), "Rem  a\r\n");
    EXPECT_EQ(editor.JoystickText.formatAt(0).colour, 0);
}

TEST_F(RemStatement, IsKeptApartFromTheWordBeforeIt)
{
    t.typeJoystick("BTN S1 a");
    insertRem("fires", false);
    EXPECT_EQ(joystick(), "BTN S1 a Rem  fires");
    t.settings().InsertWithColour = 0;
    insertRem("too", false);
    EXPECT_EQ(joystick(), "BTN S1 a Rem  fires Rem  too");
}

TEST_F(RemStatement, TheTickShowsTheSettingAndIsWrittenAtOnce)
{
    t.settings().AddCRtoREM = 1;
    t.dialogues.whileModal = [this] {
        window.Form.Visible = true;
        EXPECT_TRUE(window.CheckAddCR.Value);
        window.Form.Visible = false;
    };
    t.menus().mnuInsertRemStatement.Click();
    insertRem("a", false);
    EXPECT_EQ(joystick(), "Rem  a");
    EXPECT_EQ(t.settings().AddCRtoREM, 0);
    EXPECT_EQ(t.ini("Miscellaneous", "AddCRtoREM"), "0");
}

TEST_F(RemStatement, OkOnAnEmptyBoxWritesTheWordAlone)
{
    insertRem("");
    EXPECT_EQ(joystick(), "Rem  \r\n");
}

TEST_F(RemStatement, CancelWritesNothingAndLeavesTheSetting)
{
    t.dialogues.whileModal = [this] {
        window.Form.Visible = true;
        window.RichTextBox1.userEdit(0, 0, "a");
        window.CheckAddCR.Value = false;
        window.Command2.Click();
        EXPECT_FALSE(window.Form.Visible);
    };
    t.menus().mnuInsertRemStatement.Click();
    EXPECT_EQ(joystick(), "");
    EXPECT_EQ(t.settings().AddCRtoREM, 1);
}

TEST_F(RemStatement, TheBoxComesUpEmptyEachTime)
{
    insertRem("first");
    t.dialogues.whileModal = [this] {
        window.Form.Visible = true;
        EXPECT_EQ(window.RichTextBox1.Text(), "");
        window.Form.Visible = false;
    };
    t.menus().mnuInsertRemStatement.Click();
}

TEST_F(RemStatement, EachChangeOfTheBoxTakesItsColourAwayAndPutsTheCaretAtTheEnd)
{
    Pane& box = window.RichTextBox1;
    box.userEdit(0, 0, "one two");
    box.setSelStart(0);
    box.setSelLength(3);
    box.setSelColor(255);
    EXPECT_EQ(box.formatAt(0).colour, 0);
    box.userEdit(3, 0, "x");
    EXPECT_EQ(box.Text(), "onex two");
    EXPECT_EQ(box.SelStart(), 8);
}

TEST_F(RemStatement, LinesThatArePastedIntoTheBoxBecomeOne)
{
    insertRem("one\r\ntwo");
    EXPECT_EQ(joystick(), "Rem  one two\r\n");
}

TEST_F(RemStatement, IsOneUndoStep)
{
    insertRem("a");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick(), "");
}

TEST_F(RemStatement, IntoAProtectedMacroFileNothingIsWritten)
{
    editor.TabStrip1.Select(2);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    insertRem("a");
    EXPECT_EQ(editor.MacroText.Text(), "");
    EXPECT_EQ(t.status(), "untitled.m50 is protected and can't be edited.");
}

TEST_F(RemStatement, WhatIsTypedAtTheEndOfTheBoxMakesAllOfItPlain)
{
    Pane& box = window.RichTextBox1;
    box.userEdit(0, 0, "one");
    ASSERT_EQ(box.SelStart(), 3);
    const auto coloured = box.Change;
    box.Change = nullptr;
    box.setSelStart(0);
    box.setSelLength(2);
    box.setSelColor(255);
    box.setSelStart(3);
    box.Change = coloured;
    box.userEdit(3, 0, "x");
    EXPECT_EQ(box.formatAt(0).colour, 0);
    EXPECT_EQ(box.SelStart(), 4);
}

TEST_F(RemStatement, ALineThatIsTypedIsNotWrittenAnew)
{
    Pane& box = window.RichTextBox1;
    int changes = 0;
    box.Change = [&changes, change = box.Change] {
        ++changes;
        change();
    };
    box.userEdit(0, 0, "one");
    const int ofTyping = changes;
    box.userEdit(3, 0, "\r\n");
    EXPECT_GT(changes - ofTyping, ofTyping) << "a line end is replaced";
    EXPECT_EQ(box.Text(), "one ");
}

} // namespace
} // namespace tarvex
