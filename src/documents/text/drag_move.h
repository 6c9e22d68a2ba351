#pragma once

#include "documents/text/pane.h"

#include <cstdint>

namespace tarvex {

/// Moves the selection, with its formats, to stand before the character at `target`, as one edit, and selects it there.
/// A target within the selection, an empty selection or a locked pane: nothing happens.
void moveSelection(Pane& pane, std::int64_t target);

} // namespace tarvex
