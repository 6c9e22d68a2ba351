#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Lines up the slash modifiers in the selected tab's pane. The text passes through work files on drive c:; what fails
/// on that way leaves the pane as it is.
void AlignSlashes(Editor& editor);
/// The same for the joystick text, without indenting, for printing: the result stays in `alignedFile`.
void AlignForLayouts(Editor& editor);

inline constexpr const char* alignedFile = "c:\\TXalign2.txt";

} // namespace tarvex
