#include "platform/posix/processes/command_line.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::string_view blanks = " \t";

bool isBlank(char c) { return blanks.find(c) != std::string_view::npos; }

/// Takes one argument, and what separates it from the next, off the text.
std::string takeArgument(std::string_view& text)
{
    std::string argument;
    bool quoted = false;
    while (!text.empty() && (quoted || !isBlank(text.front()))) {
        // Backslashes stand for themselves but in front of a quote, where two make one.
        const std::size_t slashes = std::min(text.find_first_not_of('\\'), text.size());
        const bool beforeQuote = slashes < text.size() && text[slashes] == '"';
        argument.append(beforeQuote ? slashes / 2 : slashes, '\\');
        text.remove_prefix(slashes);
        if (text.empty()) break;
        if (text.front() != '"') {
            if (!quoted && isBlank(text.front())) break;
            argument += text.front();
        } else if (slashes % 2 != 0) {
            argument += '"';
        } else if (quoted && text.substr(1).starts_with('"')) {
            argument += '"';
            text.remove_prefix(1);
        } else {
            quoted = !quoted;
        }
        text.remove_prefix(1);
    }
    return argument;
}

} // namespace

CommandLine splitCommandLine(std::string_view line)
{
    if (line.starts_with('"')) {
        const std::size_t end = std::min(line.find('"', 1), line.size());
        return {std::string(line.substr(1, end - 1)), std::string(line.substr(std::min(end + 1, line.size())))};
    }
    const std::size_t end = std::min(line.find_first_of(blanks), line.size());
    return {std::string(line.substr(0, end)), std::string(line.substr(end))};
}

std::vector<std::string> windowsArguments(std::string_view tail)
{
    std::vector<std::string> arguments;
    for (;;) {
        tail.remove_prefix(std::min(tail.find_first_not_of(blanks), tail.size()));
        if (tail.empty()) return arguments;
        arguments.push_back(takeArgument(tail));
    }
}

} // namespace tarvex
