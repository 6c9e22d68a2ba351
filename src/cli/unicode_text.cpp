#include "cli/unicode_text.h"

#include "platform/utf8.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex::cli {

namespace {

constexpr char32_t blank = 0x20;
constexpr char32_t deleteCharacter = 0x7F;
constexpr char32_t controlPictures = 0x2400;
constexpr char32_t deletePicture = 0x2421;
constexpr char32_t replacement = 0xFFFD;

char32_t shown(char32_t character)
{
    if (character == '\n' || character == '\t') return character;
    if (character < blank) return controlPictures + character;
    if (character == deleteCharacter) return deletePicture;
    return character > deleteCharacter && character < 0xA0 ? replacement : character;
}

/// Whether the byte shows itself as it is: most of a text does, and is copied in stretches.
bool isPlain(char byte)
{
    return (byte >= ' ' && byte != static_cast<char>(deleteCharacter)) || byte == '\n' || byte == '\t';
}

} // namespace

void appendShown(std::string& out, std::string_view bytes)
{
    for (auto at = bytes.begin(); at != bytes.end();) {
        const auto plainEnd = std::find_if_not(at, bytes.end(), isPlain);
        out.append(at, plainEnd);
        if (plainEnd == bytes.end()) return;
        if (*plainEnd != '\r') appendUtf8(out, shown(windows1252ToUnicode[static_cast<unsigned char>(*plainEnd)]));
        at = plainEnd + 1;
    }
}

void appendShownUtf8(std::string& out, std::string_view text)
{
    while (!text.empty()) {
        const Utf8Character first = firstUtf8Character(text);
        if (text.front() != '\r') appendUtf8(out, first.valid ? shown(first.codePoint) : replacement);
        text.remove_prefix(first.size);
    }
}

void appendHtml(std::string& out, std::string_view bytes)
{
    for (const char byte : bytes) {
        switch (byte) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            appendShown(out, {&byte, 1});
        }
    }
}

} // namespace tarvex::cli
