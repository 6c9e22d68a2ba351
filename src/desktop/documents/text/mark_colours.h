#pragma once

#include "desktop/mixed.h"

namespace tarvex::markColour {

// Marks behind the text of a pane. They are tints of the pane's own background, which the user chooses.

inline constexpr QRgb error = 0xFFC62828;
inline constexpr QRgb match = 0xFFFFB300;

inline QColor currentLine(const QColor& ground) { return mixed(ground, QColor(0x15, 0x65, 0xC0), 0.09); }
inline QColor errorLine(const QColor& ground) { return mixed(ground, QColor(error), 0.22); }

/// Weaker on a dark ground, where the text is light.
inline QColor matchGround(const QColor& ground)
{
    constexpr int half = 128;
    return mixed(ground, QColor(match), ground.lightness() < half ? 0.3 : 0.55);
}

} // namespace tarvex::markColour
