#pragma once

#include "composer/insert_options.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The lines of a text that begin with "BTN X" or "DEF X", exactly so, in order. Bytes.
std::vector<std::string> logicalLines(std::string_view text);
/// Puts the logical statements of the joystick file into the fields of the Flag tab, the first 48 of them; where there
/// are none, the user is informed and the fields are empty. False: the file is empty, and the fields stay as they are.
bool analyseLogic(InsertOptions& window);

} // namespace tarvex
