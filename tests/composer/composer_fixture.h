#pragma once

#include "composer/composer.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace tarvex {

/// The program with the Composer open, for the controllers that the machine's settings name.
struct ComposerTest : testing::Test {
    TestProgram t;
    InsertOptions& window = t.program().composer;
    Editor& editor = t.editor();
    Settings& settings = t.settings();
    Pane& joystick = editor.JoystickText;
    Pane& macro = editor.MacroText;

    ComposerTest() { show(); }

    void show()
    {
        window.form.open();
        window.form.Activate();
    }
    /// The window comes to the front with other controllers.
    void use(std::int16_t joyName, std::int16_t throttleName = 0, std::int16_t rudderName = 0)
    {
        settings.JoyName = joyName;
        settings.ThrottleName = throttleName;
        settings.RudderName = rudderName;
        window.form.Activate();
    }
    void button(int index) { window.BTN.at(static_cast<std::size_t>(index)).Click(); }
    void rotary(int index) { window.ROTARY.at(static_cast<std::size_t>(index)).Click(); }
    /// The user puts the caret there; what the panes' events do with it is done.
    void putCaret(std::int64_t position)
    {
        joystick.setSelStart(position);
        editor.joystick.Caret = static_cast<std::remove_reference_t<decltype(editor.joystick.Caret)>>(position);
    }
    /// A joystick file with the caret at its end.
    void write(const std::string& text)
    {
        editor.TabStrip1.Select(1);
        t.typeJoystick(text);
        putCaret(static_cast<std::int64_t>(joystick.TextLength()));
    }
    Colour colourOf(const Pane& pane, const std::string& word) { return pane.formatAt(pane.Text().find(word)).colour; }
};

} // namespace tarvex
