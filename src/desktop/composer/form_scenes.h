#pragma once

#include "composer/insert_options.h"
#include "desktop/bind.h"
#include "desktop/composer/control_scene.h"

namespace tarvex {

// What the pictures on the pages of the forms show. They follow the window's state.

/// The lever of the throttle that the user has.
void showThrottle(InsertOptions& window, Bindings& bindings, ControlScene& scene);
/// The axis whose toggle is held.
void showAxis(InsertOptions& window, Bindings& bindings, ControlScene& scene);
/// The buttons of the throttle that work as buttons of the chosen mouse.
void showMouseButtons(InsertOptions& window, Bindings& bindings, ControlScene& scene);

} // namespace tarvex
