#pragma once

#include "documents/pair/editor.h"

#include <string>
#include <vector>

namespace tarvex {

/// Names of macros, UTF-8, in the order of their definitions.
using MacroNames = std::vector<std::string>;

/// Analyses MacroFileLines. Fills MacroHeadings and returns the macros: element 0 has all of them, element k those
/// under MacroHeadings[k]. Each line that holds a heading is cut down to its words, in place.
std::vector<MacroNames> extractMacros(MacroRecord& record);

/// Keeps of CurrentMacroName what stands before the first "=", without blanks at its ends.
void RemoveSpacesFromMacroName(MacroRecord& record);

/// Fills Combo1 and List1 from MacroFileLines and tells on the status bar what was found.
void ExtractMacrosAndTitles(Editor& editor);
/// Empties the headings and lists.
void ClearAllForNewMacroFile(Editor& editor);
/// The heading "All" is chosen again: Combo1 shows it, and its list comes to the front.
void showAllMacros(Editor& editor);
/// Makes one list the visible one.
void bringToFront(FrameMacros& frame, std::size_t list);

} // namespace tarvex
