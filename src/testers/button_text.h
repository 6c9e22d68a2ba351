#pragma once

#include "platform/joystick.h"

#include <string>

namespace tarvex {

/// The pressed buttons from `first` on, counted from 0, and the hats, for reading: "Buttons 5, 12   Hat up".
std::string buttonText(const JoystickReport& report, std::size_t first);

} // namespace tarvex
