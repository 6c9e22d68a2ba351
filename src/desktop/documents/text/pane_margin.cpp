#include "desktop/documents/text/pane_margin.h"

#include "desktop/documents/text/mark_colours.h"
#include "desktop/readable.h"
#include "shell/dark_colours.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace tarvex {

namespace {

constexpr int beside = 5; // pixels on both sides of the numbers
constexpr int fewestDigits = 3;

int digitsOf(int number) { return static_cast<int>(QString::number(number).size()); }

/// A red flag behind the number, whose tip points at the line.
void paintErrorMark(QPainter& painter, const QRect& place)
{
    const int tip = std::min(place.width(), place.height()) / 3;
    QPainterPath flag(place.topLeft());
    flag.lineTo(place.right() + 1 - tip, place.top());
    flag.lineTo(place.right() + 1, place.top() + place.height() / 2.0);
    flag.lineTo(place.right() + 1 - tip, place.bottom() + 1);
    flag.lineTo(place.left(), place.bottom() + 1);
    flag.closeSubpath();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(flag, QColor(markColour::error));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

/// A ground between light and dark leaves little contrast: there the strip gives the numbers more of it.
MarginColours marginColours(const QColor& ground)
{
    constexpr double ample = 7;
    constexpr double tint = 0.06;
    const bool dark = isDark(toColour(ground));
    const QColor ink = dark ? Qt::white : Qt::black;
    QColor strip = mixed(ground, ink, tint);
    if (contrastOf(toColour(ink), toColour(strip)) < ample) strip = mixed(ground, dark ? Qt::black : Qt::white, tint);
    return {strip, readableMix(strip, ink, 0.55), mixed(strip, ink, 0.95)};
}

PaneMargin::PaneMargin(QPlainTextEdit& view, MarginLines& lines) : QWidget(&view), m_view(view), m_lines(lines)
{
    setObjectName(QStringLiteral("Margin"));
    setAccessibleName(QStringLiteral("Line numbers"));
    setCursor(Qt::ArrowCursor);
    hide();
}

void PaneMargin::showNumbers(bool on) { m_numbers = on; }

int PaneMargin::wantedWidth() const
{
    if (!m_numbers && !m_lines.errorLine()) return 0;
    const QFontMetrics metrics(m_view.font());
    const int digits = m_numbers ? std::max(fewestDigits, digitsOf(m_view.blockCount())) : 1;
    return metrics.horizontalAdvance(u'0') * digits + 2 * beside;
}

void PaneMargin::paintEvent(QPaintEvent* event)
{
    const MarginColours shown = marginColours(m_view.palette().color(QPalette::Base));
    QPainter painter(this);
    painter.fillRect(event->rect(), shown.ground);
    painter.setFont(m_view.font());
    for (const ShownLine& line : m_lines.shownLines(event->rect())) {
        const QRect place(0, line.top, width(), line.height);
        const bool isError = m_lines.errorLine() == line.number;
        if (isError) paintErrorMark(painter, place);
        painter.setPen(isError ? QColor(Qt::white) : line.isCurrent ? shown.current : shown.number);
        const QString text = m_numbers ? QString::number(line.number + 1) : isError ? QStringLiteral("!") : QString();
        painter.drawText(place.adjusted(beside, 0, -beside, 0), Qt::AlignRight | Qt::AlignTop, text);
    }
}

bool PaneMargin::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    const auto lines = m_lines.shownLines(QRect(0, help.pos().y(), 1, 1));
    const bool overError = !lines.empty() && m_lines.errorLine() == lines.front().number;
    QToolTip::showText(help.globalPos(),
                       overError ? QStringLiteral("The last download found an error in this line") : QString(), this);
    return true;
}

void PaneMargin::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    m_lines.selectLineAt(static_cast<int>(event->position().y()));
    m_view.setFocus(Qt::MouseFocusReason);
}

void PaneMargin::wheelEvent(QWheelEvent* event) { QApplication::sendEvent(m_view.viewport(), event); }

} // namespace tarvex
