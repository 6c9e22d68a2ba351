#include "documents/recovery/journal/recovery_names.h"

#include "documents/recovery/journal/recovery_journal.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::size_t longestName = 100; ///< characters; leaves room for "untitled-" and a number

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

std::string shortened(const std::string& name)
{
    if (utf8Length(name) <= longestName) return name;
    const std::string_view extension = Right(name, 4);
    return std::string(utf8Left(name, longestName - extension.size())) + std::string(extension);
}

} // namespace

std::string fileNameFor(std::string_view name)
{
    std::string one(name.substr(name.find_last_of("\\/:") + 1));
    std::replace_if(one.begin(), one.end(), isControl, '_');
    if (one.starts_with('.')) one.front() = '_';
    if (one.empty()) one = "untitled";
    one = shortened(one);
    const std::string lower = lowerUtf8(one);
    if (lower.ends_with(journalNameEnd) || lower.ends_with(damagedNameEnd)) one += ".txt";
    return one;
}

} // namespace tarvex
