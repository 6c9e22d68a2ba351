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
/// The same with an access key before the first letter that is `key`, in its case.
QString withAccessKey(const QString& text, char key);
/// A caption where "&" marks the access key once; further ones, as a file name in it may hold, stand for themselves.
QString withOneAccessKey(const QString& caption);
/// A text that isn't markup as a tool tip that breaks into lines, however long its words are. Empty for an empty text.
QString wrappingTip(const QString& text);
/// The text with places where lines may break in words that are too long for a line.
QString withBreaksInLongWords(QString text);
/// Pixels of a length in twips, and back.
int toPixels(float twips);
float toTwips(int pixels);

} // namespace tarvex
