#include "desktop/shell/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace tarvex {

void ElidedLabel::setSamples(const QString& usual, const QString& longest)
{
    const auto widthOf = [this](const QString& sample) {
        const QMargins margins = contentsMargins();
        return fontMetrics().horizontalAdvance(sample) + margins.left() + margins.right();
    };
    m_narrowest = widthOf(usual);
    m_widest = widthOf(longest);
    updateGeometry();
}

QSize ElidedLabel::minimumSizeHint() const { return {m_narrowest, QLabel::minimumSizeHint().height()}; }

QSize ElidedLabel::sizeHint() const
{
    const QSize whole = QLabel::sizeHint();
    return {std::clamp(whole.width(), m_narrowest, m_widest), whole.height()};
}

bool ElidedLabel::fits() const { return fontMetrics().horizontalAdvance(text()) <= contentsRect().width(); }

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && !fits()) {
        QString tip = text().toHtmlEscaped();
        if (!toolTip().isEmpty()) tip = QStringLiteral("<b>%1</b><br>%2").arg(tip, toolTip().toHtmlEscaped());
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace tarvex
