#pragma once

#include "documents/pair/editor.h"

#include <string_view>

namespace tarvex {

/// Selects a statement as selectStatement does, in the joystick pane, whose tab is selected. JoystickSelectionLength
/// takes the selection's length. False: nothing was found, or nothing is there.
bool ExtractButtonDefinition(Editor& editor, std::string_view head);

} // namespace tarvex
