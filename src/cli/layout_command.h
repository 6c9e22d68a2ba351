#pragma once

#include <string>

namespace tarvex::cli {

struct AlignOptions {
    std::string file;
    int indent = 0; ///< blanks in front of each line that isn't a comment
};
/// Prints a file with its slash modifiers lined up, in the bytes of the file, lines ended by CR LF. Returns the exit
/// status.
int alignCommand(const AlignOptions& options);

} // namespace tarvex::cli
