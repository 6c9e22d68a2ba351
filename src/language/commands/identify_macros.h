#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Ticks every macro of the lists that the joystick file uses.
void IdentifyMacrosUsed(Editor& editor);
/// The same where the user didn't ask for it: with nothing to analyse only the ticks go.
void IdentifyMacrosIfAny(Editor& editor);
void ClearMacroTicks(Editor& editor);

} // namespace tarvex
