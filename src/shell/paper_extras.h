#pragma once

#include <string_view>

namespace tarvex::extraKey {

/// Of the tick that darkens the light letters of a dark window on paper.
constexpr std::string_view darkenedPaper = "PrintDarkened";
/// Of the tick that keeps the sheet of each controller on one page.
constexpr std::string_view sheetOnOnePage = "SheetOnOnePage";

} // namespace tarvex::extraKey
