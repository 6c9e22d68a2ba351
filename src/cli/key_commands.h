#pragma once

#include <string>

namespace tarvex::cli {

struct KeyOptions {
    std::string key; ///< an index of the key table or a name
    bool all = false;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
    bool numLock = false; ///< counts only with `extended`
    bool noShf = false;
    bool extended = false;
    std::string joystick = "flcs";
    bool json = false;
};
/// Prints what a key, or each, is called and sends. Returns the exit status: an index without a key prints the texts of
/// no key, an unknown name nothing; both are reported on standard error.
int keyCommand(const KeyOptions& options);

struct RawOptions {
    std::string text; ///< "-": standard input
    bool json = false;
};
/// Prints the key presses that raw codes stand for. Returns the exit status; what is no key's code is reported on
/// standard error.
int rawCommand(const RawOptions& options);

} // namespace tarvex::cli
