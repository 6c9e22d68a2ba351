#pragma once

#include "platform/input.h"

#include <Qt>

namespace tarvex {

/// One button, or several that are held, as a sum of mouseButton values.
int toLogic(Qt::MouseButtons buttons);
/// What is held beside a key or button, as a sum of shiftKey values.
int toLogic(Qt::KeyboardModifiers modifiers);

} // namespace tarvex
