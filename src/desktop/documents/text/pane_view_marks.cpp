#include "desktop/documents/text/mark_colours.h"
#include "desktop/documents/text/match_scroll_bar.h"
#include "desktop/documents/text/pane_view.h"

#include <QPainter>
#include <QTextBlock>

#include <algorithm>

// What a pane shows beside and behind its text: line numbers, the line of the caret, an error, the matches of a search.

namespace tarvex {

void PaneView::showMarks(LineMark& error, MatchMarks& matches)
{
    m_error = &error;
    m_matches = &matches;
    auto* bar = new MatchScrollBar([this] { return matchPlaces(); }, this);
    m_matchBar = bar;
    setVerticalScrollBar(bar);
    m_bindings.follow(error.changed, [this] {
        placeMargin();
        m_margin->update();
        viewport()->update();
    });
    m_bindings.follow(matches.changed, [this] {
        m_matchBar->placesChanged();
        viewport()->update();
    });
    m_bindings.follow(m_pane.edited, [this](const Pane::Edit&) {
        if (!m_matches->positions().empty()) m_matchBar->placesChanged();
    });
}

std::optional<std::int64_t> PaneView::errorLine() const { return m_error != nullptr ? m_error->line() : std::nullopt; }

void PaneView::showLineNumbers(bool on)
{
    m_margin->showNumbers(on);
    placeMargin();
    m_margin->update();
}

void PaneView::showCurrentLine(bool on)
{
    m_showsCurrentLine = on;
    viewport()->update();
    m_margin->update();
}

/// Shown lines move with the margin, so it changes its width only when it has to.
void PaneView::placeMargin()
{
    const int width = m_margin->wantedWidth();
    if (viewportMargins().left() != width) setViewportMargins(width, 0, 0, 0);
    m_margin->setGeometry(contentsRect().left(), contentsRect().top(), width, viewport()->height());
    m_margin->setVisible(width > 0);
}

void PaneView::updateMargin(const QRect& changed, int scrolled)
{
    if (m_margin->isHidden()) return;
    if (scrolled != 0) {
        m_margin->scroll(0, scrolled);
    } else {
        m_margin->update(0, changed.y(), m_margin->width(), changed.height());
    }
}

/// The status bar names the same line: the one in which the selection begins.
int PaneView::currentLine() const { return document()->findBlock(textCursor().selectionStart()).blockNumber(); }

void PaneView::noteCurrentLine()
{
    const int before = std::exchange(m_currentLine, currentLine());
    if (before == m_currentLine) return;
    for (const int line : {before, m_currentLine}) {
        const QTextBlock block = document()->findBlockByNumber(line);
        if (!block.isValid()) continue;
        const QRect place = blockBoundingGeometry(block).translated(contentOffset()).toAlignedRect();
        const QRect row(0, place.top(), viewport()->width(), place.height());
        if (m_showsCurrentLine) viewport()->update(row);
        updateMargin(row, 0);
    }
}

std::vector<ShownLine> PaneView::shownLines(const QRect& area) const
{
    std::vector<ShownLine> lines;
    const int current = currentLine();
    double top = blockBoundingGeometry(firstVisibleBlock()).translated(contentOffset()).top();
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && top <= area.bottom(); block = block.next()) {
        const double bottom = top + blockBoundingRect(block).height();
        const int number = block.blockNumber();
        if (block.isVisible() && bottom >= area.top())
            lines.push_back(
                {number, static_cast<int>(top), static_cast<int>(bottom) - static_cast<int>(top), number == current});
        top = bottom;
    }
    return lines;
}

void PaneView::selectLineAt(int y)
{
    settle();
    QTextCursor cursor = cursorForPosition(QPoint(0, y));
    cursor.movePosition(QTextCursor::StartOfBlock);
    if (!cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor))
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    settle();
}

void PaneView::paintMarks(const QRect& area)
{
    if (!m_mirror.equal()) return;
    const QColor ground = palette().color(QPalette::Base);
    const bool hasMatches = m_matches != nullptr && !m_matches->positions().empty();
    QPainter painter(viewport());
    for (const ShownLine& line : shownLines(area)) {
        const QRect row(0, line.top, viewport()->width(), line.height);
        if (errorLine() == line.number)
            painter.fillRect(row, markColour::errorLine(ground));
        else if (line.isCurrent && m_showsCurrentLine)
            painter.fillRect(row, markColour::currentLine(ground));
        if (hasMatches) paintMatches(painter, line, area);
    }
}

/// Only those in sight: a line may have ten thousand.
void PaneView::paintMatches(QPainter& painter, const ShownLine& shown, const QRect& area)
{
    const QTextBlock block = document()->findBlockByNumber(shown.number);
    const QTextLayout* layout = block.layout();
    if (layout->lineCount() == 0) return;
    const QTextLine text = layout->lineAt(0);
    const double left = contentOffset().x();
    const std::int64_t start = m_pane.lineStart(shown.number);
    const std::int64_t end = start + block.length() - 1;
    const std::int64_t length = m_matches->length();
    const std::int64_t firstShown = start + text.xToCursor(area.left() - left) - length;
    const QColor colour = markColour::matchGround(palette().color(QPalette::Base));
    const std::vector<std::int64_t>& all = m_matches->positions();
    for (auto match = std::ranges::lower_bound(all, std::max(start, firstShown)); match != all.end(); ++match) {
        if (*match >= end) break;
        const double from = left + text.cursorToX(static_cast<int>(*match - start));
        if (from > area.right()) break;
        const double to = left + text.cursorToX(static_cast<int>(std::min(*match + length, end) - start));
        painter.fillRect(QRectF(from, shown.top, to - from, shown.height), colour);
    }
}

std::vector<float> PaneView::matchPlaces() const
{
    const auto lines = static_cast<float>(m_pane.lineCount());
    std::vector<float> places;
    places.reserve(m_matches->positions().size());
    std::int64_t line = 0;
    for (const std::int64_t match : m_matches->positions()) {
        if (line + 1 < m_pane.lineCount() && match >= m_pane.lineStart(line + 1)) line = m_pane.GetLineFromChar(match);
        places.push_back(static_cast<float>(line) / lines);
    }
    return places;
}

QRect PaneView::selectionPlace()
{
    settle();
    const QTextCursor cursor = textCursor();
    QTextCursor from(document());
    from.setPosition(cursor.selectionStart());
    QTextCursor to(document());
    to.setPosition(cursor.selectionEnd());
    const QRect first = cursorRect(from);
    QRect last = cursorRect(to);
    if (from.block() != to.block()) last = QRect(viewport()->rect().right(), last.top(), 1, last.height());
    const QRect place = (first | last) & viewport()->rect();
    return {viewport()->mapToGlobal(place.topLeft()), place.size()};
}

} // namespace tarvex
