#pragma once

#include "documents/text/pane.h"

#include <string_view>

namespace tarvex {

/// Put before the joystick text while it is searched, so that a name at its very start has blanks before it.
constexpr std::string_view blanksBeforeText = "   ";

/// Whether a name (bytes) stands in the pane as a whole word, in any case, with a blank or a line end right behind it.
/// Moves the pane's selection.
bool isMacroUsed(Pane& text, std::string_view name);

/// Whether there is anything to analyse: a joystick file without any "e" passes for an empty one. Without it the
/// program says `nothingToIdentify`.
bool canIdentify(const Pane& joystick, const Pane& macros);
extern const std::string_view nothingToIdentify;

} // namespace tarvex
