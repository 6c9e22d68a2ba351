#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Ticks every macro of the lists that the joystick file uses.
void IdentifyMacrosUsed(Editor& editor);
void ClearMacroTicks(Editor& editor);

} // namespace tarvex
