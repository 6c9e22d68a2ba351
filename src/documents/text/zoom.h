#pragma once

namespace tarvex::zoom {

// Size of the text in a window against that of its font, per cent.
constexpr int smallest = 40;
constexpr int largest = 500;
constexpr int normal = 100;
constexpr int step = 10;

} // namespace tarvex::zoom
