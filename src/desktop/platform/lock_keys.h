#pragma once

#include <functional>
#include <memory>

namespace tarvex {

struct LockKeyState {
    bool capsLock = false;
    bool numLock = false;
};

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
