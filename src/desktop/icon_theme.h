#pragma once

#include <QIcon>
#include <QString>

namespace tarvex {

/// The picture resources/icons/NAME.svg in the palette's text colour, sharp at any size. It is drawn when it is first
/// painted, and again when the palette has another colour. An unknown name gives an empty picture.
QIcon themeIcon(const QString& name);

} // namespace tarvex
