#pragma once

#include <cstdlib>
#include <iostream>
#include <random>

namespace tarvex {

/// Seed of a random test: another one in every run, printed so that TARVEX_SEED can repeat a run that failed.
inline unsigned randomSeed()
{
    const char* chosen = std::getenv("TARVEX_SEED");
    const unsigned seed = chosen ? static_cast<unsigned>(std::strtoul(chosen, nullptr, 10)) : std::random_device()();
    std::cout << "TARVEX_SEED=" << seed << '\n';
    return seed;
}

} // namespace tarvex
