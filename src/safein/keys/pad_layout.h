#pragma once

#include <span>

namespace tarvex {

/// Where a key is drawn, in quarters of a usual key's width, from the upper left corner of the keyboard.
struct KeyPlace {
    int index;
    int x;
    int y;
    int width;
    int height;
};

constexpr int usualKey = 4;
constexpr int padWidth = 90;
constexpr int padHeight = 26;

/// All keys, row by row: typewriter block, middle block with the arrows, keypad.
std::span<const KeyPlace> padLayout();

enum class Direction { Left, Right, Up, Down };

/// The key that an arrow key leads to, as the eye finds it; `index` itself at the edge and for an index without a key.
int keyBeside(int index, Direction direction);

} // namespace tarvex
