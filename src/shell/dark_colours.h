#pragma once

#include "platform/controls.h"

namespace tarvex {

/// How much two colours differ in brightness, 1 to 21, as the Web Content Accessibility Guidelines define it.
double contrastOf(Colour text, Colour ground);

/// Whether light text is easier to read on it than black.
bool isDark(Colour ground);

/// A text colour meant for a light ground, as it is shown on a dark one: its hue stays, and its lightness grows until
/// the contrast is at least `leastContrast`. Greys are mirrored, so that black becomes the brightest. The ground is
/// dark enough for white to have that contrast.
Colour onDarkGround(Colour text, Colour ground, double leastContrast);

} // namespace tarvex
