#pragma once

#include <array>
#include <cstdint>

namespace tarvex {

/// A byte a key, by Windows' number of the key; of a lock key, bit 0 is set while it is on.
using KeyStates = std::array<std::uint8_t, 256>;

/// The lock keys of the keyboard.
class Keyboard {
public:
    virtual ~Keyboard() = default;
    /// 1 for a lock key that is on, else 0.
    virtual int GetKeyState(int keyCode) const = 0;
    virtual void GetKeyboardState(KeyStates& states) const = 0;
    /// False: programs can't set the lock keys here.
    virtual bool SetKeyboardState(const KeyStates& states) = 0;
};

} // namespace tarvex
