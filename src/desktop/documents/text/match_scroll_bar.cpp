#include "desktop/documents/text/match_scroll_bar.h"

#include "desktop/documents/text/mark_colours.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace tarvex {

namespace {

constexpr int delay = 150; // milliseconds
constexpr int markHeight = 2;

} // namespace

MatchScrollBar::MatchScrollBar(std::function<std::vector<float>()> places, QWidget* parent)
    : QScrollBar(Qt::Vertical, parent), m_wanted(std::move(places))
{
    m_later.setSingleShot(true);
    m_later.setInterval(delay);
    connect(&m_later, &QTimer::timeout, this, &MatchScrollBar::showPlaces);
}

void MatchScrollBar::showPlaces()
{
    m_later.stop();
    m_places = m_wanted();
    findRows();
    update();
}

QRect MatchScrollBar::groove() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarGroove, this);
}

/// Thousands of matches fall on a few hundred rows.
void MatchScrollBar::findRows()
{
    const QRect room = groove();
    m_rows.clear();
    for (const float place : m_places) {
        const int row = room.top() + static_cast<int>(place * static_cast<float>(room.height()));
        if (m_rows.empty() || row >= m_rows.back() + markHeight) m_rows.push_back(row);
    }
}

void MatchScrollBar::resizeEvent(QResizeEvent* event)
{
    QScrollBar::resizeEvent(event);
    findRows();
}

void MatchScrollBar::paintEvent(QPaintEvent* event)
{
    QScrollBar::paintEvent(event);
    if (m_rows.empty()) return;
    const QRect room = groove();
    QPainter painter(this);
    const QColor mark = mixed(QColor(markColour::match), Qt::black, 0.15);
    for (const int row : m_rows) painter.fillRect(room.left() + 2, row, room.width() - 4, markHeight, mark);
}

} // namespace tarvex
