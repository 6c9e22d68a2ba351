#pragma once

#include "sheet/control_sheet.h"
#include "sheet/sheet_items.h"

#include <cstddef>
#include <vector>

namespace tarvex {

struct LaidOutPage {
    SheetPaper paper;
    std::vector<SheetItem> items; ///< in the order in which they are painted
    double textSize = 0;          ///< of what the controls do; their keys are smaller
    std::size_t left = 0;         ///< rows that have no room even in the smallest size
};

/// What gives way when a controller has more on it than a page of letters that are read from a metre.
enum class SheetSpread {
    MorePages, ///< the rows go on on further pages
    OnePage    ///< the letters get smaller
};
/// Letters that are read from a metre, in points.
constexpr double legibleText = 12;

/// The pages of each controller, the first with its picture. The text is as large as it all fits.
std::vector<LaidOutPage> layOut(const ControlSheet& sheet, const SheetPaper& paper, SheetSpread spread);

} // namespace tarvex
