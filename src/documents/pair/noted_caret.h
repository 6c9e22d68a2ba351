#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// The caret of a pane may have moved: remembers it and shows its line, its colour, and whether there is something to
/// cut, copy or paste. Nothing is shown twice: a key that was noted when it was pressed has no more to do when it is
/// released.
void noteCaret(Editor& editor, Side& side);
/// Shows the caret's line unless it was noted.
void showCaretLine(Editor& editor, Side& side);

} // namespace tarvex
