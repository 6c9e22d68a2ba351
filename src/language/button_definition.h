#pragma once

#include "documents/pair/editor.h"

#include <string_view>

namespace tarvex {

/// Selects the statement that begins with `head` (bytes, a whole word in any case): up to the last character before the
/// next statement's head that is no line end. A statement of "PortB" begins four characters earlier; where there are
/// fewer, that step fails. False without such a head; the selection then stays.
bool selectStatement(Pane& pane, std::string_view head, const Steps& step);

/// The same in the joystick pane, whose tab is selected. JoystickSelectionLength takes the selection's length.
/// False: nothing was found, or nothing is there.
bool ExtractButtonDefinition(Editor& editor, std::string_view head);

} // namespace tarvex
