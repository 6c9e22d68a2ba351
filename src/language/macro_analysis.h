#pragma once

#include "language/macro_record.h"

#include <string>
#include <vector>

namespace tarvex {

/// The heading that stands for every macro.
inline constexpr char allMacros[] = "All";

/// Names of macros, UTF-8, in the order of their definitions.
using MacroNames = std::vector<std::string>;

/// Analyses MacroFileLines. Fills MacroHeadings and returns the macros: element 0 has all of them, element k those
/// under MacroHeadings[k]. Each line that holds a heading is cut down to its words, in place.
std::vector<MacroNames> extractMacros(MacroRecord& record);

/// Keeps of CurrentMacroName what stands before the first "=", without blanks at its ends.
void RemoveSpacesFromMacroName(MacroRecord& record);

} // namespace tarvex
