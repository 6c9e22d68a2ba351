#pragma once

#include <string_view>

namespace tarvex {

/// A character that names inside DOSBox may hold, and that means nothing to it.
bool isPlainDosCharacter(char c);
/// A name that DOS can have and that DOSBox shows as it is: letters, digits and a few signs, at most 8 and 3.
bool isPlainDosName(std::string_view name);

} // namespace tarvex
