#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Puts the caret of a side's pane at a position, without a selection; beyond the text it stands at its end, below 0 at
/// its beginning. The side's record then has the caret of the pane.
void putCaret(Side& side, std::int64_t position);

} // namespace tarvex
