#include "testers/key_test_form.h"

namespace tarvex {

KeyTestForm::KeyTestForm(Editor& theEditor, InputDevices devices)
    : editor(theEditor), joystick(devices.joystick), keyboard(devices.keyboard)
{
    form.Caption = "KeyTester";
    Command1.Caption = "Exit";
    LabelSHIFT.Caption = "SHIFT";
    LabelCTRL.Caption = "CTRL";
    LabelALT.Caption = "ALT";
    LabelNUMLOCK.Caption = "NUM LOCK";
    for (std::size_t i = 0; i < JoyButtonAnalogue.size(); ++i) JoyButtonAnalogue[i].Caption = std::to_string(i + 1);
}

std::vector<MenuEntry> KeyTestForm::menuBar()
{
    return {{&mnuFile, {}, {{&mnuClose, {}, {}}}},
            {&mnuClear, {}, {{&mnuClearAll, {}, {}}, MenuEntry{}, {nullptr, {}, {}, &mnuClear500}}}};
}

} // namespace tarvex
