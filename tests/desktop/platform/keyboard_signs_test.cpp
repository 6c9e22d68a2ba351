#include "desktop/platform/keyboard_signs.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarvex {
namespace {

// Numbers of the X server.
constexpr std::uint32_t none = 0;
constexpr std::uint32_t returnKey = 0xFF0D;
constexpr std::uint32_t deleteKey = 0xFFFF;
constexpr std::uint32_t greekAlpha = 0x7E1;
constexpr std::uint32_t greekCapitalAlpha = 0x7C1;
constexpr std::uint32_t deadGrave = 0xFE50;
constexpr std::uint32_t deadAcute = 0xFE51;
constexpr std::uint32_t deadCedilla = 0xFE5B;
constexpr std::uint32_t behindTheDeadKeys = 0xFE5C; // the ogonek, which isn't on a key of its own

std::string printed(const std::vector<std::uint32_t>& symbols, unsigned layout = 0)
{
    const KeyPrints prints = printsOf(symbols, layout);
    return prints.plain + ' ' + prints.shifted;
}

TEST(KeyPrints, AreThePlainAndTheShiftedSign)
{
    EXPECT_EQ(printed({'a', 'A'}), "a A");
    EXPECT_EQ(printed({'1', '!', 'x', 'X'}), "1 !");
    EXPECT_EQ(printed({'!', '~'}), "! ~") << "the first and the last sign of ASCII";
}

TEST(KeyPrints, AreThoseOfTheLayoutInUse)
{
    const std::vector<std::uint32_t> symbols{'a', 'A', greekAlpha, greekCapitalAlpha};
    EXPECT_EQ(printed(symbols, 0), "a A");
    EXPECT_EQ(printed(symbols, 1), "\u03B1 \u0391");
    EXPECT_EQ(printed(symbols, 2), "a A") << "the server has no more than two in its list";
}

TEST(KeyPrints, ALayoutWithoutThemLeavesThemToTheFirst)
{
    EXPECT_EQ(printed({'a', 'A', none, none}, 1), "a A");
    EXPECT_EQ(printed({'a', 'A', 'b'}, 1), "a A");
    EXPECT_EQ(printed({'a', 'A'}, 1), "a A");
}

TEST(KeyPrints, AKeyThatPrintsNothingHasNone)
{
    EXPECT_EQ(printed({returnKey, deleteKey}), " ");
    EXPECT_EQ(printed({' ', none}), " ");
    EXPECT_EQ(printed({'a'}), " ") << "too few symbols";
    EXPECT_EQ(printed({}), " ");
}

TEST(KeyPrints, OfDeadKeysAreTheirAccents)
{
    EXPECT_EQ(printed({deadGrave, deadAcute}), "` \u00B4");
    EXPECT_EQ(printed({deadCedilla, behindTheDeadKeys}), "\u00B8 ");
}

} // namespace
} // namespace tarvex
