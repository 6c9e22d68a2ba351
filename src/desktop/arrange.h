#pragma once

class QWidget;

namespace tarvex {

enum class ArrangeMode { Cascade = 0, TileHorizontally = 1, TileVertically = 2, Icons = 3 };

/// Arranges the tool windows of the frame over it. Minimised windows are left to the desktop, so Icons moves none.
void arrangeWindows(QWidget& frame, ArrangeMode mode);

} // namespace tarvex
