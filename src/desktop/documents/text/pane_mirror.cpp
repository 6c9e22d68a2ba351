#include "desktop/documents/text/pane_mirror.h"

#include "desktop/documents/text/pane_text.h"

#include <QScopeGuard>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace tarvex {

namespace {

int commonStart(const QString& a, const QString& b)
{
    return static_cast<int>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
}

/// At most `most` characters.
int commonEnd(const QString& a, const QString& b, int most)
{
    const qsizetype bound = std::min({static_cast<qsizetype>(most), a.size(), b.size()});
    int same = 0;
    while (same < bound && a[a.size() - 1 - same] == b[b.size() - 1 - same]) ++same;
    return same;
}

} // namespace

PaneMirror::PaneMirror(Pane& pane, QTextDocument& document) : m_pane(pane), m_document(document), m_formats(pane)
{
    document.setUndoRedoEnabled(false);
    connect(&document, &QTextDocument::contentsChange, this, &PaneMirror::onDocumentChanged);
    m_connections.push_back(pane.edited.connect([this](const Pane::Edit& edit) { onPaneEdited(edit); }));
    m_connections.push_back(pane.reformatted.connect(
        [this](std::int64_t position, std::int64_t length) { onPaneReformatted(position, length); }));
    if (paneLength() > 0) m_behind = Common{};
}

void PaneMirror::narrow(std::optional<Common>& common, Common by)
{
    if (!common) {
        common = by;
    } else {
        common->before = std::min(common->before, by.before);
        common->after = std::min(common->after, by.after);
    }
}

// ---- from the document to the pane ----------------------------------------------------------------------------------

void PaneMirror::onDocumentChanged(int position, int removed, int added)
{
    if (m_writing || (removed == 0 && added == 0)) return;
    // Qt counts the end of the last block, which isn't text, when it is part of what changed.
    narrow(m_typed, {position, std::max(0, documentLength() - position - added)});
    emit waiting();
}

void PaneMirror::deliver(int caret)
{
    if (!m_typed) return;
    const Common typed = *std::exchange(m_typed, std::nullopt);
    if (m_behind) { // the program wrote in the same moment; its text holds
        m_behind = Common{};
        return;
    }
    markStale(static_cast<int>(typed.before), documentLength() - static_cast<int>(typed.after));
    const Stretch stretch = typedStretch(typed, caret);
    const QString written = documentStretch(stretch.from, stretch.to);
    const PaneText text = paneText(written);
    const std::int64_t after = paneLength() - stretch.end;
    m_echo = Pane::Edit{stretch.begin, stretch.end - stretch.begin, static_cast<std::int64_t>(text.bytes.size())};
    const auto refused = qScopeGuard([this, &stretch, after] {
        if (!m_echo) return;
        m_echo.reset();
        narrow(m_behind, {stretch.begin, after});
        emit waiting();
    });
    if (!text.exact) narrow(m_behind, {stretch.begin, after});
    m_pane.userEdit(stretch.begin, stretch.end - stretch.begin, text.bytes);
    if (!text.exact) emit charactersLost(static_cast<int>(std::ranges::count(text.bytes, '?') - written.count(u'?')));
}

/// The part from `from` to `to` of the document, and the part of the pane that it replaces.
PaneMirror::Stretch PaneMirror::typedBetween(int from, int to) const
{
    const int linesAfter = m_document.blockCount() - 1 - m_document.findBlock(to).blockNumber();
    const std::int64_t begin = panePosition(from);
    const std::int64_t end = paneLength() - (documentLength() - to + linesAfter);
    return {.begin = begin, .end = std::max(begin, end), .from = from, .to = to};
}

/// The part that differs. Qt may report more than what changed: the whole line that a composed text went into. When
/// nothing differs, it is what the user replaced by the same text: from the old selection to where typing left the
/// caret; empty when text is only being composed.
PaneMirror::Stretch PaneMirror::typedStretch(Common typed, int caret) const
{
    const int from = static_cast<int>(std::min<std::int64_t>(typed.before, documentLength()));
    const Stretch stretch = typedBetween(from, std::max(from, documentLength() - static_cast<int>(typed.after)));
    if (stretch.begin == stretch.end || stretch.from == stretch.to) return stretch;
    const QString old = paneStretch(stretch.begin, stretch.end);
    const QString now = documentStretch(stretch.from, stretch.to);
    // Typed text ends at the caret, even between characters equal to it.
    const int most = caret >= stretch.from && caret <= stretch.to ? stretch.to - caret : 0;
    const int after = commonEnd(old, now, most);
    const int before = commonStart(old.chopped(after), now.chopped(after));
    if (old != now) return typedBetween(stretch.from + before, stretch.to - after);
    const int selected = documentPosition(m_pane.SelStart());
    return typedBetween(selected, std::max(selected, caret));
}

// ---- from the pane to the document ----------------------------------------------------------------------------------

void PaneMirror::onPaneEdited(const Pane::Edit& edit)
{
    const Common left{edit.position, paneLength() - edit.position - edit.inserted};
    if (m_unformatted) narrow(m_unformatted, left);
    const auto expected = std::exchange(m_echo, std::nullopt);
    const bool echo = expected && expected->position == edit.position && expected->removed == edit.removed &&
                      expected->inserted == edit.inserted;
    if (echo) {
        if (m_behind) emit waiting();
        return;
    }
    narrow(m_behind, left);
    if (expected) {
        const std::int64_t oldLength = paneLength() - edit.inserted + edit.removed;
        narrow(m_behind, {expected->position, oldLength - expected->position - expected->removed});
    }
    emit waiting();
}

void PaneMirror::onPaneReformatted(std::int64_t position, std::int64_t length)
{
    narrow(m_unformatted, {position, paneLength() - position - length});
    emit waiting();
}

std::optional<PaneMirror::Rewritten> PaneMirror::update()
{
    if (m_typed || m_writing || !behind()) return std::nullopt;
    std::optional<Rewritten> rewritten;
    if (const auto common = std::exchange(m_behind, std::nullopt)) rewritten = rewrite(stretchBetween(*common));
    markUnformatted();
    return rewritten;
}

PaneMirror::Stretch PaneMirror::stretchBetween(Common common) const
{
    Stretch stretch;
    stretch.begin = std::clamp<std::int64_t>(common.before, 0, paneLength());
    stretch.end = std::max(stretch.begin, paneLength() - std::max<std::int64_t>(0, common.after));
    if (partsPair(stretch.begin)) --stretch.begin;
    if (partsPair(stretch.end)) ++stretch.end;
    stretch.from = documentPosition(stretch.begin);
    const std::int64_t linesAfter = m_pane.lineCount() - 1 - m_pane.GetLineFromChar(stretch.end);
    stretch.to = documentLength() - static_cast<int>(paneLength() - stretch.end - linesAfter);
    if (stretch.to < stretch.from) stretch = {0, paneLength(), 0, documentLength()};
    return stretch;
}

std::optional<PaneMirror::Rewritten> PaneMirror::rewrite(const Stretch& stretch)
{
    const QString wanted = paneStretch(stretch.begin, stretch.end);
    const QString present = documentStretch(stretch.from, stretch.to);
    markStale(stretch.from, stretch.to);
    if (wanted == present) return std::nullopt;
    const int before = commonStart(present, wanted);
    const int after = commonEnd(present, wanted, static_cast<int>(std::min(present.size(), wanted.size())) - before);
    return replace(stretch.from + before, stretch.to - after, wanted.mid(before, wanted.size() - before - after));
}

PaneMirror::Rewritten PaneMirror::replace(int from, int to, const QString& text)
{
    Rewritten rewritten{m_document.findBlock(from).blockNumber(), m_document.findBlock(to).blockNumber(), 0};
    const int blocks = m_document.blockCount();
    m_writing = true;
    QTextCursor cursor(&m_document);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    cursor.insertText(text);
    m_writing = false;
    rewritten.added = m_document.blockCount() - blocks;
    markStale(from, from + static_cast<int>(text.size()));
    return rewritten;
}

void PaneMirror::markUnformatted()
{
    if (!m_unformatted) return;
    const std::int64_t begin = std::min(m_unformatted->before, paneLength());
    const std::int64_t end = std::max(begin, paneLength() - std::max<std::int64_t>(0, m_unformatted->after));
    m_unformatted.reset();
    markStale(documentPosition(begin), documentPosition(end));
}

void PaneMirror::markStale(int from, int to)
{
    for (QTextBlock block = m_document.findBlock(from); block.isValid() && block.position() <= to;
         block = block.next()) {
        PaneFormats::markStale(block);
    }
}

void PaneMirror::markAllStale() { markStale(0, documentLength()); }

QString PaneMirror::paneStretch(std::int64_t begin, std::int64_t end) const
{
    const std::string_view bytes = m_pane.Text();
    return documentText(bytes.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)));
}

/// Read from the blocks: a cursor would lay the line out once more, which the document keeps until the line changes.
QString PaneMirror::documentStretch(int from, int to) const
{
    QString text;
    for (QTextBlock block = m_document.findBlock(from); from < to && block.isValid(); block = block.next()) {
        const QString line = block.text() + QChar(QChar::ParagraphSeparator);
        text += QStringView(line).mid(from - block.position(), to - from);
        from = block.position() + block.length();
    }
    return text;
}

// ---- positions ------------------------------------------------------------------------------------------------------

int PaneMirror::documentPosition(std::int64_t panePosition) const
{
    const std::int64_t position = std::clamp<std::int64_t>(panePosition, 0, paneLength());
    return static_cast<int>(position - m_pane.GetLineFromChar(position) - (partsPair(position) ? 1 : 0));
}

bool PaneMirror::partsPair(std::int64_t position) const
{
    if (position <= 0 || position >= paneLength()) return false;
    const auto index = static_cast<std::size_t>(position);
    return m_pane.Text()[index] == '\n' && m_pane.Text()[index - 1] == '\r';
}

std::int64_t PaneMirror::panePosition(int documentPosition) const
{
    return documentPosition + m_document.findBlock(documentPosition).blockNumber();
}

} // namespace tarvex
