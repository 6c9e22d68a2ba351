#pragma once

#include <QIcon>

class QToolButton;

namespace tarvex {

/// A field of a colour, as large as the button's icons and sharp on its screen.
QIcon swatch(const QColor& colour, const QToolButton& button);

} // namespace tarvex
