#pragma once

#include "composer/insert_options.h"
#include "wizards/joystick_wizard.h"

namespace tarvex {

/// What the buttons of the joystick wizard show in the Composer. Both outlive the handlers.
JoystickWiz::Composer composerPlaces(InsertOptions& composer);

} // namespace tarvex
