#pragma once

#include <QPoint>
#include <QRect>

namespace tarvex {

/// Where a window goes that covers a place which the user is to see: the nearest corner of its own from which it
/// doesn't, inside of `room`. Its present corner when it covers nothing of the place, or when there is no such corner.
QPoint asideOf(const QRect& window, const QRect& place, const QRect& room);

} // namespace tarvex
