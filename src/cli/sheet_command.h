#pragma once

#include <string>

namespace tarvex::cli {

struct SheetOptions {
    std::string joystickFile;
    std::string macroFile; ///< empty: the one that the joystick file names, or that has its name
    std::string output;    ///< *.pdf, *.svg or *.html
    bool letter = false;   ///< US Letter instead of A4
    bool onePage = false;  ///< smaller letters rather than a second page
};
/// Writes a sheet with what is on each control, a page for each controller. Returns the exit status.
int sheetCommand(const SheetOptions& options);

} // namespace tarvex::cli
