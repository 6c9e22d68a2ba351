#include "platform/posix/wine_registry.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace tarvex {

namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool sameWithoutCase(std::string_view a, std::string_view b) { return std::ranges::equal(a, b, {}, lower, lower); }

void appendUtf8(std::string& text, unsigned int character)
{
    constexpr unsigned int oneByte = 0x80;
    constexpr unsigned int twoBytes = 0x800;
    const auto low = [](unsigned int bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (character < oneByte) {
        text += static_cast<char>(character);
    } else if (character < twoBytes) {
        text += {static_cast<char>(0xC0 | (character >> 6)), low(character)};
    } else {
        text += {static_cast<char>(0xE0 | (character >> 12)), low(character >> 6), low(character)};
    }
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9') return c - '0';
    const char letter = lower(c);
    return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

/// Takes "\xHH" to "\xHHHH" off the front of what follows the "x".
unsigned int takeHex(std::string_view& rest)
{
    unsigned int value = 0;
    for (int digits = 0; digits < 4 && !rest.empty() && hexDigit(rest.front()) >= 0; ++digits) {
        value = value * 16 + static_cast<unsigned int>(hexDigit(rest.front()));
        rest.remove_prefix(1);
    }
    return value;
}

/// Takes a text up to `end` off the front, with its escapes resolved. Nothing when the end is missing.
std::optional<std::string> takeUntil(std::string_view& rest, char end)
{
    std::string text;
    while (!rest.empty()) {
        const char c = rest.front();
        rest.remove_prefix(1);
        if (c == end) return text;
        if (c != '\\' || rest.empty()) {
            text += c;
            continue;
        }
        const char escaped = rest.front();
        rest.remove_prefix(1);
        if (escaped == 'x')
            appendUtf8(text, takeHex(rest));
        else
            text += escaped;
    }
    return {};
}

/// The text of a line "name"="text" or "name"=str(2):"text" if it has that name.
std::optional<std::string> textOfLine(std::string_view line, std::string_view name)
{
    if (!line.starts_with('"')) return {};
    line.remove_prefix(1);
    const auto found = takeUntil(line, '"');
    if (!found || !sameWithoutCase(*found, name) || !line.starts_with('=')) return {};
    line.remove_prefix(1);
    if (line.starts_with("str(")) line.remove_prefix(std::min(line.find('"'), line.size()));
    if (!line.starts_with('"')) return {};
    line.remove_prefix(1);
    return takeUntil(line, '"');
}

} // namespace

std::optional<std::string> wineRegistryText(std::string_view bytes, std::string_view key, std::string_view name)
{
    bool inKey = false;
    while (!bytes.empty()) {
        std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.starts_with('[')) {
            if (inKey) return {};
            line.remove_prefix(1);
            const auto found = takeUntil(line, ']');
            inKey = found && sameWithoutCase(*found, key);
        } else if (inKey) {
            if (const auto text = textOfLine(line, name)) return text;
        }
    }
    return {};
}

std::optional<std::string> readWineRegistry(const std::string& path, std::string_view key, std::string_view name)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) return {};
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    return wineRegistryText(bytes, key, name);
}

} // namespace tarvex
