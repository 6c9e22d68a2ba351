#pragma once

#include <atomic>

// What tests share that kill a process at random moments.

namespace tarvex {

/// A few microseconds more or less, without the clock.
inline void dawdle(unsigned rounds)
{
    for (std::atomic<unsigned> i = 0; i < rounds;) ++i;
}

} // namespace tarvex
