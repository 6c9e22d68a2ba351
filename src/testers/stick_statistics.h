#pragma once

#include "platform/joystick.h"

#include <array>
#include <cstdint>
#include <deque>
#include <optional>

namespace tarvex {

/// A report as the statistics keep it.
struct StickSample {
    std::int64_t microseconds = 0;
    std::array<std::uint16_t, axisRole::count> axes{};
    std::uint32_t buttons = 0;
};

/// A jump out by more than this many axis units, and back within spikeMicroseconds, is a spike.
constexpr int spikeThreshold = 1500;
constexpr std::int64_t spikeMicroseconds = 20'000;
/// Rest and noise are of the last reports within this time.
constexpr std::int64_t restMicroseconds = 5'000'000;
/// What lasts less is a movement.
constexpr std::int64_t shortestRest = 1'000'000;
/// Reports that are kept; the oldest ones go.
constexpr std::size_t mostSamples = 500'000;

/// The latest stretch of time in which an axis stayed where it is, spikes left out. A value counts for as long as it
/// lasted.
struct AxisRest {
    double position = 0;  ///< mean
    double deviation = 0; ///< standard deviation
    int peakToPeak = 0;
    std::int64_t microseconds = 0; ///< how long it lasted
};

struct AxisNumbers {
    std::uint16_t now = 0;
    std::uint16_t minimum = 0;
    std::uint16_t maximum = 0;
    AxisRest rest;
    double drift = 0; ///< of the rest position since the first one that lasted for a second
    std::size_t spikes = 0;
};

/// Counts the spikes of one axis as its values come.
class SpikeCounter {
public:
    void add(std::int64_t microseconds, int value);
    std::size_t count() const { return m_count; }

private:
    bool m_started = false;
    bool m_out = false;        ///< the value jumped and hasn't come back yet
    int m_level = 0;           ///< the value before the jump, or the last one
    std::int64_t m_jumped = 0; ///< when
    std::size_t m_count = 0;
};

/// What can be measured in a joystick's reports, given in the order of their times.
class StickStatistics {
public:
    void add(const JoystickReport& report);
    /// The device has sent nothing for this long since its last report: it is at rest.
    void pause(std::int64_t microseconds) { m_pause = microseconds; }
    void clear() { *this = {}; }

    std::size_t reports() const { return m_reports; } ///< all since the start
    std::int64_t microseconds() const;                ///< from the first report to the last
    /// Reports a second, over the last second of them; 0 while there are fewer than two.
    double rate() const;
    /// Notes rests that later ones are compared with, so it is to be asked now and then. `role` is an axisRole.
    AxisNumbers numbers(std::size_t role);

    const std::deque<StickSample>& samples() const { return m_samples; }

private:
    struct Axis {
        std::uint16_t minimum = 65535;
        std::uint16_t maximum = 0;
        SpikeCounter spikes;
        std::optional<double> firstRest;
    };
    AxisRest rest(std::size_t role) const;

    std::deque<StickSample> m_samples;
    std::array<Axis, axisRole::count> m_axes;
    std::size_t m_reports = 0;
    std::int64_t m_first = 0;
    std::int64_t m_pause = 0;
};

} // namespace tarvex
