#pragma once

#include <QIcon>
#include <QString>

class QToolButton;

namespace tarvex {

/// Name of the picture of a toolbar button, by its number; empty for a number without one.
QString toolbarIcon(int number);
/// A field of a colour, as large as the button's icons and sharp on its screen.
QIcon swatch(const QColor& colour, const QToolButton& button);

} // namespace tarvex
