#pragma once

#include "documents/text/rich_text.h"

#include <cstdint>
#include <deque>

namespace tarvex {

/// The undo levels of one pane, the newest first; never fewer than one. Both lists always have the same length.
struct UndoHistory {
    std::deque<RichText> Text{1};
    std::deque<std::int32_t> Caret{0}; ///< SelStart at each snapshot
    std::size_t Position = 1;          ///< the level now showing, from 1
    std::int16_t LastKeyWasSpace = 0;
    std::int16_t LastKeyWasReturn = 0;
};

} // namespace tarvex
