#pragma once

#include <QProxyStyle>

namespace tarvex {

/// White on black, as the appearance with high contrast is.
bool isHighContrast(const QPalette& palette);

/// Fusion with contours that show on dark windows, too: it derives the frames of tick boxes, radio buttons and groups
/// from the window's colour made darker, so on a dark ground nothing of them is left. With high contrast everything
/// that can be used has a frame in the text's colour. What has the keyboard has a frame in the colour of selections.
class ThemeStyle : public QProxyStyle {
    Q_OBJECT
public:
    ThemeStyle();

    /// Whether panes are dark in dark windows (`paneColours`).
    bool darkPanes() const { return m_darkPanes; }
    void setDarkPanes(bool on) { m_darkPanes = on; }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    bool m_darkPanes = false;
};

} // namespace tarvex
