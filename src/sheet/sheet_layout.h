#pragma once

#include "sheet/control_sheet.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tarvex {

/// A paper that the sheet is made for, lying on its long side; points.
struct SheetPaper {
    double width = 0;
    double height = 0;
};
constexpr SheetPaper sheetA4{842, 595};
constexpr SheetPaper sheetLetter{792, 612};

/// Colours of the sheet, 0xRRGGBB.
using SheetColour = std::uint32_t;

// What stands on a page, in points from its upper left corner.

struct SheetText {
    double x = 0;
    double baseline = 0;
    double size = 0;
    bool bold = false;
    SheetColour colour = 0;
    std::string text; ///< UTF-8
};
struct SheetBox {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    SheetColour fill = 0;
};
/// The drawing of a controller, which is 580 by 480 at scale 1.
struct SheetPicture {
    PictureOf picture = PictureOf::F22AndF16Stick;
    double x = 0;
    double y = 0;
    double scale = 1;
    double labelSize = 15; ///< of the names beside the drawing, in its own unit
};
using SheetItem = std::variant<SheetText, SheetBox, SheetPicture>;

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
