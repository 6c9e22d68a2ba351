#pragma once

#include "testers/key_test_form.h"

namespace tarvex {

/// Sets the display of the joystick up, once at each opening.
void JoystickStuff(KeyTestForm& window);
void JoystickTimer_Timer(KeyTestForm& window);

} // namespace tarvex
