#pragma once

#include <string>
#include <string_view>

namespace tarvex {

/// Number of a code page, as "\ansicpg" gives it.
using RtfCodePage = int;

namespace rtfCodePage {
constexpr RtfCodePage ofFile = 0; ///< of a font that names none of its own: the page of the file
constexpr RtfCodePage dosUs = 437;
constexpr RtfCodePage dosWestern = 850;
constexpr RtfCodePage windows = 1252; ///< the page of our texts; of a file that names none
constexpr RtfCodePage mac = 10000;
} // namespace rtfCodePage

/// The page of a font's "\fcharset". The symbol set counts as Windows-1252: its bytes number the glyphs of the font, so
/// they only show right in that font and unchanged. An unknown set has the page of the file.
RtfCodePage codePageOfCharset(int charset);

/// Turns bytes of code pages into Windows-1252.
class RtfDecoder {
public:
    /// "?" for each character that Windows-1252 lacks, once where two bytes make one. Bytes of an unknown page stay.
    std::string decode(std::string_view bytes, RtfCodePage page);
    /// The bytes are interrupted: the next one begins a character.
    void interrupt() { m_insideCharacter = false; }

private:
    std::string decodePairs(std::string_view bytes, RtfCodePage page);

    bool m_insideCharacter = false; ///< the next byte is the second of two
};

} // namespace tarvex
