#include "platform/windows1252.h"

#include "platform/utf8.h"

namespace tarvex {

namespace {

constexpr std::array<char16_t, 32> c1Block = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr std::array<char16_t, 256> makeToUnicode()
{
    std::array<char16_t, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) table[byte] = static_cast<char16_t>(byte);
    for (std::size_t i = 0; i < c1Block.size(); ++i) table[0x80 + i] = c1Block[i];
    return table;
}

constexpr unsigned char lowerOf(unsigned char byte)
{
    if (byte >= 'A' && byte <= 'Z') return static_cast<unsigned char>(byte + 0x20);
    if (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7) return static_cast<unsigned char>(byte + 0x20);
    if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return static_cast<unsigned char>(byte + 0x10);
    if (byte == 0x9F) return 0xFF;
    return byte;
}

constexpr std::array<unsigned char, 256> makeLower()
{
    std::array<unsigned char, 256> table{};
    for (unsigned byte = 0; byte < 256; ++byte) table[byte] = lowerOf(static_cast<unsigned char>(byte));
    return table;
}

constexpr std::array<unsigned char, 256> makeUpper()
{
    std::array<unsigned char, 256> table{};
    for (unsigned byte = 0; byte < 256; ++byte) table[byte] = static_cast<unsigned char>(byte);
    for (unsigned byte = 0; byte < 256; ++byte) {
        const unsigned char lower = lowerOf(static_cast<unsigned char>(byte));
        if (lower != byte) table[lower] = static_cast<unsigned char>(byte);
    }
    return table;
}

constexpr std::array<bool, 256> makeIsWord()
{
    std::array<bool, 256> table{};
    constexpr auto upper = makeUpper();
    for (unsigned byte = 0; byte < 256; ++byte) table[byte] = lowerOf(static_cast<unsigned char>(byte)) != upper[byte];
    for (unsigned byte = '0'; byte <= '9'; ++byte) table[byte] = true;
    for (const unsigned byte : {0x5FU, 0x83U, 0xAAU, 0xB5U, 0xBAU, 0xDFU}) table[byte] = true; // no case in this page
    return table;
}

std::string mapped(std::string_view bytes, const std::array<unsigned char, 256>& table)
{
    std::string result(bytes);
    for (char& c : result) c = static_cast<char>(table[static_cast<unsigned char>(c)]);
    return result;
}

std::string mappedUtf8(std::string_view text, const std::array<unsigned char, 256>& table)
{
    std::string changed;
    changed.reserve(text.size());
    while (!text.empty()) {
        const Utf8Character next = firstUtf8Character(text);
        const int byte = next.valid ? windows1252FromUnicode(next.codePoint) : -1;
        if (byte < 0) {
            changed += text.substr(0, next.size);
        } else {
            appendUtf8(changed, windows1252ToUnicode[table[static_cast<std::size_t>(byte)]]);
        }
        text.remove_prefix(next.size);
    }
    return changed;
}

} // namespace

constinit const std::array<char16_t, 256> windows1252ToUnicode = makeToUnicode();
constinit const std::array<unsigned char, 256> windows1252Lower = makeLower();
constinit const std::array<unsigned char, 256> windows1252Upper = makeUpper();
constinit const std::array<bool, 256> windows1252IsWord = makeIsWord();

int windows1252FromUnicode(char32_t codePoint)
{
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<int>(codePoint);
    for (std::size_t i = 0; i < c1Block.size(); ++i) {
        if (c1Block[i] == codePoint) return static_cast<int>(0x80 + i);
    }
    return -1;
}

std::string utf8FromWindows1252(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) appendUtf8(text, windows1252ToUnicode[static_cast<unsigned char>(c)]);
    return text;
}

std::string windows1252FromUtf8(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const Utf8Character next = firstUtf8Character(text);
        const int byte = next.valid ? windows1252FromUnicode(next.codePoint) : -1;
        bytes += byte < 0 ? '?' : static_cast<char>(byte);
        text.remove_prefix(next.size);
    }
    return bytes;
}

bool isValidUtf8(std::string_view text)
{
    while (!text.empty()) {
        const Utf8Character next = firstUtf8Character(text);
        if (!next.valid) return false;
        text.remove_prefix(next.size);
    }
    return true;
}

std::size_t utf8Length(std::string_view text)
{
    std::size_t characters = 0;
    for (const char c : text) characters += isUtf8Continuation(c) ? 0 : 1;
    return characters;
}

std::string_view utf8Left(std::string_view text, std::size_t characters)
{
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        if (isUtf8Continuation(text[end])) continue;
        if (characters == 0) break;
        --characters;
    }
    return text.substr(0, end);
}

std::string lowerWindows1252(std::string_view bytes) { return mapped(bytes, windows1252Lower); }

std::string upperWindows1252(std::string_view bytes) { return mapped(bytes, windows1252Upper); }

std::string lowerUtf8(std::string_view text) { return mappedUtf8(text, windows1252Lower); }

std::string upperUtf8(std::string_view text) { return mappedUtf8(text, windows1252Upper); }

} // namespace tarvex
