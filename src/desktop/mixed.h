#pragma once

#include <QColor>

namespace tarvex {

/// `share` of a colour, from 0 to 1, on a ground.
inline QColor mixed(const QColor& ground, const QColor& colour, double share)
{
    const auto mix = [share](int from, int to) { return static_cast<int>(from + (to - from) * share); };
    return {mix(ground.red(), colour.red()), mix(ground.green(), colour.green()), mix(ground.blue(), colour.blue())};
}

} // namespace tarvex
