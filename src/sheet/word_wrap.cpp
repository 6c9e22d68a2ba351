#include "sheet/word_wrap.h"

#include "platform/windows1252.h"
#include "sheet/text_width.h"

#include <algorithm>

namespace tarvex {

namespace {

/// Letters of a UTF-8 text that fit into the width, at least one.
std::size_t lettersThatFit(std::string_view text, double width, double size, bool bold)
{
    std::size_t letters = utf8Length(text);
    while (letters > 1 && textWidth(utf8Left(text, letters), size, bold) > width) --letters;
    return letters;
}

} // namespace

bool isBold(SheetWord::Kind kind) { return kind == SheetWord::Kind::Macro; }

std::vector<PlacedLine> wrapWords(const std::vector<SheetWord>& words, double width, double size)
{
    std::vector<PlacedLine> lines(1);
    double x = 0;
    for (const SheetWord& word : words) {
        const bool bold = isBold(word.kind);
        const double blank = textWidth(" ", size, false);
        std::string rest = word.text;
        const double wide = textWidth(rest, size, bold);
        if (x > 0 && x + blank + wide > width) {
            lines.emplace_back();
            x = 0;
        }
        if (x > 0) x += blank;
        while (x == 0 && textWidth(rest, size, bold) > width && utf8Length(rest) > 1) {
            const std::string_view fits = utf8Left(rest, lettersThatFit(rest, width, size, bold));
            lines.back().push_back({0, std::string(fits), word.kind});
            rest.erase(0, fits.size());
            lines.emplace_back();
        }
        lines.back().push_back({x, rest, word.kind});
        x += textWidth(rest, size, bold);
    }
    if (lines.back().empty()) lines.pop_back();
    return lines;
}

} // namespace tarvex
