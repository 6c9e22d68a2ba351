#include "sheet/word_wrap.h"

#include "platform/windows1252.h"
#include "sheet/text_width.h"

#include <algorithm>

namespace tarvex {

namespace {

/// The beginning of a UTF-8 text that fits into the width, at least one letter.
std::string_view beginningThatFits(std::string_view text, double width, double size, bool bold)
{
    std::size_t bytes = utf8Left(text, 1).size();
    double taken = textWidth(text.substr(0, bytes), size, bold);
    while (bytes < text.size()) {
        const std::string_view letter = utf8Left(text.substr(bytes), 1);
        taken += textWidth(letter, size, bold);
        if (taken > width) break;
        bytes += letter.size();
    }
    return text.substr(0, bytes);
}

/// Where a word that is too wide is parted.
std::string_view firstPart(std::string_view word, double width, double size, bool bold)
{
    const std::string_view fits = beginningThatFits(word, width, size, bold);
    const std::size_t joint = fits.rfind('_');
    return joint == std::string_view::npos || joint == 0 ? fits : fits.substr(0, joint + 1);
}

bool isKey(const SheetWord& word) { return word.kind == SheetWord::Kind::Keys; }

/// Of those from `first` on, side by side.
double widthOfKeys(const std::vector<SheetWord>& words, std::size_t first, double size)
{
    const double keySize = sizeOf(SheetWord::Kind::Keys, size);
    double width = 0;
    for (std::size_t i = first; i < words.size() && isKey(words[i]); ++i)
        width += textWidth(words[i].text, keySize, false) + (i > first ? textWidth(" ", keySize, false) : 0);
    return width;
}

class Wrapping {
public:
    Wrapping(double width, double size, double hanging) : m_width(width), m_size(size), m_hanging(hanging)
    {
        m_lines.emplace_back();
    }

    void add(const SheetWord& word)
    {
        const bool bold = isBold(word.kind);
        const double size = sizeOf(word.kind, m_size);
        const double blank = textWidth(" ", size, false);
        std::string_view rest = word.text;
        double wide = textWidth(rest, size, bold);
        if (!m_fresh && m_x + blank + wide > m_width) newLine();
        if (!m_lines.back().words.empty()) m_x += blank;
        while (m_fresh && m_x + wide > m_width) {
            const std::string_view part = firstPart(rest, m_width - m_x, size, bold);
            if (part.size() == rest.size()) break;
            place(part, size, word.kind);
            m_lines.back().parted = true;
            rest.remove_prefix(part.size());
            wide -= textWidth(part, size, bold);
            newLine();
        }
        place(rest, size, word.kind);
        m_x += wide;
        if (word.kind != SheetWord::Kind::Modifier) m_fresh = false;
    }
    /// Before keys that are so wide side by side.
    void keepTogether(double wide)
    {
        const bool fitsHere = m_x + textWidth(" ", m_size, false) + wide <= m_width;
        if (!m_fresh && !fitsHere && m_hanging + wide <= m_width) newLine();
    }
    std::vector<PlacedLine> take()
    {
        if (m_lines.back().words.empty()) m_lines.pop_back();
        return std::move(m_lines);
    }

private:
    void newLine()
    {
        m_lines.emplace_back();
        m_x = m_hanging;
        m_fresh = true;
    }
    void place(std::string_view text, double size, SheetWord::Kind kind)
    {
        m_lines.back().words.push_back({.x = m_x, .size = size, .kind = kind, .text = std::string(text)});
        m_lines.back().size = std::max(m_lines.back().size, size);
    }

    double m_width;
    double m_size;
    double m_hanging;
    std::vector<PlacedLine> m_lines;
    double m_x = 0;
    bool m_fresh = true; ///< no word but modifiers on the line: one that is too wide is parted here
};

} // namespace

bool isBold(SheetWord::Kind kind) { return kind == SheetWord::Kind::Macro || kind == SheetWord::Kind::Modifier; }

double sizeOf(SheetWord::Kind kind, double size)
{
    constexpr double smaller = 0.75;
    return kind == SheetWord::Kind::Keys || kind == SheetWord::Kind::Modifier ? size * smaller : size;
}

std::vector<PlacedLine> wrapWords(const std::vector<SheetWord>& words, double width, double size, double hanging)
{
    Wrapping wrapping(width, size, hanging);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool firstKey = isKey(words[i]) && (i == 0 || !isKey(words[i - 1]));
        if (firstKey) wrapping.keepTogether(widthOfKeys(words, i, size));
        wrapping.add(words[i]);
    }
    return wrapping.take();
}

std::string cutTo(const std::string& text, double width, double size, bool bold)
{
    if (textWidth(text, size, bold) <= width) return text;
    return std::string(beginningThatFits(text, width - textWidth("…", size, bold), size, bold)) + "…";
}

} // namespace tarvex
