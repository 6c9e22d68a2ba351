#pragma once

#include <QWidget>

namespace tarvex {

/// What a frame adds to the size of a window. The window manager has the last word, but is asked only when the window
/// is there.
QSize frameSizeOf(const QWidget& window);
/// The largest size that a window can have on its screen with its frame.
QSize screenRoom(const QWidget& window);

} // namespace tarvex
