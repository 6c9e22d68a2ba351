#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace tarvex::benchmarks {

using Clock = std::chrono::steady_clock;

inline double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// The time that `part` of all stay below, 0 to 1. There is at least one.
inline double percentile(std::vector<double> times, double part)
{
    const auto rank = static_cast<std::size_t>(part * static_cast<double>(times.size()));
    const auto at = times.begin() + static_cast<std::ptrdiff_t>(std::min(times.size() - 1, rank));
    std::nth_element(times.begin(), at, times.end());
    return *at;
}

} // namespace tarvex::benchmarks
