#include "platform/posix/dos_names.h"

#include "platform/utf8.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <charconv>

namespace tarvex {

namespace {

constexpr char32_t privateStart = 0xF000;

bool isUnfit(char32_t c, bool last)
{
    return c == '\\' || c == ':' || (c > 0 && c < ' ') || c == 0x7F || (c == ' ' && last);
}

/// A name cut where an alias has its number: before the extension.
struct AliasParts {
    std::string_view stem;
    std::string_view extension; ///< with its dot
};

AliasParts aliasParts(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return {name, {}};
    return {name.substr(0, dot), name.substr(dot)};
}

} // namespace

std::string dosNameFromNative(std::string_view name)
{
    const std::string text = isValidUtf8(name) ? std::string(name) : utf8FromWindows1252(name);
    std::string result;
    for (std::string_view rest = text; !rest.empty();) {
        const Utf8Character next = firstUtf8Character(rest);
        rest.remove_prefix(next.size);
        appendUtf8(result, isUnfit(next.codePoint, rest.empty()) ? privateStart + next.codePoint : next.codePoint);
    }
    return result;
}

std::string nativeNameFromDos(std::string_view name)
{
    std::string result;
    while (!name.empty()) {
        const Utf8Character next = firstUtf8Character(name);
        const bool moved =
            next.codePoint > privateStart && isUnfit(next.codePoint - privateStart, name.size() == next.size);
        if (moved) {
            result += static_cast<char>(next.codePoint - privateStart);
        } else {
            result += name.substr(0, next.size);
        }
        name.remove_prefix(next.size);
    }
    return result;
}

DosNames::DosNames(std::vector<std::string> nativeNames)
{
    std::sort(nativeNames.begin(), nativeNames.end());
    for (std::string& name : nativeNames) m_groups[lowerUtf8(dosNameFromNative(name))].push_back(std::move(name));
}

std::optional<std::string> DosNames::find(std::string_view dosName) const
{
    const std::string* found = findPlain(dosName);
    if (!found) found = findAlias(dosName);
    if (!found) return std::nullopt;
    return *found;
}

const std::string* DosNames::findPlain(std::string_view dosName) const
{
    const auto found = m_groups.find(lowerUtf8(dosName));
    if (found == m_groups.end()) return nullptr;
    const Group& group = found->second;
    auto exact = std::find(group.begin(), group.end(), dosName);
    if (exact == group.end()) {
        exact = std::find_if(group.begin(), group.end(),
                             [&](const std::string& name) { return dosNameFromNative(name) == dosName; });
    }
    return exact == group.end() ? &group.front() : &*exact;
}

const std::string* DosNames::findAlias(std::string_view dosName) const
{
    const AliasParts parts = aliasParts(dosName);
    const std::size_t tilde = parts.stem.rfind('~');
    if (tilde == std::string_view::npos) return nullptr;
    const std::string_view number = parts.stem.substr(tilde + 1);
    std::size_t rank = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), rank);
    if (result.ec != std::errc() || result.ptr != number.data() + number.size()) return nullptr;

    const auto found = m_groups.find(lowerUtf8(std::string(parts.stem.substr(0, tilde)).append(parts.extension)));
    if (found == m_groups.end() || rank < 1 || rank > found->second.size()) return nullptr;
    return &found->second[rank - 1];
}

std::string DosNames::nameOf(const std::string& nativeName) const
{
    std::string plain = dosNameFromNative(nativeName);
    const std::string lower = lowerUtf8(plain);
    const auto found = m_groups.find(lower);
    if (found == m_groups.end()) return plain;
    const Group& group = found->second;
    const auto self = std::find(group.begin(), group.end(), nativeName);
    if (self == group.end() || (*findPlain(lower) == nativeName && *findPlain(plain) == nativeName)) return plain;

    const AliasParts parts = aliasParts(lower);
    std::string number = std::to_string(self - group.begin() + 1);
    for (;;) {
        std::string alias = std::string(parts.stem).append("~").append(number).append(parts.extension);
        if (!m_groups.contains(alias)) return alias;
        number.insert(0, 1, '0'); // a file has that very name; leading zeros change the name but not the number
    }
}

} // namespace tarvex
