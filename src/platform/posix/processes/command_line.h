#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// A command line as the program builds it, in its two parts.
struct CommandLine {
    std::string program; ///< empty when the line begins with a blank
    std::string tail;    ///< all that follows, the blank in front of it included
};

/// The text up to the first blank or tab names the program; one in quotes may hold blanks.
CommandLine splitCommandLine(std::string_view line);

/// The arguments that a Windows program finds in the tail of its command line: blanks and tabs separate, quotes hold
/// together, \" is a quote, and "" within quotes is one too.
std::vector<std::string> windowsArguments(std::string_view tail);

} // namespace tarvex
