#pragma once

#include "documents/text/pane.h"
#include "shell/settings.h"

#include <string>

namespace tarvex {

enum class FileKind { Joystick, Macro, Other };
/// By the last three characters of a name, case ignored.
FileKind kindOfFile(const std::string& name);

/// Path of the partner by name alone: same base, the extension of the same controller family. Extensions of no family
/// give the one of the settings.
std::string associatedJoystickFile(const std::string& macroPath, const Settings& settings);
std::string associatedMacroFile(const std::string& joystickPath, const Settings& settings);

/// Path of the macro file that the last MDEF in the joystick file's text names, in the joystick file's folder and
/// lower-cased; empty without an MDEF. Moves the pane's selection.
std::string macroFileByMdef(Pane& joystickText, const std::string& joystickPath, const Settings& settings);

} // namespace tarvex
