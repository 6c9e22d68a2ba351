#pragma once

#include "platform/controls.h"

namespace tarvex {

/// Whether letters on this ground are light ones.
bool isDarkGround(Colour ground);

/// A colour that white paper shows: `colour` itself if its contrast to white is 4.5 or more. Else the same hue, as dark
/// as it was light, and at least that dark.
Colour inkOnPaper(Colour colour);

} // namespace tarvex
