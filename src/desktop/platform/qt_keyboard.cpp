#include "desktop/platform/qt_keyboard.h"

#include "desktop/platform/lock_keys.h"

namespace tarvex {

namespace {

constexpr int capsLock = 20;
constexpr int numLock = 144;

} // namespace

int QtKeyboard::GetKeyState(int keyCode) const
{
    const auto state = lockKeyState();
    if (!state) return 0;
    return (keyCode == capsLock && state->capsLock) || (keyCode == numLock && state->numLock) ? 1 : 0;
}

void QtKeyboard::GetKeyboardState(KeyStates& states) const
{
    states = {};
    for (const int key : {capsLock, numLock})
        states[static_cast<std::size_t>(key)] = static_cast<std::uint8_t>(GetKeyState(key));
}

/// Only Caps Lock is ever asked for.
bool QtKeyboard::SetKeyboardState(const KeyStates& states) { return lockCaps((states[capsLock] & 1) != 0); }

} // namespace tarvex
