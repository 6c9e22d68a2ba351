#pragma once

#include "documents/text/pane.h"
#include "shell/settings.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex::cli {

enum class ColourForm { Default, Json, Ansi, Html, Rtf };

struct ColourOptions {
    std::string file;
    std::string as; ///< "joystick", "macro", "template", or "": by the file's extension
    std::string ini;
    ColourForm form = ColourForm::Default; ///< ANSI on a terminal, else JSON
};

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

/// Prints the coloured text. Returns the exit status; what was held is told on standard error, too.
int colourCommand(const ColourOptions& options);

} // namespace tarvex::cli
