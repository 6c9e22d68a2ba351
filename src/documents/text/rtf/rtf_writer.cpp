#include "documents/text/rtf/rtf.h"
#include "documents/text/rtf/rtf_marks.h"

#include <array>
#include <bit>
#include <cmath>
#include <unordered_map>

namespace tarvex {
namespace {

constexpr std::string_view hexDigits = "0123456789abcdef";

bool isPlain(char c) { return c >= ' ' && c < '\x7f' && c != '\\' && c != '{' && c != '}'; }

void appendByte(std::string& rtf, char byte)
{
    const auto number = static_cast<unsigned char>(byte);
    rtf += {'\\', '\'', hexDigits[number >> 4U], hexDigits[number & 15U]};
}

/// Numbers of the fonts or colours in the order in which they are met.
template <typename Key> class Numbers {
public:
    explicit Numbers(int first) : m_next(first) {}
    /// The number of `key`, and whether it is new.
    std::pair<int, bool> of(const Key& key)
    {
        const auto [entry, isNew] = m_numbers.emplace(key, m_next);
        if (isNew) ++m_next;
        return {entry->second, isNew};
    }

private:
    std::unordered_map<Key, int> m_numbers;
    int m_next;
};

class RtfWriter {
public:
    explicit RtfWriter(const RichText& text) : m_text(text.text()), m_runs(text.runs()), m_formats(text.formats())
    {
        if (m_formats) m_looks.resize(m_formats->size());
        for (const FormatRun& run : m_runs) collect(run.format);
        if (m_runs.empty()) fontNumber(CharacterFormat{}.fontName);
    }

    std::string write()
    {
        m_rtf.reserve(m_text.size() + 10 * m_runs.size() + 200);
        m_rtf += "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl" + m_fontTable + "}\r\n{\\colortbl ;" + m_colourTable +
                 "}\r\n\\pard\\plain\\uc1"; // the look of the box that it is pasted into ends here
        m_afterWord = true;
        std::size_t at = 0;
        for (std::size_t i = 0; i < m_runs.size(); ++i) {
            format(m_runs[i].format);
            characters(at, at + m_runs[i].length);
            at += m_runs[i].length;
        }
        m_rtf += "\\par\r\n}\r\n"; // ends the last line, as word processors have it; the reader takes it back
        return std::move(m_rtf);
    }

private:
    /// What the file says of a format.
    struct Look {
        const CharacterFormat* format = nullptr;
        int font = 0;
        int colour = 0;
    };

    void collect(FormatId id)
    {
        Look& look = m_looks[id];
        if (look.format) return;
        look.format = &(*m_formats)[id];
        look.font = fontNumber(look.format->fontName);
        look.colour = colourNumber(look.format->colour & 0xFFFFFF);
    }

    int fontNumber(const std::string& name)
    {
        const auto [number, isNew] = m_fonts.of(name);
        if (!isNew) return number;
        m_fontTable += "{\\f" + std::to_string(number) + "\\fnil ";
        for (const char c : name) {
            if (isPlain(c) && c != ';') {
                m_fontTable += c;
            } else {
                appendByte(m_fontTable, c);
            }
        }
        m_fontTable += ";}";
        return number;
    }

    int colourNumber(Colour colour)
    {
        if (colour == 0) return 0; // the window's own text colour
        const auto [number, isNew] = m_colours.of(colour);
        if (!isNew) return number;
        m_colourTable += "\\red" + std::to_string(colour & 255) + "\\green" + std::to_string(colour >> 8 & 255) +
                         "\\blue" + std::to_string(colour >> 16 & 255) + ";";
        return number;
    }

    void word(std::string_view name, int value)
    {
        m_rtf += '\\';
        m_rtf += name;
        m_rtf += std::to_string(value);
        m_afterWord = true;
    }

    void toggle(std::string_view name, bool on, bool was)
    {
        if (on == was) return;
        m_rtf += '\\';
        m_rtf += name;
        if (!on) m_rtf += '0';
        m_afterWord = true;
    }

    void mark(std::string_view name, int value)
    {
        m_rtf += "{\\*";
        word(name, value);
        m_rtf += '}';
        m_afterWord = false;
    }

    void format(FormatId id)
    {
        static const CharacterFormat plain{0, {}, -1, false, false, false, 0};
        const Look& look = m_looks[id];
        const CharacterFormat& now = *look.format;
        const CharacterFormat& was = m_last.format ? *m_last.format : plain;
        if (now.indent != was.indent) word("li", now.indent);
        if (!m_last.format || look.font != m_last.font) word("f", look.font);
        if (!m_last.format || now.fontSize != was.fontSize) size(now.fontSize);
        toggle("b", now.bold, was.bold);
        toggle("i", now.italic, was.italic);
        toggle("ul", now.underline, was.underline);
        if (now.colour != was.colour) colour(look);
        m_last = look;
    }

    void size(float points)
    {
        constexpr float most = 32767;
        const float halfPoints = points * 2;
        const float whole = std::fmin(std::fmax(std::round(halfPoints), 1), most);
        word("fs", static_cast<int>(whole));
        if (whole != halfPoints) mark(rtfMark::size, std::bit_cast<std::int32_t>(points));
    }

    void colour(const Look& look)
    {
        word("cf", look.colour);
        if ((look.format->colour & 0xFFFFFF) != look.format->colour) mark(rtfMark::colour, look.format->colour);
    }

    void characters(std::size_t at, std::size_t end)
    {
        while (at < end) {
            std::size_t next = at;
            while (next < end && isPlain(m_text[next])) ++next;
            if (next == at) {
                special(at++, end);
                continue;
            }
            if (m_afterWord) m_rtf += ' ';
            m_afterWord = false;
            m_rtf.append(m_text, at, next - at);
            at = next;
        }
    }

    void special(std::size_t at, std::size_t end)
    {
        const char c = m_text[at];
        const bool beginsPair = c == '\r' && at + 1 < m_text.size() && m_text[at + 1] == '\n';
        if (beginsPair && at + 1 < end) return; // its LF writes both
        if (beginsPair) return mark(rtfMark::cr, 1);
        m_afterWord = c == '\t';
        if (c == '\r' || c == '\n') {
            m_rtf += "\\par\r\n";
        } else if (c == '\t') {
            m_rtf += "\\tab";
        } else if (c == '\\' || c == '{' || c == '}') {
            m_rtf += {'\\', c};
        } else {
            appendByte(m_rtf, c);
        }
    }

    std::string m_text;
    std::vector<FormatRun> m_runs;
    std::shared_ptr<FormatTable> m_formats;
    std::vector<Look> m_looks; ///< by number of the format
    Numbers<std::string> m_fonts{0};
    Numbers<Colour> m_colours{1};
    std::string m_fontTable;
    std::string m_colourTable;
    std::string m_rtf;
    Look m_last;
    bool m_afterWord = false; ///< a word was written last, which a character mustn't lengthen
};

} // namespace

std::string writeRtf(const RichText& text) { return RtfWriter(text).write(); }

} // namespace tarvex
