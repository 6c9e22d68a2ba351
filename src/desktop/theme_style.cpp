#include "desktop/theme_style.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <array>
#include <optional>

namespace tarvex {

namespace {

constexpr int darkest = 128; // a window with less lightness is dark

/// Of frames in the text's colour, from 0 to 1.
struct Strength {
    QStyle::PrimitiveElement element;
    qreal onDark;
    qreal highContrast;
};

constexpr std::array strengths{
    Strength{QStyle::PE_IndicatorCheckBox, 0.6, 1}, Strength{QStyle::PE_IndicatorRadioButton, 0.6, 1},
    Strength{QStyle::PE_FrameGroupBox, 0.25, 1},    Strength{QStyle::PE_PanelButtonCommand, 0, 1},
    Strength{QStyle::PE_FrameLineEdit, 0, 1},       Strength{QStyle::PE_Frame, 0, 1},
    Strength{QStyle::PE_FrameMenu, 0, 1},           Strength{QStyle::PE_FrameTabWidget, 0, 1},
};

qreal strengthOf(QStyle::PrimitiveElement element, const QPalette& palette)
{
    const auto* row =
        std::find_if(strengths.begin(), strengths.end(), [=](const Strength& s) { return s.element == element; });
    if (row == strengths.end() || palette.color(QPalette::Window).lightness() >= darkest) return 0;
    return isHighContrast(palette) ? row->highContrast : row->onDark;
}

QPen framePen(qreal strength, const QStyleOption& option, bool isOn = false)
{
    constexpr qreal thick = 3;
    QColor colour = option.palette.color(QPalette::Active, QPalette::WindowText);
    colour.setAlphaF(static_cast<float>(option.state.testFlag(QStyle::State_Enabled) ? strength : strength / 2));
    return {colour, isOn ? thick : 1};
}

/// A button that is down; a thick frame is all that shows it with high contrast.
bool isDown(QStyle::PrimitiveElement element, const QStyleOption& option)
{
    return element == QStyle::PE_PanelButtonCommand && isHighContrast(option.palette) &&
           (option.state.testFlag(QStyle::State_On) || option.state.testFlag(QStyle::State_Sunken));
}

/// Of what has the keyboard.
QPen focusPen(const QStyleOption& option, bool isOn = false)
{
    constexpr qreal thick = 2;
    constexpr qreal thickest = 4;
    return {option.palette.color(QPalette::Active, QPalette::Highlight), isOn ? thickest : thick};
}

/// Along the frame that the base style has drawn; its title stands above a group's.
void drawFrame(QPainter& painter, QStyle::PrimitiveElement element, const QRect& area, int title)
{
    constexpr qreal roundness = 2.5;
    const int top = element == QStyle::PE_FrameGroupBox ? title : 0;
    const qreal inside = painter.pen().widthF() / 2; // the middle of the pixels
    const QRectF edge = QRectF(area.adjusted(0, top, 0, 0)).adjusted(inside, inside, -inside, -inside);
    if (element == QStyle::PE_IndicatorRadioButton) {
        const qreal radius = (area.width() | 1) / 2.0 - 1; // the base style's circle, about the same pixel
        painter.drawEllipse(QPointF(area.center() + QPoint(1, 1)), radius, radius);
    } else if (element == QStyle::PE_FrameGroupBox || element == QStyle::PE_PanelButtonCommand) {
        painter.drawRoundedRect(edge, roundness, roundness);
    } else {
        painter.drawRect(edge);
    }
}

/// Saves the painter's state until it ends.
class Drawing {
public:
    explicit Drawing(QPainter& painter, const QPen& pen) : m_painter(painter)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
    }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;
    ~Drawing() { m_painter.restore(); }

private:
    QPainter& m_painter;
};

void drawBox(QPainter& painter, const QRect& area, const QPen& pen)
{
    const Drawing drawing(painter, pen);
    drawFrame(painter, QStyle::PE_Frame, area, 0);
}

bool hasKeyboard(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Enabled);
}

/// Of the frame that the element gets; none: what the base style draws is enough.
std::optional<QPen> penOf(QStyle::PrimitiveElement element, const QStyleOption& option, const QWidget* widget)
{
    const bool focused = hasKeyboard(option);
    const qreal strength = strengthOf(element, option.palette);
    if (isHighContrast(option.palette)) {
        if (element == QStyle::PE_FrameFocusRect || (focused && strength > 0))
            return focusPen(option, isDown(element, option));
    } else if (focused) {
        if (element == QStyle::PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr)
            return QPen(option.palette.color(QPalette::Highlight));
        // A default button has the base style's outline without the keyboard, too.
        if (element == QStyle::PE_PanelButtonCommand && option.state.testFlag(QStyle::State_KeyboardFocusChange))
            return focusPen(option);
    }
    if (strength == 0) return std::nullopt;
    return framePen(strength, option, isDown(element, option));
}

} // namespace

bool isHighContrast(const QPalette& palette)
{
    return palette.color(QPalette::Active, QPalette::Window) == QColor(Qt::black) &&
           palette.color(QPalette::Active, QPalette::WindowText) == QColor(Qt::white);
}

ThemeStyle::ThemeStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const std::optional<QPen> pen = penOf(element, *option, widget);
    if (!pen) return;
    const Drawing drawing(*painter, *pen);
    constexpr int titleMargin = 3;
    const int indicator = pixelMetric(PM_IndicatorHeight, option, widget);
    drawFrame(*painter, element, option->rect, std::max(indicator, option->fontMetrics.height()) + titleMargin);
}

void ThemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    const bool hasFrame =
        element == CE_TabBarTabShape || element == CE_ProgressBarGroove || element == CE_HeaderSection;
    if (!hasFrame || !isHighContrast(option->palette)) return;
    const bool isFront = element == CE_TabBarTabShape && option->state.testFlag(State_Selected);
    drawBox(*painter, option->rect, framePen(1, *option, isFront));
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!isHighContrast(option->palette)) return;
    switch (control) {
    case CC_ComboBox:
    case CC_SpinBox:
        return drawBox(*painter, option->rect, hasKeyboard(*option) ? focusPen(*option) : framePen(1, *option));
    case CC_ScrollBar:
        return drawBox(*painter, subControlRect(control, option, SC_ScrollBarSlider, widget), framePen(1, *option));
    case CC_Slider:
        return drawBox(*painter, subControlRect(control, option, SC_SliderHandle, widget),
                       hasKeyboard(*option) ? focusPen(*option) : framePen(1, *option));
    default:
        return;
    }
}

} // namespace tarvex
