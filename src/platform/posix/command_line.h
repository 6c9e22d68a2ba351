#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tarvex {

/// What the arguments of the desktop program ask for.
struct CommandLine {
    enum class Wish { Start, ShowHelp, ShowVersion };
    Wish wish = Wish::Start;
    std::string path; ///< the one path, bytes as given, or empty; it may lead nowhere
};

/// There are no switches: the arguments, without the program's name, are the words of one path with single blanks
/// between them. Only a lone "--help", "-h" or "--version" that names no file of the working directory is answered.
CommandLine readCommandLine(std::span<const char* const> arguments);

/// Prints what a wish asks for on the standard output; the process's exit status.
int printAnswer(std::string_view text);

/// The value of an environment variable; empty when it isn't set.
std::string fromEnvironment(const char* name);

} // namespace tarvex
