#pragma once

#include <array>
#include <string>
#include <string_view>

// Text of panes, files and settings is Windows-1252, one byte a character; texts for the user and paths are UTF-8.

namespace tarvex {

/// Unicode code point of each byte. The five bytes that the code page leaves open stand for the control characters of
/// the same number, as on Windows, so that every byte survives the way to Unicode and back.
extern const std::array<char16_t, 256> windows1252ToUnicode;

/// The byte for a code point, or -1 where the code page has none.
int windows1252FromUnicode(char32_t codePoint);

/// Never fails: every byte has a character.
std::string utf8FromWindows1252(std::string_view bytes);
/// Characters that the code page lacks, and malformed UTF-8, become "?".
std::string windows1252FromUtf8(std::string_view text);
bool isValidUtf8(std::string_view text);
/// Number of characters (code points) of a valid UTF-8 text.
std::size_t utf8Length(std::string_view text);
/// The first `characters` code points of a valid UTF-8 text.
std::string_view utf8Left(std::string_view text, std::size_t characters);

/// Lower and upper case of the code page's letters; other bytes stay.
extern const std::array<unsigned char, 256> windows1252Lower;
extern const std::array<unsigned char, 256> windows1252Upper;
/// Letters, digits and "_".
extern const std::array<bool, 256> windows1252IsWord;
std::string lowerWindows1252(std::string_view bytes);
std::string upperWindows1252(std::string_view bytes);

/// Lower case of a UTF-8 text; letters outside the code page stay, so that two names that differ only in those never
/// become one.
std::string lowerUtf8(std::string_view text);
/// Upper case, likewise.
std::string upperUtf8(std::string_view text);

} // namespace tarvex
