#pragma once

#include <string>

namespace tarvex::cli {

struct PreviousOptions {
    std::string ini; ///< settings file, native; "" is Tarvex.ini of the program directory
    bool json = false;
};
/// Prints the previous joystick files. Returns the exit status; that there are none is reported on standard error.
int previousCommand(const PreviousOptions& options);

} // namespace tarvex::cli
