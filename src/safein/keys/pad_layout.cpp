#include "safein/keys/pad_layout.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <initializer_list>
#include <limits>

namespace tarvex {

namespace {

constexpr std::size_t keyCount = 101;

struct Layout {
    std::array<KeyPlace, keyCount> keys{};
    std::size_t count = 0;

    /// Keys of the usual size side by side.
    constexpr void strip(int x, int y, std::initializer_list<int> indexes)
    {
        for (const int index : indexes) {
            key(index, x, y, usualKey);
            x += usualKey;
        }
    }
    constexpr void key(int index, int x, int y, int width, int height = usualKey)
    {
        keys[count++] = {index, x, y, width, height};
    }
};

// Top edges of the rows, and left edges of the blocks beside the typewriter block.
constexpr int row[] = {0, 6, 10, 14, 18, 22};
constexpr int middle = 61;
constexpr int keypad = 74;
constexpr int keypadEnd = keypad + 3 * usualKey;

constexpr void addFunctionRow(Layout& pad)
{
    pad.strip(0, row[0], {83});
    pad.strip(8, row[0], {71, 72, 73, 74});
    pad.strip(26, row[0], {75, 76, 77, 78});
    pad.strip(44, row[0], {79, 80, 81, 82});
    pad.strip(middle, row[0], {100, 98, 99});
}

constexpr void addTypewriterBlock(Layout& pad)
{
    pad.strip(0, row[1], {46, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 47, 48});
    pad.key(101, 52, row[1], 8);
    pad.key(90, 0, row[2], 6);
    pad.strip(6, row[2], {36, 42, 24, 37, 39, 44, 40, 28, 34, 35, 50, 51});
    pad.key(49, 54, row[2], 6);
    pad.key(91, 0, row[3], 7);
    pad.strip(7, row[3], {20, 38, 23, 25, 26, 27, 29, 30, 31, 52, 53});
    pad.key(64, 51, row[3], 9);
    pad.key(58, 0, row[4], 9);
    pad.strip(9, row[4], {45, 43, 22, 41, 21, 33, 32, 55, 56, 57});
    pad.key(59, 49, row[4], 11);
    pad.key(60, 0, row[5], 6);
    pad.key(62, 10, row[5], 6);
    pad.key(92, 16, row[5], 28);
    pad.key(63, 44, row[5], 6);
    pad.key(61, 54, row[5], 6);
}

constexpr void addMiddleBlock(Layout& pad)
{
    pad.strip(middle, row[1], {84, 85, 86});
    pad.strip(middle, row[2], {87, 88, 89});
    pad.strip(middle + usualKey, row[4], {94});
    pad.strip(middle, row[5], {96, 95, 97});
}

constexpr void addKeypad(Layout& pad)
{
    pad.strip(keypad, row[1], {93, 70, 69, 68});
    pad.strip(keypad, row[2], {17, 18, 19});
    pad.key(67, keypadEnd, row[2], usualKey, 2 * usualKey);
    pad.strip(keypad, row[3], {14, 15, 16});
    pad.strip(keypad, row[4], {11, 12, 13});
    pad.key(65, keypadEnd, row[4], usualKey, 2 * usualKey);
    pad.key(10, keypad, row[5], 2 * usualKey);
    pad.strip(keypad + 2 * usualKey, row[5], {66});
}

constexpr Layout makeLayout()
{
    Layout pad;
    addFunctionRow(pad);
    addTypewriterBlock(pad);
    addMiddleBlock(pad);
    addKeypad(pad);
    return pad;
}

constexpr Layout layout = makeLayout();
static_assert(layout.count == keyCount);

/// An interval of places on one axis.
struct Extent {
    int start;
    int length;
    int end() const { return start + length; }
    int doubledCentre() const { return 2 * start + length; }
};

/// Twice the distance between the centre of `from` and the nearest place of `to`; 0 inside.
int doubledOffset(Extent from, Extent to)
{
    const int centre = from.doubledCentre();
    return std::max({0, 2 * to.start - centre, centre - 2 * to.end()});
}

constexpr int unreachable = std::numeric_limits<int>::max();

/// How far `to` is ahead of `from`; along: on the axis of the movement, across: on the other. What isn't ahead can't be
/// reached. A key straight ahead is better than a nearer one off the line, and of two that touch the line the one whose
/// centre is nearer to it.
int distance(Extent fromAlong, Extent toAlong, Extent fromAcross, Extent toAcross)
{
    constexpr int offTheLine = 4;
    constexpr int aboveAllCentres = 1000;
    if (toAlong.start < fromAlong.end()) return unreachable;
    const int gap = toAlong.start - fromAlong.end() + offTheLine * doubledOffset(fromAcross, toAcross);
    return gap * aboveAllCentres + std::abs(fromAcross.doubledCentre() - toAcross.doubledCentre());
}

/// Mirrors an interval, so that "ahead" is always towards larger numbers.
Extent mirrored(Extent extent) { return {-extent.end(), extent.length}; }

int distance(const KeyPlace& from, const KeyPlace& to, Direction direction)
{
    const Extent fromX{from.x, from.width};
    const Extent fromY{from.y, from.height};
    const Extent toX{to.x, to.width};
    const Extent toY{to.y, to.height};
    switch (direction) {
    case Direction::Left:
        return distance(mirrored(fromX), mirrored(toX), fromY, toY);
    case Direction::Right:
        return distance(fromX, toX, fromY, toY);
    case Direction::Up:
        return distance(mirrored(fromY), mirrored(toY), fromX, toX);
    default:
        return distance(fromY, toY, fromX, toX);
    }
}

} // namespace

std::span<const KeyPlace> padLayout() { return layout.keys; }

int keyBeside(int index, Direction direction)
{
    const auto* const from = std::ranges::find(layout.keys, index, &KeyPlace::index);
    if (from == layout.keys.end()) return index;
    int best = unreachable;
    int beside = index;
    for (const KeyPlace& to : layout.keys) {
        const int far = distance(*from, to, direction);
        if (far >= best) continue;
        best = far;
        beside = to.index;
    }
    return beside;
}

} // namespace tarvex
