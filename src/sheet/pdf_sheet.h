#pragma once

#include "sheet/sheet_layout.h"

#include <string>
#include <vector>

namespace tarvex {

/// The pages as the bytes of a PDF file, in the fonts that every reader has. Characters that Windows-1252 lacks become
/// "?". Shapes of the drawings that let through what is below are left out.
std::string pdfSheet(const std::vector<LaidOutPage>& pages, const std::string& title);

} // namespace tarvex
