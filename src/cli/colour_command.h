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

/// Prints the coloured text. Returns the exit status; what was held is reported on standard error, too.
int colourCommand(const ColourOptions& options);

} // namespace tarvex::cli
