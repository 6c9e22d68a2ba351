#pragma once

#include "platform/joystick.h"
#include "platform/keyboard.h"

namespace tarvex {

/// The devices that the testers look at. All members outlive the program.
struct InputDevices {
    Joystick& joystick;
    Keyboard& keyboard;
};

/// No joystick can be read.
struct NoJoystick final : Joystick {
    void start() override {}
    void stop() override {}
    std::vector<JoystickDevice> devices() const override { return {}; }
    void choose(const JoystickChoice&) override {}
    std::optional<std::size_t> chosen() const override { return {}; }
    int joyGetDevCapsA(JOYCAPS&) const override { return joyError::noDriver; }
    int joyGetPosEx(JOYINFOEX&) const override { return joyError::noDriver; }
};

/// The lock keys are out of reach.
struct NoKeyboard final : Keyboard {
    int GetKeyState(int) const override { return 0; }
    void GetKeyboardState(KeyStates& states) const override { states = {}; }
    bool SetKeyboardState(const KeyStates&) override { return false; }
};

} // namespace tarvex
