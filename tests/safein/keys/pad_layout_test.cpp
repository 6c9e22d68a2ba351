#include "safein/keys/pad_layout.h"

#include "safein/keys/key_table.h"

#include <gtest/gtest.h>

#include <set>

namespace tarvex {
namespace {

const KeyPlace& placeOf(int index) { return *std::ranges::find(padLayout(), index, &KeyPlace::index); }

TEST(PadLayout, HasEveryKeyOnceInsideThePad)
{
    std::set<int> seen;
    for (const KeyPlace& key : padLayout()) {
        EXPECT_NE(keyAt(key.index), nullptr) << key.index;
        EXPECT_TRUE(seen.insert(key.index).second) << key.index;
        EXPECT_TRUE(key.x >= 0 && key.y >= 0 && key.x + key.width <= padWidth && key.y + key.height <= padHeight);
    }
    EXPECT_EQ(seen.size(), keyTable().size());
}

TEST(PadLayout, NoKeyCoversAnother)
{
    for (const KeyPlace& a : padLayout())
        for (const KeyPlace& b : padLayout())
            EXPECT_TRUE(a.index == b.index || a.x + a.width <= b.x || b.x + b.width <= a.x || a.y + a.height <= b.y ||
                        b.y + b.height <= a.y)
                << a.index << " and " << b.index;
}

TEST(PadLayout, RowsAreStaggeredAndWideKeysWide)
{
    EXPECT_LT(placeOf(1).x, placeOf(36).x);
    EXPECT_LT(placeOf(36).x, placeOf(20).x);
    EXPECT_LT(placeOf(20).x, placeOf(45).x);
    for (const int wide : {58, 59, 64, 90, 91, 92, 101, 10}) EXPECT_GT(placeOf(wide).width, usualKey) << wide;
    for (const int high : {65, 67}) EXPECT_EQ(placeOf(high).height, 2 * usualKey) << high;
}

TEST(KeyBeside, FollowsTheRowsAndTheColumns)
{
    const int a = keyNamed("a")->index;
    EXPECT_EQ(keyBeside(a, Direction::Right), keyNamed("s")->index);
    EXPECT_EQ(keyBeside(a, Direction::Left), keyNamed("CAPS")->index);
    EXPECT_EQ(keyBeside(a, Direction::Up), keyNamed("q")->index);
    EXPECT_EQ(keyBeside(a, Direction::Down), keyNamed("z")->index);
}

TEST(KeyBeside, CrossesTheGapsBetweenTheBlocks)
{
    EXPECT_EQ(keyBeside(keyNamed("ESC")->index, Direction::Right), keyNamed("F1")->index);
    EXPECT_EQ(keyBeside(keyNamed("ENT")->index, Direction::Right), keyNamed("KP4")->index);
    EXPECT_EQ(keyBeside(keyNamed("BSP")->index, Direction::Right), keyNamed("INS")->index);
    EXPECT_EQ(keyBeside(keyNamed("END")->index, Direction::Down), keyNamed("UAROW")->index);
    EXPECT_EQ(keyBeside(keyNamed("UAROW")->index, Direction::Down), keyNamed("DAROW")->index);
    EXPECT_EQ(keyBeside(keyNamed("LALT")->index, Direction::Left), keyNamed("LCTL")->index);
    EXPECT_EQ(keyBeside(keyNamed("F12")->index, Direction::Down), keyNamed("BSP")->index);
}

TEST(KeyBeside, StaysAtTheEdge)
{
    EXPECT_EQ(keyBeside(keyNamed("ESC")->index, Direction::Left), keyNamed("ESC")->index);
    EXPECT_EQ(keyBeside(keyNamed("ESC")->index, Direction::Up), keyNamed("ESC")->index);
    EXPECT_EQ(keyBeside(keyNamed("KPENT")->index, Direction::Right), keyNamed("KPENT")->index);
    EXPECT_EQ(keyBeside(keyNamed("SPC")->index, Direction::Down), keyNamed("SPC")->index);
    EXPECT_EQ(keyBeside(54, Direction::Left), 54);
}

TEST(KeyBeside, LeadsToEveryKey)
{
    std::set<int> reached{keyNamed("ESC")->index};
    for (std::set<int> todo = reached; !todo.empty();) {
        const int from = *todo.begin();
        todo.erase(todo.begin());
        for (const Direction direction : {Direction::Left, Direction::Right, Direction::Up, Direction::Down}) {
            const int to = keyBeside(from, direction);
            if (reached.insert(to).second) todo.insert(to);
        }
    }
    EXPECT_EQ(reached.size(), keyTable().size());
}

} // namespace
} // namespace tarvex
