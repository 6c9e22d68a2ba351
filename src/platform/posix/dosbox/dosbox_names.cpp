#include "platform/posix/dosbox/dosbox_names.h"

#include "platform/dos_devices.h"

#include <algorithm>

namespace tarvex {

namespace {

bool isPlainPart(std::string_view part, std::size_t longest)
{
    return part.size() <= longest && std::all_of(part.begin(), part.end(), isPlainDosCharacter);
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
    return !stem.empty() && isPlainPart(stem, 8) && isPlainPart(extension, 3) && !isDosDevice(stem) &&
           !name.ends_with('.');
}

} // namespace tarvex
