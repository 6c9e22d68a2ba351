#pragma once

#include "wizards/joystick_wizard.h"
#include "wizards/macro_wizard.h"
#include "wizards/slash_wizard.h"
#include "wizards/speedy.h"

namespace tarvex {

/// The windows of the Wizards menu.
struct Wizards {
    explicit Wizards(Editor& theEditor)
        : editor(theEditor), macro(theEditor), speedy(theEditor), joystick(theEditor), slash(theEditor.operations)
    {
    }

    Editor& editor;
    MacroWizard macro;
    Speedy speedy;
    JoystickWiz joystick;
    SlashWizard slash;
};

/// Gives the commands of the menu their windows.
void wireWizards(Wizards& wizards);

/// Keys that were put together elsewhere become those of the macro in the windows that are open.
void takeKeys(Wizards& wizards, const std::string& keys);

} // namespace tarvex
