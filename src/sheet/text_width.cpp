#include "sheet/text_width.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tarvex {

namespace {

constexpr unsigned firstListed = 0x20;
constexpr int unlisted = 611; ///< thousandths, as most letters with an accent
constexpr int ellipsis = 1000;
constexpr char32_t ellipsisSign = 0x2026;

/// Advance widths of ASCII from the blank on, in thousandths of the size: regular, bold.
constexpr std::array<std::int16_t, 95> regular{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr std::array<std::int16_t, 95> bolder{
    278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667,
    611, 778, 722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667,
    667, 611, 333, 278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556,
    278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584};

int widthOf(char32_t letter, bool bold)
{
    const auto& widths = bold ? bolder : regular;
    if (letter >= firstListed && letter < firstListed + widths.size()) return widths[letter - firstListed];
    return letter == ellipsisSign ? ellipsis : unlisted;
}

/// Takes the first letter off a UTF-8 text that isn't empty.
char32_t takeLetter(std::string_view& text)
{
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t bytes = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    char32_t letter = bytes == 1 ? first : first & (0xFFU >> (bytes + 1));
    for (std::size_t i = 1; i < bytes && i < text.size(); ++i)
        letter = letter << 6 | (static_cast<unsigned char>(text[i]) & 0x3FU);
    text.remove_prefix(std::min(bytes, text.size()));
    return letter;
}

} // namespace

double textWidth(std::string_view text, double size, bool bold)
{
    int thousandths = 0;
    while (!text.empty()) thousandths += widthOf(takeLetter(text), bold);
    return thousandths * size / 1000;
}

} // namespace tarvex
