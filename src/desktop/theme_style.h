#pragma once

#include <QProxyStyle>

namespace tarvex {

/// Fusion with contours that show on dark windows, too: it derives the frames of tick boxes, radio buttons and groups
/// from the window's colour made darker, so on a dark ground nothing of them is left.
class ThemeStyle : public QProxyStyle {
    Q_OBJECT
public:
    ThemeStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace tarvex
