#pragma once

#include "documents/text/pane.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarvex::cli {

/// A pass that would never have ended.
struct HeldPass {
    std::string word;
    std::int64_t line = 0; ///< from 1
};

/// Where a colour begins, from 0, and how many characters have it.
struct ColourRun {
    std::size_t start = 0;
    std::size_t length = 0;
    Colour colour = 0;
};
/// Covers the whole text; neighbours differ.
std::vector<ColourRun> colourRuns(const Pane& pane);

/// What there is to print.
struct ColouredText {
    const Pane& pane;
    std::vector<ColourRun> runs;
    std::vector<HeldPass> held;
    std::string name; ///< of the file
    Colour background = 0xFFFFFF;
    std::string fontName;
};

} // namespace tarvex::cli
