#include "shell/dark_colours.h"

#include <algorithm>
#include <cmath>

namespace tarvex {

namespace {

constexpr int full = 255;

struct Channels {
    double red, green, blue; ///< 0 to 1
};

Channels channels(Colour colour)
{
    const auto at = [colour](int shift) { return static_cast<double>((colour >> shift) & 0xFF) / full; };
    return {at(0), at(8), at(16)};
}

Colour colourOf(const Channels& c)
{
    const auto byte = [](double channel) { return static_cast<Colour>(std::lround(channel * full)); };
    return byte(c.red) | byte(c.green) << 8 | byte(c.blue) << 16;
}

double luminance(Colour colour)
{
    const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    const Channels c = channels(colour);
    return 0.2126 * linear(c.red) + 0.7152 * linear(c.green) + 0.0722 * linear(c.blue);
}

double lightness(const Channels& c)
{
    return (std::max({c.red, c.green, c.blue}) + std::min({c.red, c.green, c.blue})) / 2;
}

/// From 0, a grey, to 1.
double chroma(const Channels& c) { return std::max({c.red, c.green, c.blue}) - std::min({c.red, c.green, c.blue}); }

/// The farthest that a channel can be from the middle at this lightness.
double room(double lightness) { return std::min(lightness, 1 - lightness); }

/// Hue and saturation stay: the channels keep their distances from the middle in proportion. No channel of a lighter
/// one is darker.
Colour withLightness(const Channels& c, double wanted)
{
    const double now = lightness(c);
    const double scale = room(now) > 0 ? room(wanted) / room(now) : 0;
    const auto moved = [&](double channel) { return std::clamp(wanted + (channel - now) * scale, 0.0, 1.0); };
    return colourOf({moved(c.red), moved(c.green), moved(c.blue)});
}

} // namespace

double contrastOf(Colour text, Colour ground)
{
    constexpr double flare = 0.05;
    const double one = luminance(text) + flare;
    const double other = luminance(ground) + flare;
    return std::max(one, other) / std::min(one, other);
}

bool isDark(Colour ground) { return contrastOf(0xFFFFFF, ground) > contrastOf(0, ground); }

Colour onDarkGround(Colour text, Colour ground, double leastContrast)
{
    constexpr double brightest = 0.9;
    constexpr int steps = 1024;
    const Channels c = channels(text);
    const double mirrored = brightest * (1 - lightness(c)) * (1 - chroma(c));
    const double least = std::max(lightness(c) * chroma(c), mirrored);
    const auto isEnough = [=](Colour shown) {
        return luminance(shown) > luminance(ground) && contrastOf(shown, ground) >= leastContrast;
    };
    int first = static_cast<int>(std::ceil(least * steps));
    int last = steps; // white
    while (first < last) {
        const int middle = (first + last) / 2;
        if (isEnough(withLightness(c, static_cast<double>(middle) / steps)))
            last = middle;
        else
            first = middle + 1;
    }
    return withLightness(c, static_cast<double>(first) / steps);
}

} // namespace tarvex
