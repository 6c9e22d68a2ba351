#include "platform/posix/dosbox/dosbox_names.h"

#include "platform/windows1252.h"

#include <algorithm>
#include <array>

namespace tarvex {

namespace {

bool isPlainPart(std::string_view part, std::size_t longest)
{
    return part.size() <= longest && std::all_of(part.begin(), part.end(), isPlainDosCharacter);
}

/// Names that DOS keeps for devices, in any folder and with any extension.
bool isDevice(std::string_view stem)
{
    constexpr std::array<std::string_view, 13> devices{"con",  "nul",  "aux",  "prn",  "com1",     "com2",  "com3",
                                                       "com4", "lpt1", "lpt2", "lpt3", "emmxxxx0", "clock$"};
    return std::find(devices.begin(), devices.end(), lowerUtf8(stem)) != devices.end();
}

} // namespace

bool isPlainDosCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("_-$#@!()").find(c) != std::string_view::npos;
}

bool isPlainDosName(std::string_view name)
{
    const std::size_t dot = std::min(name.find('.'), name.size());
    const std::string_view stem = name.substr(0, dot);
    const std::string_view extension = name.substr(std::min(dot + 1, name.size()));
    return !stem.empty() && isPlainPart(stem, 8) && isPlainPart(extension, 3) && !isDevice(stem) &&
           !name.ends_with('.');
}

} // namespace tarvex
