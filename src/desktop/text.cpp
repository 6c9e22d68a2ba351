#include "desktop/text.h"

#include <cmath>

namespace tarvex {

QString toQt(std::string_view utf8) { return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); }

std::string fromQt(const QString& text) { return text.toStdString(); }

QColor toQt(Colour colour) { return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF); }

QString withoutAccessKeys(const QString& text) { return QString(text).replace(u'&', QStringLiteral("&&")); }

int toPixels(float twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }

float toTwips(int pixels) { return static_cast<float>(pixels) * twipsPerPixel; }

} // namespace tarvex
