#include "desktop/arrange.h"

#include "desktop/tool_form_window.h"

#include <QList>
#include <QScreen>

namespace tarvex {

namespace {

constexpr int cascadeStep = 28;

/// Windows that stay on top aren't arranged.
QList<QWidget*> toolWindowsOf(QWidget& frame)
{
    QList<QWidget*> windows;
    for (QWidget* window : frame.findChildren<ToolFormWindow*>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool staysOnTop = (window->windowFlags() & Qt::WindowStaysOnTopHint) != 0;
        if (window->isVisible() && !window->isMinimized() && !staysOnTop) windows.append(window);
    }
    return windows;
}

/// Windows of the system have a border around what their size says.
void placeAt(QWidget& window, const QRect& place)
{
    const QSize border = window.frameGeometry().size() - window.size();
    window.showNormal();
    window.resize((place.size() - border).expandedTo(window.minimumSizeHint()));
    window.move(place.topLeft());
}

} // namespace

void arrangeWindows(QWidget& frame, ArrangeMode mode)
{
    const QList<QWidget*> windows = toolWindowsOf(frame);
    if (windows.isEmpty() || mode == ArrangeMode::Icons) return;
    const QRect room = frame.frameGeometry() & frame.screen()->availableGeometry();
    const int count = static_cast<int>(windows.size());
    for (int i = 0; i < count; ++i) {
        QRect place = room;
        if (mode == ArrangeMode::Cascade) {
            place.setSize(room.size() * 2 / 3);
            place.translate(i * cascadeStep, i * cascadeStep);
        } else if (mode == ArrangeMode::TileHorizontally) {
            place.setTop(room.top() + room.height() * i / count);
            place.setHeight(room.height() / count);
        } else {
            place.setLeft(room.left() + room.width() * i / count);
            place.setWidth(room.width() / count);
        }
        placeAt(*windows[i], place);
        if (mode == ArrangeMode::Cascade) windows[i]->raise();
    }
}

} // namespace tarvex
