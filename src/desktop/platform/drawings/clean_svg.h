#pragma once

#include <QByteArray>

namespace tarvex {

/// The drawing without anything that Qt would fetch from elsewhere: style sheets, entities, and references that lead
/// out of the document. Pictures that it brings along stay if they are of pixels; a drawing within the drawing could
/// have references of its own. Empty when the document is malformed or nested too deeply, or when its elements that
/// stand for others would be drawn more than 100,000 times.
QByteArray withoutOutsideReferences(const QByteArray& svg);

} // namespace tarvex
