#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarvex {

/// What the analysis of the macro file found, and the macro in hand.
struct MacroRecord {
    std::vector<std::string> MacroFileLines; ///< bytes of the file: the lines that say something, leading blanks gone
    std::vector<std::string> MacroHeadings;  ///< UTF-8, as Combo1 shows them; the first is "All"
    std::string CurrentMacroName;            ///< working value of RemoveSpacesFromMacroName; bytes
    std::int16_t NotAMacroLine = 0;          ///< 1: the line in hand defines no macro
    std::string SelectedMacro;               ///< the name last picked in a list, UTF-8
    std::int16_t HeadingShown = 0;           ///< index of "All" in Combo1 after an analysis
    std::int16_t MacroListDirty = 0;         ///< 1: copies of the lists elsewhere are out of date
    std::size_t ListClicked = 0;             ///< index in List1 of the list that the pop-up menu is for
};

} // namespace tarvex
