#include "documents/printing/paper_ink.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvex {

namespace {

using Channels = std::array<double, 3>; ///< red, green, blue, 0 to 1

/// Luminance at which the contrast to white is 4.5.
constexpr double darkEnough = 1.05 / 4.5 - 0.05;

Channels channelsOf(Colour colour)
{
    const auto bits = static_cast<unsigned>(colour);
    return {(bits & 0xFF) / 255.0, (bits >> 8 & 0xFF) / 255.0, (bits >> 16 & 0xFF) / 255.0};
}

Colour colourOf(const Channels& channels)
{
    const auto byte = [](double value) {
        return static_cast<unsigned>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
    };
    return static_cast<Colour>(byte(channels[0]) | byte(channels[1]) << 8 | byte(channels[2]) << 16);
}

double luminance(const Channels& channels)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(channels[0]) + 0.7152 * linear(channels[1]) + 0.0722 * linear(channels[2]);
}

} // namespace

bool isDarkGround(Colour ground) { return luminance(channelsOf(ground)) < darkEnough; }

Colour inkOnPaper(Colour colour)
{
    Channels channels = channelsOf(colour);
    if (luminance(channels) <= darkEnough) return colour;
    const auto [least, most] = std::minmax({channels[0], channels[1], channels[2]});
    const double turned = 1 - least - most; // light and dark change places, the hue stays
    for (double& channel : channels) channel += turned;
    constexpr double step = 0.98;
    while (luminance(channelsOf(colourOf(channels))) > darkEnough)
        for (double& channel : channels) channel *= step;
    return colourOf(channels);
}

} // namespace tarvex
