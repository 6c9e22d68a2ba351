#pragma once

#include <atomic>
#include <cstdlib>
#include <random>

// What tests share that kill a process at random moments.

namespace tarvex {

/// A few microseconds more or less, without the clock.
inline void dawdle(unsigned rounds)
{
    for (std::atomic<unsigned> i = 0; i < rounds;) ++i;
}

/// TARVEX_SEED of the environment, to repeat a run; else another one each time.
inline unsigned chosenSeed()
{
    const char* told = std::getenv("TARVEX_SEED");
    return told ? static_cast<unsigned>(std::strtoul(told, nullptr, 10)) : std::random_device()();
}

} // namespace tarvex
