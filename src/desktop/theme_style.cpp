#include "desktop/theme_style.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace tarvex {

namespace {

constexpr int darkest = 128; // a window with less lightness is dark

/// Of a frame in the text's colour, from 0 to 1.
constexpr qreal strength(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
        return 0.6;
    case QStyle::PE_FrameGroupBox:
        return 0.25;
    default:
        return 0;
    }
}

QColor frameColour(QStyle::PrimitiveElement element, const QStyleOption& option)
{
    QColor colour = option.palette.color(QPalette::Active, QPalette::WindowText);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    colour.setAlphaF(static_cast<float>(enabled ? strength(element) : strength(element) / 2));
    return colour;
}

/// Along the frame that the base style has drawn; its title stands above a group's.
void drawFrame(QPainter& painter, QStyle::PrimitiveElement element, const QRect& area, int title)
{
    constexpr qreal roundness = 2.5;
    const int top = element == QStyle::PE_FrameGroupBox ? title : 0;
    const QRectF edge = QRectF(area.adjusted(0, top, 0, 0)).adjusted(0.5, 0.5, -0.5, -0.5); // the middle of the pixels
    if (element == QStyle::PE_IndicatorRadioButton) {
        const qreal radius = (area.width() | 1) / 2.0 - 1; // the base style's circle, about the same pixel
        painter.drawEllipse(QPointF(area.center() + QPoint(1, 1)), radius, radius);
    } else if (element == QStyle::PE_FrameGroupBox) {
        painter.drawRoundedRect(edge, roundness, roundness);
    } else {
        painter.drawRect(edge);
    }
}

} // namespace

ThemeStyle::ThemeStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (strength(element) == 0 || option->palette.color(QPalette::Window).lightness() >= darkest) return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(frameColour(element, *option));
    painter->setBrush(Qt::NoBrush);
    constexpr int titleMargin = 3;
    const int indicator = pixelMetric(PM_IndicatorHeight, option, widget);
    drawFrame(*painter, element, option->rect, std::max(indicator, option->fontMetrics.height()) + titleMargin);
    painter->restore();
}

} // namespace tarvex
