#pragma once

#include <string_view>
#include <vector>

namespace tarvex {

/// The lines of a text file. A line ends at CR LF, CR or LF; a last line without an end counts, an empty rest doesn't.
std::vector<std::string_view> linesOf(std::string_view text);

} // namespace tarvex
