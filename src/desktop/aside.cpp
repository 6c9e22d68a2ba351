#include "desktop/aside.h"

#include <algorithm>

namespace tarvex {

QPoint asideOf(const QRect& window, const QRect& place, const QRect& room)
{
    if (!window.intersects(place)) return window.topLeft();
    const auto inRoom = [](int wanted, int from, int length, int size) {
        return std::clamp(wanted, from, std::max(from, from + length - size));
    };
    const int left = inRoom(window.left(), room.left(), room.width(), window.width());
    const int top = inRoom(window.top(), room.top(), room.height(), window.height());
    const QPoint corners[] = {
        {left, place.bottom() + 1},            // below
        {left, place.top() - window.height()}, // above
        {place.right() + 1, top},              // to the right
        {place.left() - window.width(), top},  // to the left
    };
    QPoint nearest = window.topLeft();
    int least = -1;
    for (const QPoint& corner : corners) {
        if (!room.contains(QRect(corner, window.size()))) continue;
        const int way = (corner - window.topLeft()).manhattanLength();
        if (least >= 0 && way >= least) continue;
        least = way;
        nearest = corner;
    }
    return nearest;
}

} // namespace tarvex
