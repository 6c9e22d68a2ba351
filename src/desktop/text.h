#pragma once

#include "platform/controls.h"

#include <QColor>
#include <QString>

#include <string>
#include <string_view>

// The logic's values as Qt has them, and back.

namespace tarvex {

QString toQt(std::string_view utf8);
std::string fromQt(const QString& text);
QColor toQt(Colour colour);
/// A text that isn't a caption, for a place where Qt takes "&" for an access key.
QString withoutAccessKeys(const QString& text);
/// Pixels of a length in twips, and back.
int toPixels(float twips);
float toTwips(int pixels);

} // namespace tarvex
