#pragma once

#include <functional>
#include <memory>
#include <optional>

namespace tarvex {

struct LockKeyState {
    bool capsLock = false;
    bool numLock = false;
};

/// As it is now; nothing where the window system doesn't say.
std::optional<LockKeyState> lockKeyState();
/// Switches Caps Lock on or off. False: the window system lets no program do it.
bool lockCaps(bool on);

/// Reports the state of the keyboard's lock keys: once at the start and after each change. Where the window system
/// doesn't say, it reports nothing.
class LockKeys {
public:
    /// There is a QGuiApplication, which outlives this.
    explicit LockKeys(std::function<void(LockKeyState)> changed);
    ~LockKeys();
    LockKeys(const LockKeys&) = delete;
    LockKeys& operator=(const LockKeys&) = delete;

private:
    class Watch;
    std::unique_ptr<Watch> m_watch;
};

} // namespace tarvex
