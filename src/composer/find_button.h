#pragma once

#include "composer/insert_options.h"

#include <string_view>

namespace tarvex {

/// Looks for a statement (bytes) in the joystick file, whose tab is then selected, and puts the caret behind it. Words
/// of axes and rotaries are found as whole words, in any case; the search knows no comments. InsertNeeded is 0 when it
/// was found, and 1 when the caller is to insert: also with an empty file, and when the user wants no search.
void FindButton(InsertOptions& window, std::string_view text);

} // namespace tarvex
