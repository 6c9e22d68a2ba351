#include "testers/key_test.h"

#include "platform/input.h"
#include "platform/windows1252.h"
#include "shell/handler.h"
#include "testers/key_names.h"
#include "testers/key_test_joystick.h"

namespace tarvex {

namespace {

constexpr int shortestClear = 200; // milliseconds
constexpr int firstPrintable = 19;

std::string eventLine(int keyCode, const std::string& modifiers)
{
    std::string line = "Keycode: " + std::string(keyCode < 0 ? "" : " ") + std::to_string(keyCode);
    if (!modifiers.empty()) line += " + " + modifiers;
    return line;
}

void advanceColour(KeyTestForm& window)
{
    constexpr Colour Settings::*cycle[] = {&Settings::BTNColour, &Settings::SlashColour, &Settings::RAWColour,
                                           &Settings::MiscellaneousColour, &Settings::RemStatements};
    ++window.ColourIndex;
    window.CurrentColour = window.editor.shared.settings.*cycle[window.ColourIndex - 1];
    if (window.ColourIndex == static_cast<int>(std::size(cycle))) window.ColourIndex = 0;
    window.UpColour = window.CurrentColour;
}

std::string GetKeyDownEvent(KeyTestForm& window, int shift)
{
    if ((shift & shiftKey::shift) != 0) window.LabelSHIFT.hold(true);
    if ((shift & shiftKey::ctrl) != 0) window.LabelCTRL.hold(true);
    if ((shift & shiftKey::alt) != 0) window.LabelALT.hold(true);
    return modifierText(shift);
}

void showNumLock(KeyTestForm& window)
{
    window.LabelNUMLOCK.hold(window.keyboard.GetKeyState(testedKey::numLock) == 1);
}

std::string GetKeyUpEvent(KeyTestForm& window, int keyCode, int shift)
{
    if (keyCode == testedKey::shift) window.LabelSHIFT.hold(false);
    if (keyCode == testedKey::ctrl) window.LabelCTRL.hold(false);
    if (keyCode == testedKey::alt) window.LabelALT.hold(false);
    showNumLock(window);
    return modifierText(shift);
}

bool cleared(std::int16_t& flag)
{
    if (flag != 1) return false;
    flag = 0;
    return true;
}

void resetLabels(KeyTestForm& window)
{
    for (ToggleLabel* label : {&window.LabelSHIFT, &window.LabelCTRL, &window.LabelALT}) label->hold(false);
    for (ToggleLabel& button : window.JoyButtonAnalogue) button.hold(false);
    for (int i = 0; i <= window.mnuClear500.UBound(); ++i) window.mnuClear500[i].Checked = false;
    window.Timer1.Interval = 500;
    window.KeyPressSuppressed = 0;
    window.SkipNextKeyDown = 0;
    window.SkipNextKeyUp = 0;
    window.ToldOfCapsLock = false;
}

/// The lists empty at the next key down.
void Timer1_Timer(KeyTestForm& window)
{
    window.ClearOnNextKey = 1;
    window.Timer1.Enabled = false;
}

} // namespace

void wireKeyTest(KeyTestForm& window)
{
    window.form.Load = on(window, [](KeyTestForm& w) { Form_Load(w); });
    window.form.Unload = on(window, [](KeyTestForm& w) { Form_Unload(w); });
    window.form.KeyDown = [](int, int) { return true; }; // all keys are the tester's
    window.Command1.handler = [&window] { window.form.unload(); };
    window.mnuClose.handler = [&window] { window.form.unload(); };
    window.mnuClearAll.handler = on(window, ClearTextBoxes);
    window.mnuClear500.setHandler(onItem(window, mnuClear500_Click));
    window.Timer1.Tick = on(window, Timer1_Timer);
    window.JoystickTimer.Tick = on(window, JoystickTimer_Timer);
    window.connections.push_back(
        window.joystick.reported.connect([&window](const JoystickReport& report) { window.LastReport = report; }));
    window.form.join(window.editor.mum.toolWindows, true);
}

void Form_Load(KeyTestForm& window)
{
    const Steps step(window.editor.shared.errors, "KEYTEST Form_Load");
    const Settings& settings = window.editor.shared.settings;
    window.form.markLoaded();
    step([&] { window.form.TopMost = true; });
    step([&] {
        window.Timer1.Enabled = false;
        window.ClearOnNextKey = 0;
        window.AutoClearOn = 0;
        resetLabels(window);
        ClearTextBoxes(window);
    });
    step([&] {
        window.RTFKeysDownText.BackColor = settings.BackgroundColour;
        window.RTFKeysUpText.BackColor = settings.MacroBackgroundColour;
        window.RTFKeysText.BackColor = settings.BackgroundColour;
        window.CurrentColour = settings.MiscellaneousColour;
        window.UpColour = window.CurrentColour;
        window.ColourIndex = 1;
    });
    step([&] { showNumLock(window); });
    step([&] {
        if (window.keyboard.GetKeyState(testedKey::capsLock) == 1) TurnOffCapsLOCK(window);
    });
    step([&] { JoystickStuff(window); });
}

void Form_Unload(KeyTestForm& window)
{
    window.JoystickTimer.Enabled = false;
    window.Timer1.Enabled = false;
    if (window.JoystickStarted) window.joystick.stop();
    window.JoystickStarted = false;
    window.form.markUnloaded();
}

void Form_KeyDown(KeyTestForm& window, int keyCode, int shift)
{
    if (cleared(window.SkipNextKeyDown)) return;
    const Steps step(window.editor.shared.errors, "KEYTEST Form_KeyDown");
    window.KeyPressSuppressed = 0;
    step([&] {
        if (window.ClearOnNextKey != 1) return;
        ClearTextBoxes(window);
        window.Timer1.Enabled = false;
        window.ClearOnNextKey = 0;
    });
    step([&] {
        if (keyCode == testedKey::capsLock) TurnOffCapsLOCK(window);
    });
    step([&] { advanceColour(window); });
    step([&] {
        window.RTFKeysDownText.append(eventLine(keyCode, GetKeyDownEvent(window, shift)), window.CurrentColour);
    });
    step([&] {
        const NamedKey key = WhichKey(keyCode, shift);
        window.KeyPressSuppressed = key.suppressPress || !key.name.empty() ? 1 : 0;
        if (!key.name.empty()) window.RTFKeysText.append(key.name, window.CurrentColour);
    });
}

void Form_KeyPress(KeyTestForm& window, int keyAscii)
{
    if (cleared(window.KeyPressSuppressed)) return;
    if (keyAscii < firstPrintable) return;
    const Steps step(window.editor.shared.errors, "KEYTEST Form_KeyPress");
    step([&] {
        const std::string character(1, static_cast<char>(keyAscii));
        window.RTFKeysText.append(" " + utf8FromWindows1252(character), window.CurrentColour);
    });
}

void Form_KeyUp(KeyTestForm& window, int keyCode, int shift)
{
    if (cleared(window.SkipNextKeyUp)) return;
    const Steps step(window.editor.shared.errors, "KEYTEST Form_KeyUp");
    step([&] {
        window.Timer1.Enabled = false; // a key up counts from here
        window.Timer1.Enabled = window.AutoClearOn != 0;
    });
    window.ClearOnNextKey = 0;
    step([&] {
        window.RTFKeysUpText.append(eventLine(keyCode, GetKeyUpEvent(window, keyCode, shift)), window.UpColour);
    });
}

void keyboardLost(KeyTestForm& window)
{
    for (ToggleLabel* label : {&window.LabelSHIFT, &window.LabelCTRL, &window.LabelALT}) label->hold(false);
}

void ClearTextBoxes(KeyTestForm& window)
{
    for (ColouredList* list : {&window.RTFKeysDownText, &window.RTFKeysUpText, &window.RTFKeysText}) list->clear();
}

void TurnOffCapsLOCK(KeyTestForm& window)
{
    const Steps step(window.editor.shared.errors, "KEYTEST TurnOffCapsLOCK");
    step([&] {
        KeyStates states{};
        window.keyboard.GetKeyboardState(states);
        states[testedKey::capsLock] = 0;
        if (window.keyboard.SetKeyboardState(states) || window.ToldOfCapsLock) return;
        window.ToldOfCapsLock = true;
        window.status.Caption = "Status: Sorry, I can't switch Caps Lock off here";
    });
    step([&] { window.editor.platform.desktop.doEvents(); });
}

void mnuClear500_Click(KeyTestForm& window, int index)
{
    const Steps step(window.editor.shared.errors, "KEYTEST mnuClear500_Click");
    step([&] {
        const bool wasChecked = window.mnuClear500[index].Checked;
        for (int i = 0; i <= window.mnuClear500.UBound(); ++i) window.mnuClear500[i].Checked = false;
        if (wasChecked) {
            window.Timer1.Enabled = false;
            window.AutoClearOn = 0;
            return;
        }
        window.mnuClear500[index].Checked = true;
        window.Timer1.Interval = shortestClear * (index + 1);
        window.AutoClearOn = -1;
    });
}

} // namespace tarvex
