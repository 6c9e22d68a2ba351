#include "desktop/screen_room.h"

#include <QScreen>
#include <QStyle>

namespace tarvex {

QSize frameSizeOf(const QWidget& window)
{
    const auto pixels = [&window](QStyle::PixelMetric metric) {
        return window.style()->pixelMetric(metric, nullptr, &window);
    };
    const int border = pixels(QStyle::PM_MdiSubWindowFrameWidth);
    return {2 * border, pixels(QStyle::PM_TitleBarHeight) + border};
}

QSize screenRoom(const QWidget& window) { return window.screen()->availableSize() - frameSizeOf(window); }

} // namespace tarvex
