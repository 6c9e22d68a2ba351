#include "language/macro_file_lines.h"

#include "platform/lines.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::string_view bareRem = "rem";

bool saysNothing(std::string_view line)
{
    if (line.empty() || line == "~" || line == "//") return true;
    if (line.front() == '~' && line.find('=') != line.npos) return true;
    return line.size() == bareRem.size() && lowerWindows1252(line) == bareRem;
}

bool beginsWith(std::string_view line, std::string_view start)
{
    const auto lower = [](char character) { return windows1252Lower[static_cast<unsigned char>(character)]; };
    return line.size() >= start.size() && std::ranges::equal(line.substr(0, start.size()), start, {}, lower, lower);
}

} // namespace

std::vector<std::string> keptMacroLines(std::string_view file)
{
    std::vector<std::string> kept;
    for (std::string_view line : linesOf(file)) {
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (!saysNothing(line)) kept.emplace_back(line);
    }
    return kept;
}

const std::string* definitionOf(const std::vector<std::string>& lines, std::string_view name)
{
    const std::string start = std::string(name) + " =";
    const auto line = std::ranges::find_if(lines, [&](const std::string& text) { return beginsWith(text, start); });
    return line == lines.end() ? nullptr : &*line;
}

} // namespace tarvex
