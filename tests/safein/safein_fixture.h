#pragma once

#include "safein/key_pad.h"
#include "safein/safein.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {

/// The program with Safein open.
struct SafeinTest : testing::Test {
    TestProgram t;
    RAWform& window = t.program().safein;
    Editor& editor = t.editor();
    Settings& settings = t.settings();

    SafeinTest() { t.menus().mnuInsertRAW.Click(); }

    static constexpr int keyA = 20;
    static constexpr int keyB = 21;
    void click(int key) { window.Command1[static_cast<std::size_t>(key)].Click(); }
    void select(std::int64_t from, std::int64_t length)
    {
        editor.JoystickText.setSelStart(from);
        editor.JoystickText.setSelLength(length);
    }
    std::string caption(int key) { return window.Command1[static_cast<std::size_t>(key)].Caption; }
    bool enabled(int key) { return window.Command1[static_cast<std::size_t>(key)].Enabled; }
    std::string syntax() { return window.SyntaxText.Text; }
    std::string make() { return window.RMakeText.Text; }
    std::string ending() { return window.RBreakText.Text; }
    std::string combined() { return window.RCombinedText.Text; }
    std::string statement() { return window.TotalCombinedText.Text; }
    std::string joystick() { return std::string(editor.JoystickText.Text()); }
    std::string ini(const std::string& key) { return t.ini("Miscellaneous", key); }
};

} // namespace tarvex
