#pragma once

#include "documents/find/find_and_replace.h"
#include "documents/find/find_text.h"
#include "documents/find/replace_text.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {

/// The window as its user has it: opened from the menu, written into, clicked.
struct FindFixture : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    FindAndReplace& window = t.program().findAndReplace;
    Pane& joystick = editor.JoystickText;
    Pane& macro = editor.MacroText;

    void find(const std::string& text)
    {
        window.ComboTextFind.Text = text;
        window.Command1.Click();
    }
    /// On the replace tab.
    void findToReplace(const std::string& text)
    {
        window.ComboTextReplaceFind.Text = text;
        window.Command3.Click();
    }
    void replaceAll(const std::string& text, const std::string& with)
    {
        window.ComboTextReplaceFind.Text = text;
        window.ComboTextReplaceWith.Text = with;
        window.Command6.Click();
    }
    static void tick(CheckBox& box, bool on = true)
    {
        box.Value = on;
        box.Click();
    }
    static void expectSelected(const Pane& pane, std::int64_t start, std::int64_t length)
    {
        EXPECT_EQ(pane.SelStart(), start);
        EXPECT_EQ(pane.SelLength(), length);
    }
    void expectBox(const std::string& title, const std::string& text, BoxIcon icon)
    {
        ASSERT_FALSE(t.dialogues.boxes.empty());
        EXPECT_EQ(t.lastBox().title, title);
        EXPECT_EQ(t.lastBox().text, text);
        EXPECT_EQ(t.lastBox().icon, icon);
        t.dialogues.boxes.clear();
    }
    const std::string& failedIn() { return t.program().shared.errors.ErrorProcedure; }
};

} // namespace tarvex
