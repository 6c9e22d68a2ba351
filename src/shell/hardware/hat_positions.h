#pragma once

#include <array>
#include <string>

namespace tarvex {

/// What stands behind the name of a hat for each of its positions, and for the corners that the F-22 Pro and F-16 FLCS
/// have besides.
inline constexpr std::array<const char*, 5> hatPositions{"U", "D", "L", "R", "M"};
inline constexpr std::array<const char*, 4> hatCorners{"UL", "DL", "UR", "DR"};

/// The name of a hat by its index in the pictures: "H1" to "H4", and "H" of the older sticks.
inline std::string hatName(int index)
{
    constexpr int olderSticks = 4;
    return index == olderSticks ? "H" : "H" + std::to_string(index + 1);
}

} // namespace tarvex
