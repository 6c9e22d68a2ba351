#pragma once

#include "platform/dialogues.h"

namespace tarvex {

/// There is none when a tester opens; `remark` stands behind the text.
MessageBox noJoystickBox(std::string_view remark = {});
/// An analyser's joystick stopped answering, with an error of joyGetPosEx.
MessageBox joystickFailureBox(int error);

} // namespace tarvex
