#pragma once

#include "platform/keyboard.h"

namespace tarvex {

/// The keyboard of the window system. Of the keys it knows the lock keys, where they can be asked for: on X11.
class QtKeyboard final : public Keyboard {
public:
    int GetKeyState(int keyCode) const override;
    void GetKeyboardState(KeyStates& states) const override;
    bool SetKeyboardState(const KeyStates& states) override;
};

} // namespace tarvex
