#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Selects the first use of SelectedMacro in the joystick pane: the whole word with a blank or a line end behind it.
/// Without one nothing moves.
void FindMacroInJF(Editor& editor);

} // namespace tarvex
