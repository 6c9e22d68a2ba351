#include "desktop/documents/window/colour_swatch.h"

#include <QPainter>
#include <QToolButton>

namespace tarvex {

QIcon swatch(const QColor& colour, const QToolButton& button)
{
    const qreal scale = button.devicePixelRatioF();
    const int size = button.iconSize().height();
    QPixmap picture(QSize(size, size) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(button.palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(2.5, 2.5, size - 5, size - 5), 2, 2);
    painter.end();
    return {picture};
}

} // namespace tarvex
