#include "platform/utf8.h"

namespace tarvex {

Utf8Character firstUtf8Character(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(text[i])); };
    const char32_t lead = byte(0);
    const Utf8Character malformed{lead, 1, false};
    if (lead < 0x80) return {lead, 1, true};

    std::size_t size = 0;
    if ((lead & 0xE0) == 0xC0) size = 2;
    if ((lead & 0xF0) == 0xE0) size = 3;
    if ((lead & 0xF8) == 0xF0) size = 4;
    if (size == 0 || text.size() < size) return malformed;

    char32_t codePoint = lead & (0x7FU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        if (!isUtf8Continuation(text[i])) return malformed;
        codePoint = (codePoint << 6) | (byte(i) & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest[size] || codePoint > 0x10FFFF || surrogate) return malformed;
    return {codePoint, size, true};
}

void appendUtf8(std::string& text, char32_t codePoint)
{
    const auto tail = [&](unsigned shift) { text += static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F)); };
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0 | (codePoint >> 6));
        tail(0);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0 | (codePoint >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0 | (codePoint >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

} // namespace tarvex
