#include "platform/utf16.h"

#include "platform/utf8.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {
namespace {

constexpr char32_t firstOfPairs = 0x10000;
constexpr char32_t replacement = 0xFFFD;

bool isHigh(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLow(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

class Units {
public:
    Units(std::string_view bytes, Utf16Order order) : m_bytes(bytes), m_order(order) {}
    bool atEnd() const { return m_bytes.size() < 2; }
    char32_t first() const
    {
        const auto byte = [&](std::size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(m_bytes[i])); };
        return m_order == Utf16Order::LittleEndian ? byte(0) | byte(1) << 8U : byte(1) | byte(0) << 8U;
    }
    void pass() { m_bytes.remove_prefix(2); }

private:
    std::string_view m_bytes;
    Utf16Order m_order;
};

void appendUnit(std::string& bytes, char32_t unit, Utf16Order order)
{
    const auto low = static_cast<char>(unit & 0xFFU);
    const auto high = static_cast<char>(unit >> 8U);
    if (order == Utf16Order::LittleEndian)
        bytes += {low, high};
    else
        bytes += {high, low};
}

/// Half of a surrogate pair, as utf8FromUtf16 writes it; 0 where there is none.
char32_t loneSurrogate(std::string_view text)
{
    if (text.size() < 3 || text[0] != '\xED' || !isUtf8Continuation(text[1]) || !isUtf8Continuation(text[2])) return 0;
    return 0xD000U | (static_cast<char32_t>(text[1]) & 0x3FU) << 6U | (static_cast<char32_t>(text[2]) & 0x3FU);
}

constexpr std::size_t markSize = 2;

} // namespace

std::optional<Utf16Order> utf16OrderOf(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE")) return Utf16Order::LittleEndian;
    if (bytes.starts_with("\xFE\xFF")) return Utf16Order::BigEndian;
    return std::nullopt;
}

std::string utf8FromUtf16(std::string_view bytes, Utf16Order order)
{
    std::string text;
    text.reserve(bytes.size());
    for (Units units(bytes, order); !units.atEnd();) {
        const char32_t unit = units.first();
        units.pass();
        if (isHigh(unit) && !units.atEnd() && isLow(units.first())) {
            appendUtf8(text, firstOfPairs + ((unit & 0x3FFU) << 10U) + (units.first() & 0x3FFU));
            units.pass();
        } else {
            appendUtf8(text, unit);
        }
    }
    return text;
}

std::string utf16FromUtf8(std::string_view text, Utf16Order order)
{
    std::string bytes;
    bytes.reserve(2 * text.size());
    while (!text.empty()) {
        Utf8Character next = firstUtf8Character(text);
        if (const char32_t surrogate = next.valid ? 0 : loneSurrogate(text)) {
            next = {surrogate, 3, true};
        } else if (!next.valid) {
            next.codePoint = replacement;
        }
        if (next.codePoint >= firstOfPairs) {
            const char32_t offset = next.codePoint - firstOfPairs;
            appendUnit(bytes, 0xD800U + (offset >> 10U), order);
            appendUnit(bytes, 0xDC00U + (offset & 0x3FFU), order);
        } else {
            appendUnit(bytes, next.codePoint, order);
        }
        text.remove_prefix(next.size);
    }
    return bytes;
}

std::string textOfFile(std::string bytes)
{
    const auto order = utf16OrderOf(bytes);
    if (!order) return bytes;
    return windows1252FromUtf8(utf8FromUtf16(std::string_view(bytes).substr(markSize), *order));
}

std::size_t charactersLostFromFile(std::string_view bytes)
{
    const auto order = utf16OrderOf(bytes);
    if (!order) return 0;
    const std::string text = utf8FromUtf16(bytes.substr(markSize), *order);
    return static_cast<std::size_t>(std::ranges::count(windows1252FromUtf8(text), '?') - std::ranges::count(text, '?'));
}

} // namespace tarvex
