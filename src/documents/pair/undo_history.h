#pragma once

#include "documents/text/rich_text.h"

#include <cstdint>
#include <deque>

namespace tarvex {

/// The undo levels of one pane, the newest first; never fewer than one.
struct UndoHistory {
    /// What an undo or redo brings back.
    struct Level {
        RichText Text;
        std::int32_t Caret = 0; ///< SelStart when the snapshot was taken
    };
    std::deque<Level> Levels{1};
    std::size_t Position = 1; ///< the level now showing, from 1
    std::int16_t LastKeyWasSpace = 0;
    std::int16_t LastKeyWasReturn = 0;
};

} // namespace tarvex
