#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Another joystick was chosen: untitled documents get its extensions; named ones keep their names.
void HardwareHasChanged(Editor& editor);
/// New documents that were never saved move to the folder of the settings, which may be another one now.
void moveUntitled(Editor& editor);
/// Shows what the chosen joystick has: the F22 commands, /F or /A, quiet downloads.
void F22MenusUpdate(Editor& editor);

/// Where the /A (or /F) button stands among the slash buttons of the macro frame.
constexpr std::size_t analogueButton = 5;

} // namespace tarvex
