#include "platform/posix/command_line.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace tarvex {

namespace {

bool namesFile(const std::string& path)
{
    std::error_code error;
    return std::filesystem::exists(path, error) && !std::filesystem::is_directory(path, error);
}

CommandLine::Wish wishOf(const std::string& argument)
{
    if (argument == "--help" || argument == "-h") return CommandLine::Wish::ShowHelp;
    if (argument == "--version") return CommandLine::Wish::ShowVersion;
    return CommandLine::Wish::Start;
}

} // namespace

CommandLine readCommandLine(std::span<const char* const> arguments)
{
    CommandLine line;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (i > 0) line.path += ' ';
        line.path += arguments[i];
    }
    const CommandLine::Wish wish = wishOf(line.path);
    if (wish == CommandLine::Wish::Start || namesFile(line.path)) return line;
    return {wish, {}};
}

int printAnswer(std::string_view text)
{
    std::cout << text << std::flush;
    return std::cout ? EXIT_SUCCESS : EXIT_FAILURE;
}

std::string fromEnvironment(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace tarvex
