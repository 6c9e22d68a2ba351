#pragma once

#include "shell/hardware/pictures.h"

#include <cstdint>
#include <string>
#include <variant>

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

} // namespace tarvex
