#pragma once

#include "language/colour_passes.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tarvex {

/// The colouring a second time, written to be plain: a text, a colour for each character, and no
/// pane.
struct NaiveColouring {
    struct HeldAt {
        std::string word;
        std::int64_t line;
        bool operator==(const HeldAt&) const = default;
    };
    std::string text;
    std::vector<Colour> colours;
    std::vector<HeldAt> holds;
    int failures = 0; ///< statements that failed
};

/// `text` has its line ends as CR LF. All characters begin black.
NaiveColouring naiveColouring(const std::string& text, const Settings& settings, std::span<const ColourPass> passes);

} // namespace tarvex
