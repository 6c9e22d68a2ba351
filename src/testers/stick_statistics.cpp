#include "testers/stick_statistics.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tarvex {

namespace {

constexpr std::int64_t second = 1'000'000;

/// How far a value of the same rest may be from the last one. A device that only reports changes is quiet at once when
/// the stick has come back, and its way back is no noise.
constexpr int restBand = spikeThreshold;
constexpr int quietBand = 600;

constexpr std::int64_t lastValueLasts = 1000; // microseconds, while nothing has come after it

/// Sums of values around one of them, so that squares keep their small digits.
class Spread {
public:
    explicit Spread(int around) : m_around(around), m_lowest(around), m_highest(around) {}
    void add(int value, std::int64_t microseconds)
    {
        const double difference = value - m_around;
        const auto weight = static_cast<double>(microseconds);
        m_sum += weight * difference;
        m_squares += weight * difference * difference;
        m_weights += weight;
        m_lowest = std::min(m_lowest, value);
        m_highest = std::max(m_highest, value);
    }
    AxisRest rest(std::int64_t microseconds) const
    {
        const double mean = m_weights > 0 ? m_sum / m_weights : 0;
        const double variance = m_weights > 0 ? std::max(0.0, m_squares / m_weights - mean * mean) : 0;
        return {m_around + mean, std::sqrt(variance), m_highest - m_lowest, microseconds};
    }

private:
    int m_around;
    int m_lowest;
    int m_highest;
    double m_sum = 0;
    double m_squares = 0;
    double m_weights = 0;
};

} // namespace

void SpikeCounter::add(std::int64_t microseconds, int value)
{
    const int distance = std::abs(value - m_level);
    if (!m_started || (!m_out && distance <= spikeThreshold)) {
        m_started = true;
        m_level = value;
        return;
    }
    if (!m_out) {
        m_out = true;
        m_jumped = microseconds;
        return;
    }
    const bool inTime = microseconds - m_jumped <= spikeMicroseconds;
    const bool isBack = distance <= spikeThreshold / 2;
    if (inTime && !isBack) return;
    if (inTime) ++m_count;
    m_out = false;
    m_level = value;
}

void StickStatistics::add(const JoystickReport& report)
{
    const JOYINFOEX& at = report.position;
    const auto axis = [](std::uint32_t value) { return static_cast<std::uint16_t>(std::min(value, axisLast)); };
    const StickSample sample{
        report.microseconds, {axis(at.dwXpos), axis(at.dwYpos), axis(at.dwZpos), axis(at.dwRpos)}, at.dwButtons};
    if (m_reports++ == 0) m_first = sample.microseconds;
    m_pause = 0;
    for (std::size_t role = 0; role < m_axes.size(); ++role) {
        Axis& numbers = m_axes[role];
        numbers.minimum = std::min(numbers.minimum, sample.axes[role]);
        numbers.maximum = std::max(numbers.maximum, sample.axes[role]);
        numbers.spikes.add(sample.microseconds, sample.axes[role]);
    }
    m_samples.push_back(sample);
    if (m_samples.size() > mostSamples) m_samples.pop_front();
}

std::int64_t StickStatistics::microseconds() const
{
    return m_samples.empty() ? 0 : m_samples.back().microseconds - m_first;
}

double StickStatistics::rate() const
{
    if (m_samples.size() < 2) return 0;
    const std::int64_t last = m_samples.back().microseconds;
    const auto from = std::ranges::partition_point(
        m_samples, [last](const StickSample& sample) { return sample.microseconds < last - second; });
    const auto intervals = static_cast<double>(m_samples.end() - from - 1);
    const std::int64_t time = last - from->microseconds;
    return time > 0 ? intervals * second / static_cast<double>(time) : 0;
}

/// Backwards from the last report. What left for no longer than a spike lasts is passed over.
AxisRest StickStatistics::rest(std::size_t role) const
{
    const StickSample& last = m_samples.back();
    const int band = m_pause > 0 ? quietBand : restBand;
    const std::int64_t now = last.microseconds + std::max(m_pause, lastValueLasts);
    Spread spread(last.axes[role]);
    std::int64_t until = now;
    std::int64_t earliest = last.microseconds;
    for (auto sample = m_samples.rbegin(); sample != m_samples.rend(); ++sample) {
        if (last.microseconds - sample->microseconds > restMicroseconds) break;
        const int value = sample->axes[role];
        if (std::abs(value - last.axes[role]) <= band) {
            spread.add(value, until - sample->microseconds);
            earliest = sample->microseconds;
        } else if (earliest - sample->microseconds > spikeMicroseconds) {
            break;
        }
        until = sample->microseconds;
    }
    return spread.rest(now - earliest);
}

AxisNumbers StickStatistics::numbers(std::size_t role)
{
    if (m_samples.empty()) return {};
    Axis& axis = m_axes.at(role);
    AxisNumbers numbers{m_samples.back().axes[role], axis.minimum, axis.maximum, rest(role), 0, axis.spikes.count()};
    if (!axis.firstRest && numbers.rest.microseconds >= shortestRest) axis.firstRest = numbers.rest.position;
    if (axis.firstRest && numbers.rest.microseconds >= shortestRest)
        numbers.drift = numbers.rest.position - *axis.firstRest;
    return numbers;
}

} // namespace tarvex
