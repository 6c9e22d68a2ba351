#pragma once

#include "cli/colour_command.h"

namespace tarvex::cli {

/// What there is to print.
struct ColouredText {
    const Pane& pane;
    std::vector<ColourRun> runs;
    std::vector<HeldPass> held;
    std::string name; ///< of the file
    Colour background = 0xFFFFFF;
    std::string fontName;
};

/// {"length": n, "runs": [[start, length, colour], ...], "held": [{"word": ..., "line": ...}, ...]} and a line end.
std::string jsonText(const ColouredText& text);
/// UTF-8 with escape sequences of 24-bit colours; black is the terminal's own text colour. Ends with a line end.
std::string ansiText(const ColouredText& text);
/// A page of its own, UTF-8.
std::string htmlText(const ColouredText& text);

} // namespace tarvex::cli
