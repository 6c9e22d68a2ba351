#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarvex {

/// One step through a UTF-8 text.
struct Utf8Character {
    char32_t codePoint = 0; ///< the byte itself when it isn't valid
    std::size_t size = 1;   ///< in bytes
    bool valid = false;
};

/// The character that a text, not empty, begins with. A byte that begins no well-formed character (shortest form, no
/// surrogate, at most U+10FFFF) is a step of its own.
Utf8Character firstUtf8Character(std::string_view text);

/// Adds a code point of at most U+10FFFF. A surrogate gives three bytes that are no valid UTF-8.
void appendUtf8(std::string& text, char32_t codePoint);

constexpr bool isUtf8Continuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

} // namespace tarvex
