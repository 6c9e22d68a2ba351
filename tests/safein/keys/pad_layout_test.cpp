#include "safein/keys/pad_layout.h"

#include "safein/keys/key_table.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

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

/// Keys that touch each other, from left to right.
struct Stretch {
    int left;
    int right;
    int top;
    const char* keys;
};

TEST(PadLayout, KeysOfABlockTouchEachOtherFromItsLeftEdgeToItsRightOne)
{
    constexpr Stretch stretches[] = {
        {0, 4, 0, "ESC"},
        {8, 24, 0, "F1 F2 F3 F4"},
        {26, 42, 0, "F5 F6 F7 F8"},
        {44, 60, 0, "F9 F10 F11 F12"},
        {61, 73, 0, "Prt SCRLCK Brk"},
        {0, 60, 6, "` 1 2 3 4 5 6 7 8 9 0 - = BSP"},
        {61, 73, 6, "INS HOME PGUP"},
        {74, 90, 6, "NUML KP/ KP* KP-"},
        {0, 60, 10, "TAB q w e r t y u i o p [ ] \\"},
        {61, 73, 10, "DEL END PGDN"},
        {74, 90, 10, "KP7 KP8 KP9 KP+"},
        {0, 60, 14, "CAPS a s d f g h j k l ; ' ENT"},
        {74, 86, 14, "KP4 KP5 KP6"},
        {0, 60, 18, "LSFT z x c v b n m , . / RSFT"},
        {65, 69, 18, "UAROW"},
        {74, 90, 18, "KP1 KP2 KP3 KPENT"},
        {0, 6, 22, "LCTL"},
        {10, 50, 22, "LALT SPC RALT"},
        {54, 60, 22, "RCTL"},
        {61, 73, 22, "LAROW DAROW RAROW"},
        {74, 86, 22, "KP0 KP."},
    };
    for (const Stretch& stretch : stretches) {
        int x = stretch.left;
        std::istringstream names(stretch.keys);
        for (std::string name; names >> name;) {
            const KeyPlace& place = placeOf(keyNamed(name)->index);
            EXPECT_EQ(place.x, x) << name;
            EXPECT_EQ(place.y, stretch.top) << name;
            EXPECT_EQ(place.height, name == "KP+" || name == "KPENT" ? 8 : 4) << name;
            x += place.width;
        }
        EXPECT_EQ(x, stretch.right) << stretch.keys;
    }
}

std::string walk(const std::string& from, Direction direction)
{
    int index = keyNamed(from)->index;
    std::string names = from;
    for (int next = keyBeside(index, direction); next != index; next = keyBeside(index, direction)) {
        index = next;
        names += " " + std::string(keyAt(index)->distinctName());
    }
    return names;
}

TEST(KeyBeside, WalksAlongEachRowToBothSides)
{
    EXPECT_EQ(walk("ESC", Direction::Right),
              "ESC F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12 Prt SCRLCK Brk NUML KP/ KP* KP-");
    EXPECT_EQ(walk("`", Direction::Right), "` 1 2 3 4 5 6 7 8 9 0 - = BSP INS HOME PGUP NUML KP/ KP* KP-");
    EXPECT_EQ(walk("KP-", Direction::Left), "KP- KP* KP/ NUML PGUP HOME INS BSP = - 0 9 8 7 6 5 4 3 2 1 `");
    EXPECT_EQ(walk("TAB", Direction::Right), "TAB q w e r t y u i o p [ ] \\ DEL END PGDN KP7 KP8 KP9 KP+");
    EXPECT_EQ(walk("CAPS", Direction::Right), "CAPS a s d f g h j k l ; ' ENT KP4 KP5 KP6 KP+");
    EXPECT_EQ(walk("LSFT", Direction::Right), "LSFT z x c v b n m , . / RSFT UAROW KP1 KP2 KP3 KPENT");
    EXPECT_EQ(walk("LCTL", Direction::Right), "LCTL LALT SPC RALT RCTL LAROW DAROW RAROW KP0 KP. KPENT");
    EXPECT_EQ(walk("KP.", Direction::Left), "KP. KP0 RAROW DAROW LAROW RCTL RALT SPC LALT LCTL");
}

TEST(KeyBeside, WalksDownAndUpTheColumns)
{
    EXPECT_EQ(walk("ESC", Direction::Down), "ESC ` TAB CAPS LSFT LCTL");
    EXPECT_EQ(walk("F1", Direction::Down), "F1 2 q a z LALT");
    EXPECT_EQ(walk("Prt", Direction::Down), "Prt INS DEL LAROW");
    EXPECT_EQ(walk("RAROW", Direction::Up), "RAROW PGDN PGUP Brk");
    EXPECT_EQ(walk("KP0", Direction::Up), "KP0 KP1 KP4 KP7 NUML Brk");
    EXPECT_EQ(walk("KP-", Direction::Down), "KP- KP+ KPENT");
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
