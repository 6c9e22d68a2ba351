#pragma once

#include <chrono>
#include <thread>

namespace tarvex {

/// Waits until the condition holds, for at most a minute; whether it did. How long it took is nobody's concern.
template <typename Condition> bool eventually(Condition condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::yield();
    }
    return true;
}

} // namespace tarvex
