#include "desktop/documents/files/difference_pane.h"

#include "desktop/mixed.h"

#include <QFontDatabase>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace tarvex {

namespace {

constexpr QRgb amber = 0xFFFFB300;
constexpr int tabColumns = 8;
constexpr int linesAbove = 3;

} // namespace

DifferencePane::DifferencePane(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(NoWrap);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setTabStopDistance(fontMetrics().horizontalAdvance(u' ') * tabColumns);
}

void DifferencePane::setRows(const std::vector<Row>& rows)
{
    m_rows = rows;
    QStringList lines;
    for (const Row& row : rows) lines.append(row.text);
    setPlainText(lines.join(u'\n'));
}

void DifferencePane::showRows(int first, int last)
{
    m_first = first;
    m_last = last;
    const QTextBlock block = document()->findBlockByNumber(first);
    if (block.isValid()) setTextCursor(QTextCursor(block));
    verticalScrollBar()->setValue(first - linesAbove);
    viewport()->update();
}

QColor DifferencePane::groundOf(const Row& row, bool isShown) const
{
    const QColor ground = palette().color(QPalette::Base);
    if (row.isGap) return mixed(ground, palette().color(QPalette::Text), isShown ? 0.2 : 0.1);
    return mixed(ground, QColor(amber), isShown ? 0.42 : 0.2);
}

/// The marks lie behind the text.
void DifferencePane::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(viewport());
        for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
            const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
            if (place.top() > event->rect().bottom()) break;
            const auto number = static_cast<std::size_t>(block.blockNumber());
            if (number >= m_rows.size() || !m_rows[number].isMarked) continue;
            const bool isShown = block.blockNumber() >= m_first && block.blockNumber() < m_last;
            painter.fillRect(QRectF(0, place.top(), viewport()->width(), place.height()),
                             groundOf(m_rows[number], isShown));
        }
    }
    QPlainTextEdit::paintEvent(event);
}

void DifferencePane::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) viewport()->update();
}

} // namespace tarvex
