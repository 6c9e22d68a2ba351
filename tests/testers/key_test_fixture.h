#pragma once

#include "support/test_program.h"
#include "testers/key_test.h"

#include <gtest/gtest.h>

namespace tarvex {

/// The key tester in a scheme whose colours all differ.
struct KeyTestTest : testing::Test, TestProgram {
    KeyTestForm& form = program().testers.keyTest;

    void SetUp() override
    {
        settings().BTNColour = 1;
        settings().SlashColour = 2;
        settings().RAWColour = 3;
        settings().MiscellaneousColour = 4;
        settings().RemStatements = 5;
        settings().BackgroundColour = 6;
        settings().MacroBackgroundColour = 7;
    }
    void open() { menus().mnuSendToKeyTest.Click(); }
    /// Down, the character if it has one, and up.
    void key(int code, int shift = 0, int character = 0)
    {
        Form_KeyDown(form, code, shift);
        if (character != 0) Form_KeyPress(form, character);
        Form_KeyUp(form, code, shift);
    }
};

} // namespace tarvex
