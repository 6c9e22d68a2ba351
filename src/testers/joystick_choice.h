#pragma once

#include "platform/joystick.h"
#include "platform/profile_file.h"

namespace tarvex {

/// The section of Platform.ini with what the user chose about the joystick.
constexpr const char* joystickSection = "Joystick";

/// Device and axes; without any, the first device with the axes that it seems to have.
JoystickChoice readJoystickChoice(const ProfileFile& ini);
void writeJoystickChoice(ProfileFile& ini, const JoystickChoice& choice);

} // namespace tarvex
