#include "desktop/documents/text/pane_formats.h"

#include "desktop/text.h"

#include <QAbstractTextDocumentLayout>
#include <QSignalBlocker>
#include <QTextDocument>

#include <algorithm>

namespace tarvex {

namespace {

/// Layouts notify the document of their change; this lets it lay them out before it reports anything else. Its own
/// report is held back: it would repaint everything in sight, because it counts the characters twice.
void relayout(const QTextBlock& block)
{
    auto* document = const_cast<QTextDocument*>(block.document()); // NOLINT: a block only hands out a constant one
    const QSignalBlocker quiet(document->documentLayout());
    document->markContentsDirty(block.position(), block.length());
}

} // namespace

void PaneFormats::setZoom(double zoom)
{
    m_zoom = zoom;
    forget();
}

bool PaneFormats::setColours(const PaneColours& colours)
{
    if (m_colours == colours) return false;
    m_colours = colours;
    forget();
    return true;
}

const QTextCharFormat& PaneFormats::look(FormatId id)
{
    if (m_known.size() <= id) m_known.resize(std::max<std::size_t>(id + 1U, m_pane.formats()->size()));
    std::optional<QTextCharFormat>& known = m_known[id];
    if (!known) known = makeLook((*m_pane.formats())[id]);
    return *known;
}

/// Only what differs from the pane's own look.
QTextCharFormat PaneFormats::makeLook(const CharacterFormat& format) const
{
    const PaneFont& font = m_pane.Font();
    QTextCharFormat look;
    if (format.colour != 0) look.setForeground(m_colours.text(format.colour));
    if (format.fontName != font.name) look.setFontFamilies({toQt(format.fontName)});
    if (format.fontSize != font.size && format.fontSize > 0) look.setFontPointSize(format.fontSize * m_zoom);
    if (format.bold != font.bold) look.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    if (format.italic) look.setFontItalic(true);
    if (format.underline) look.setFontUnderline(true);
    return look;
}

QList<QTextLayout::FormatRange> PaneFormats::ranges(const QTextBlock& block)
{
    QList<QTextLayout::FormatRange> result;
    const std::int64_t line = block.blockNumber();
    if (line >= m_pane.lineCount()) return result;
    auto position = static_cast<std::size_t>(m_pane.lineStart(line));
    const std::size_t end = std::min(position + static_cast<std::size_t>(block.length() - 1), m_pane.TextLength());
    int column = 0;
    while (position < end) {
        const FormatId id = m_pane.formatIdAt(position);
        std::size_t next = position + 1;
        while (next < end && m_pane.formatIdAt(next) == id) ++next;
        const int length = static_cast<int>(next - position);
        const QTextCharFormat& format = look(id);
        if (!result.isEmpty() && result.last().start + result.last().length == column &&
            result.last().format == format) {
            result.last().length += length;
        } else if (format.propertyCount() != 0) {
            result.append({column, length, format});
        }
        column += length;
        position = next;
    }
    return result;
}

std::vector<PaneFormats::Changed> PaneFormats::format(QTextBlock first, const QTextBlock& last)
{
    std::vector<Changed> changed;
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        if (block.userState() == stale && block.layout()->preeditAreaText().isEmpty()) {
            block.setUserState(formatted);
            const QList<QTextLayout::FormatRange> wanted = ranges(block);
            if (wanted != block.layout()->formats()) {
                changed.push_back({block, block.layout()->boundingRect().height()});
                block.layout()->setFormats(wanted);
                relayout(block);
            }
        }
        if (block == last) break;
    }
    return changed;
}

void PaneFormats::formatComposing(QTextBlock block)
{
    markStale(block);
    QTextLayout* layout = block.layout();
    const int length = static_cast<int>(layout->preeditAreaText().size());
    if (length == 0) return;
    const int place = layout->preeditAreaPosition();
    QList<QTextLayout::FormatRange> wanted;
    for (const QTextLayout::FormatRange& range : ranges(block)) {
        const int end = range.start + range.length;
        const int before = std::clamp(place - range.start, 0, range.length);
        if (before > 0) wanted.append({range.start, before, range.format});
        if (end > place) wanted.append({range.start + before + length, range.length - before, range.format});
    }
    wanted += layout->formats(); // of the composed text, from the input method
    layout->setFormats(wanted);
    relayout(block);
}

} // namespace tarvex
