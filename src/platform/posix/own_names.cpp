#include "platform/posix/own_names.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::string_view temporaryStart = ".tarvex-save-";
constexpr std::string_view copyMark = ".tarvex-copy-";
constexpr std::string_view digits = "0123456789";
constexpr std::string_view hexDigits = "0123456789abcdef";
constexpr std::size_t endSize = 16; ///< 64 bits

std::string uniqueEnd(std::uint64_t random)
{
    std::string end(endSize, '0');
    for (auto digit = end.rbegin(); digit != end.rend(); ++digit, random >>= 4) *digit = hexDigits[random & 0x0F];
    return end;
}

bool isNumber(std::string_view text)
{
    return !text.empty() && text.find_first_not_of(digits) == std::string_view::npos;
}

/// 16 hexadecimal digits, or the "process-count" of earlier versions.
bool isUniqueEnd(std::string_view end)
{
    if (end.size() == endSize && end.find_first_not_of(hexDigits) == std::string_view::npos) return true;
    const std::size_t dash = std::min(end.find('-'), end.size());
    return isNumber(end.substr(0, dash)) && dash < end.size() && isNumber(end.substr(dash + 1));
}

} // namespace

std::string temporaryName(std::uint64_t random) { return std::string(temporaryStart) + uniqueEnd(random); }

std::string copyName(std::string_view name, std::uint64_t random)
{
    constexpr std::size_t longest = 200; // leaves room for the end within the 255 bytes of a name
    return std::string(name.substr(0, longest)).append(copyMark) + uniqueEnd(random);
}

bool isTemporaryName(std::string_view name)
{
    return name.starts_with(temporaryStart) && isUniqueEnd(name.substr(temporaryStart.size()));
}

bool isCopyName(std::string_view name)
{
    const std::size_t mark = name.rfind(copyMark);
    return mark != std::string_view::npos && isUniqueEnd(name.substr(mark + copyMark.size()));
}

} // namespace tarvex
