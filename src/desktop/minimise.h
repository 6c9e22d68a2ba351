#pragma once

#include <QGuiApplication>
#include <QString>
#include <QWidget>

namespace tarvex {

/// Minimises a window, where the program can bring it back. Under Wayland only the user can: there it is shown, or
/// stays as it is.
void minimise(QWidget& window, const QString& platform = QGuiApplication::platformName());

} // namespace tarvex
