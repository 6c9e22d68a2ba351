#pragma once

#include "documents/find/find_window.h"

namespace tarvex {

/// Selects the line of the joystick file that LineToFind names, with its line end.
void Command7_Click(FindAndReplace& window);

} // namespace tarvex
