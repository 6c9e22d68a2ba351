#include "desktop/minimise.h"

namespace tarvex {

void minimise(QWidget& window, const QString& platform)
{
    if (platform.startsWith(QLatin1String("wayland"))) {
        window.setVisible(true);
    } else {
        window.showMinimized();
    }
}

} // namespace tarvex
