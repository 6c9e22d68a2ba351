#pragma once

#include "viewer/view_image.h"

namespace tarvex {

/// Gives the window's commands, the window itself and the command that opens it their handlers.
void wireImageViewer(ViewImage& window);
void Form_Load(ViewImage& window);

} // namespace tarvex
