#pragma once

#include <string>

namespace tarvex::cli {

struct MacrosOptions {
    std::string file;
    bool json = false;
};
/// Prints the headings and macros of a macro file. Returns the exit status.
int macrosCommand(const MacrosOptions& options);

struct UsedOptions {
    std::string joystickFile;
    std::string macroFile;
    bool json = false;
};
/// Prints which macros a joystick file uses. Returns the exit status: with nothing to analyse the program's own words
/// go to standard error. Throws CallError when both files are standard input.
int usedCommand(const UsedOptions& options);

} // namespace tarvex::cli
