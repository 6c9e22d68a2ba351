#pragma once

#include "preferences/preferences.h"
#include "support/test_program.h"

#include <functional>
#include <string>

namespace tarvex {

/// A program whose user opens the preferences and does something in them.
struct PreferencesProgram : TestProgram {
    explicit PreferencesProgram(bool startIt = true) : TestProgram(startIt) {}

    Preferences& preferences() { return program().preferences; }
    /// Opens the dialogue at a page, lets the user act, and closes it by OK.
    void inPreferences(const std::function<void()>& act)
    {
        dialogues.whileModal = [this, act] {
            act();
            preferences().Command3.Click();
        };
        menus().mnuPreferencesEdit.Click();
        dialogues.whileModal = nullptr;
    }
};

} // namespace tarvex
