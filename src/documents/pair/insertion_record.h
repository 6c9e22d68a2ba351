#pragma once

#include "documents/pair/loading.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarvex {

/// Text on its way into a pane.
struct InsertionRecord {
    std::string InsertText;         ///< bytes, as the pane holds them
    std::int32_t InsertColour = 0;  ///< what the caller chose for InsertText
    std::optional<Loading> Writing; ///< from BeginColInsert to EndColInsert
};

} // namespace tarvex
