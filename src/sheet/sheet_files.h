#pragma once

#include "sheet/sheet_layout.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

enum class SheetForm { Pdf, Svg, Html };

/// By the extension of a file's name, in any case; nothing for others.
std::optional<SheetForm> sheetForm(std::string_view fileName);

/// The bytes of a file with the sheet.
std::string sheetFile(const ControlSheet& sheet, SheetForm form, const SheetPaper& paper, SheetSpread spread);

} // namespace tarvex
