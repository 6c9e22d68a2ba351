#include "documents/text/pane.h"

#include <algorithm>

// Colours, fonts and indents of the characters, and the format of the ones to come.

namespace tarvex {

// ---- which format ---------------------------------------------------------------------------------------------------

FormatId Pane::defaultFormat() const
{
    CharacterFormat format;
    format.fontName = m_font.name;
    format.fontSize = m_font.size;
    format.bold = m_font.bold;
    format.indent = m_indent;
    return m_formats->idOf(format);
}

/// Format of new text that takes the place of a range.
FormatId Pane::formatFor(Range range) const
{
    if (range.begin < range.end) return m_format[range.begin];
    const auto insertionPoint = [&](std::size_t position) { return partsPair(position) ? position - 1 : position; };
    const std::size_t at = insertionPoint(range.begin);
    const bool isCaret = m_selLength == 0 && at == insertionPoint(selection().begin);
    if (m_chosenFormat && isCaret) return *m_chosenFormat;
    if (at > 0 && m_text[at - 1] != '\n') return m_format[at - 1];
    if (at < m_text.size() && m_text[at] != '\r') return m_format[at];
    return at > 0 ? m_format[at - 1] : defaultFormat();
}

FormatId Pane::insertionFormat() const
{
    const std::size_t caret = selection().begin;
    return formatFor({caret, caret});
}

const CharacterFormat& Pane::SelFormat() const { return (*m_formats)[formatFor(selection())]; }

// ---- writing it -----------------------------------------------------------------------------------------------------

/// Maps the formats of a range; the smallest range that holds all changes.
template <typename Map> Pane::Range Pane::repaint(Range range, Map map)
{
    FormatId* formats = m_format.data();
    Range written{range.end, range.end};
    FormatId from{};
    FormatId to{};
    for (std::size_t at = range.begin; at < range.end;) {
        const std::size_t next = stretchEnd(formats, at, range.end);
        if (at == range.begin || formats[at] != from) {
            from = formats[at];
            to = map(from);
        }
        if (to != from) {
            std::fill(formats + at, formats + next, to);
            written = {std::min(written.begin, at), next};
        }
        at = next;
    }
    if (written.begin < written.end) m_snapshots.reformatted(written.begin, written.end, m_text.size());
    return written;
}

void Pane::reportReformatted(Range range) const
{
    if (range.begin == range.end) return;
    reformatted(static_cast<std::int64_t>(range.begin), static_cast<std::int64_t>(range.end - range.begin));
}

template <typename Map> void Pane::writeLook(Map map)
{
    if (m_selLength == 0) {
        m_chosenFormat = map(insertionFormat());
        return;
    }
    reportReformatted(repaint(selection(), map));
    changed();
}

template <typename Write> void Pane::writeFormat(Write write)
{
    writeLook([&](FormatId id) {
        CharacterFormat format = (*m_formats)[id];
        write(format);
        return m_formats->idOf(format);
    });
}

void Pane::setSelColor(Colour colour)
{
    writeLook([&](FormatId id) { return m_formats->withColour(id, colour); });
}

void Pane::setSelFontName(const std::string& name)
{
    writeFormat([&](CharacterFormat& format) { format.fontName = name; });
}

void Pane::setSelFontSize(float points)
{
    writeFormat([&](CharacterFormat& format) { format.fontSize = points; });
}

void Pane::setSelBold(bool bold)
{
    writeFormat([&](CharacterFormat& format) { format.bold = bold; });
}

void Pane::setSelItalic(bool italic)
{
    writeFormat([&](CharacterFormat& format) { format.italic = italic; });
}

void Pane::setSelUnderline(bool underline)
{
    writeFormat([&](CharacterFormat& format) { format.underline = underline; });
}

void Pane::setSelIndent(int twips)
{
    const auto indented = [&](FormatId id) {
        CharacterFormat format = (*m_formats)[id];
        format.indent = twips;
        return m_formats->idOf(format);
    };
    const std::int64_t lastPosition = m_selStart + std::max<std::int64_t>(m_selLength, 1) - 1;
    const std::int64_t nextLine = m_lines.lineOf(lastPosition) + 1;
    const Range lines{static_cast<std::size_t>(m_lines.start(m_lines.lineOf(m_selStart))),
                      nextLine < lineCount() ? static_cast<std::size_t>(m_lines.start(nextLine)) : m_text.size()};
    m_indent = twips;
    const bool caretAlone = m_selLength == 0 && lines.begin == lines.end; // no character of the line to keep it
    if (m_chosenFormat || caretAlone) m_chosenFormat = indented(insertionFormat());
    reportReformatted(repaint(lines, indented));
}

void Pane::setFormats(std::int64_t position, const std::vector<FormatId>& formats)
{
    const std::size_t begin = std::min(static_cast<std::size_t>(position), m_text.size());
    std::size_t end = std::min(begin + formats.size(), m_text.size());
    const auto* wanted = formats.data();
    std::size_t first = begin;
    while (first < end && m_format[first] == wanted[first - begin]) ++first;
    while (end > first && m_format[end - 1] == wanted[end - 1 - begin]) --end;
    if (first == end) return;
    std::copy(wanted + (first - begin), wanted + (end - begin), m_format.data() + first);
    m_snapshots.reformatted(first, end, m_text.size());
    reportReformatted({first, end});
}

void Pane::setFont(const PaneFont& font)
{
    if (font == m_font) return;
    m_font = font;
    if (m_text.empty() && m_chosenFormat) {
        CharacterFormat format = (*m_formats)[*m_chosenFormat];
        format.fontName = font.name;
        format.fontSize = font.size;
        format.bold = font.bold;
        m_chosenFormat = m_formats->idOf(format);
    }
    fontChanged();
}

} // namespace tarvex
