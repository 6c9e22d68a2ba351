#pragma once

#include "cli/coloured_text.h"

namespace tarvex::cli {

/// {"length": n, "runs": [[start, length, colour], ...], "held": [{"word": ..., "line": ...}, ...]} and a line end.
std::string jsonText(const ColouredText& text);
/// UTF-8 with escape sequences of 24-bit colours; black is the terminal's own text colour. Ends with a line end.
std::string ansiText(const ColouredText& text);
/// A page of its own, UTF-8.
std::string htmlText(const ColouredText& text);

} // namespace tarvex::cli
