#pragma once

#include "documents/pair/loading.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarvex {

/// Values of JoystickChanged and MacroChanged. Whether there is something to save is always a test for `modified`.
namespace changed {
constexpr std::int16_t noText = -1; ///< new document, not saved
constexpr std::int16_t saved = 0;
constexpr std::int16_t modified = 1;
} // namespace changed

/// The two documents that the program edits at all times.
struct PairRecord {
    std::string JoystickFilePath;
    std::string JoystickFileName; ///< as shown on tab 1
    std::string MacroFilePath;
    std::string MacroFileName; ///< as shown on tab 2
    std::int16_t JoystickChanged = changed::noText;
    std::int16_t MacroChanged = changed::noText;
    std::int64_t JoystickCaret = 0; ///< characters; last known caret
    std::int64_t MacroCaret = 0;
    std::int32_t JoystickSelectionLength = 0;
    std::int32_t MacroSelectionLength = 0;
    /// 1: the next change opens an undo level of its own instead of rewriting the newest.
    std::int16_t JoystickTakeNewLevel = 1;
    std::int16_t MacroTakeNewLevel = 1;
};

/// Text on its way into a pane.
struct InsertionRecord {
    std::string InsertText;         ///< bytes, as the pane holds them
    std::int32_t InsertColour = 0;  ///< what the caller chose for InsertText
    std::optional<Loading> Writing; ///< from BeginColInsert to EndColInsert
};

} // namespace tarvex
