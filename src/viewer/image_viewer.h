#pragma once

#include "viewer/view_image.h"

namespace tarvex {

/// Gives the window and its commands their handlers.
void wireImageViewer(ViewImage& window);
void Form_Load(ViewImage& window);

} // namespace tarvex
