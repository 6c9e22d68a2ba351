#include "platform/posix/command_line.h"

#include <filesystem>

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

} // namespace tarvex
