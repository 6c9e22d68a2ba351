#pragma once

#include "documents/pair/editor.h"
#include "shell/errors.h"

#include <string>

namespace tarvex {

/// Hands the joystick file to the loader, which compiles it and downloads it to the controller, and shows what WinLoad
/// reports of it.
void mnuSendToJoystick_Click(Editor& editor);

void mnuAppsQuiet_Click(Editor& editor);
void mnuUseWakeWarning_Click(Editor& editor);

// What a game's download before its start has in common with the command.

/// Loader, blank, joystick file. Nothing is put in quotes, whatever the paths hold.
ProgramCommand loaderCommand(const Editor& editor, const std::string& joystickFile);
/// The quiet switch goes with the command: its menu item is checked, and not greyed or hidden.
bool wantsQuiet(const Editor& editor);
/// Asks the user to wake up the joystick, if he wants to be asked. False: he doesn't want to go on.
bool joystickIsAwake(Editor& editor);
/// Runs the loader while the frame is minimised, then gives the keyboard back to the document window.
void runLoader(Editor& editor, const ProgramCommand& command);

} // namespace tarvex
