#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The lines of a macro file that say something: leading blanks (not tabs) gone; without empty ones, bare "rem", "~"
/// and "//", and "~" comments that hold "=". Bytes.
std::vector<std::string> keptMacroLines(std::string_view file);

/// The line that defines a macro: its name, one blank and "=", whatever the case. Null without one.
const std::string* definitionOf(const std::vector<std::string>& lines, std::string_view name);

} // namespace tarvex
