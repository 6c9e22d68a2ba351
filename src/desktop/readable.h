#pragma once

#include "platform/controls.h"

#include <QColor>

namespace tarvex {

/// What text of any size needs to be read, as the Web Content Accessibility Guidelines have it.
inline constexpr double readableContrast = 4.5;

Colour toColour(const QColor& colour);
/// `share` of an ink, from 0 to 1, on a ground, or as much more of it as text needs to be readable there.
QColor readableMix(const QColor& ground, const QColor& ink, double share);

} // namespace tarvex
