#include "testers/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tarvex {

namespace {

constexpr double wellCentred = 2; // per cent of the way from the centre to the end
constexpr double calmNoise = 0.3; // per cent of the whole range
constexpr int widestRest = 2000;  // axis units between the ends of what is still called rest

double offCentre(const AxisNumbers& axis) { return std::abs(axis.rest.position - axisCentre) / axisCentre * 100; }

std::string percent(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.1f %%", value);
    return text;
}

std::string centringOf(const AxisNumbers& x, const AxisNumbers& y)
{
    const double worst = std::max(offCentre(x), offCentre(y));
    if (worst <= wellCentred) return "Centred within " + percent(worst) + ".";
    const bool isX = offCentre(x) >= offCentre(y);
    return "Off centre by " + percent(worst) + " on " + (isX ? "X" : "Y") +
           ", if you have let go of the stick: calibrate it.";
}

std::string spikesOf(const char* name, std::size_t spikes, std::int64_t microseconds)
{
    if (spikes == 0) return "";
    const auto seconds = std::max<std::int64_t>(1, (microseconds + 500'000) / 1'000'000);
    return " " + std::to_string(spikes) + (spikes == 1 ? " spike on " : " spikes on ") + name + " in " +
           std::to_string(seconds) + " s: clean or replace that pot.";
}

std::string noiseOf(const char* name, const AxisNumbers& axis)
{
    const double noise = axis.rest.deviation / axisLast * 100;
    return noise <= calmNoise ? "" : std::string(" ") + name + " trembles by " + percent(noise) + " at rest.";
}

} // namespace

std::string verdictOf(StickStatistics& statistics, bool hasThrottle, bool hasRudder)
{
    if (statistics.reports() == 0) return "Nothing has come from the joystick yet. Go on, wiggle it!";
    const bool isThere[] = {true, true, hasThrottle, hasRudder};
    const AxisNumbers x = statistics.numbers(axisRole::x);
    const AxisNumbers y = statistics.numbers(axisRole::y);
    const bool isMoving = std::max(x.rest.peakToPeak, y.rest.peakToPeak) > widestRest ||
                          std::min(x.rest.microseconds, y.rest.microseconds) < shortestRest;
    std::string text = isMoving ? "Let go of the stick for a moment, and I'll judge its centring." : centringOf(x, y);
    for (std::size_t role = 0; role < Numbers::rows.size(); ++role) {
        if (!isThere[role]) continue;
        const AxisNumbers axis = statistics.numbers(role);
        text += spikesOf(Numbers::rows[role], axis.spikes, statistics.microseconds());
        if (!isMoving) text += noiseOf(Numbers::rows[role], axis);
    }
    return text;
}

} // namespace tarvex
