#pragma once

#include "documents/text/pane.h"
#include "platform/printers.h"

#include <functional>

namespace tarvex {

/// What a failure of printing is reported under.
inline constexpr const char* printTag = "MODULE PrintRTF";
/// The margins that documents are printed with, in twips.
constexpr int printMargin = 1440;

/// Runs at the end of each page, with the page's number from 1 and where its text ends.
using PageEnd = std::function<void(int page, const PaperRectangle& text)>;

/// What a colour of the pane is on paper; none: the same.
using PaperInk = std::function<Colour(Colour)>;

/// The pane's text and look, for a printer.
StyledText styledText(const Pane& pane, const PaperInk& ink = {});

/// Prints the whole formatted text of the pane, on as many pages as it takes. Margins are in twips from the paper's
/// edges. Throws RuntimeError when the printer fails, or when the margins leave no room for a line.
void PrintRTF(Printer& printer, const Pane& pane, int leftMargin, int topMargin, int rightMargin, int bottomMargin,
              const PageEnd& pageEnd = {}, const PaperInk& ink = {});

} // namespace tarvex
