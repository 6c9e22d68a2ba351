#include "documents/printing/paper_ink.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvex {
namespace {

std::array<int, 3> channelsOf(Colour colour) { return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF}; }

double contrastToWhite(Colour colour)
{
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const auto [red, green, blue] = channelsOf(colour);
    return 1.05 / (0.2126 * linear(red) + 0.7152 * linear(green) + 0.0722 * linear(blue) + 0.05);
}

TEST(PaperInk, ColoursThatWhitePaperShowsStay)
{
    for (const Colour colour : {0x000000, 0xFF0000, 0x008000, 0x767676}) EXPECT_EQ(inkOnPaper(colour), colour);
}

TEST(PaperInk, WhiteBecomesBlackAndPaleColoursTheirDarkSelves)
{
    EXPECT_EQ(inkOnPaper(0xFFFFFF), 0x000000);
    EXPECT_EQ(inkOnPaper(0xC0C0C0), 0x3F3F3F);
    EXPECT_EQ(inkOnPaper(0xFFC0C0), 0x3F0000) << "pale blue";
    EXPECT_EQ(inkOnPaper(0xC0FFC0), 0x003F00) << "pale green";
    EXPECT_EQ(inkOnPaper(0xC0C0FF), 0x00003F) << "pale red";
    EXPECT_EQ(inkOnPaper(0xFFC0FF), 0x3F003F) << "pale purple";
}

TEST(PaperInk, EveryColourIsLegibleAndKeepsItsOrderOfChannels)
{
    constexpr int stride = 15;
    for (int red = 0; red <= 255; red += stride) {
        for (int green = 0; green <= 255; green += stride) {
            for (int blue = 0; blue <= 255; blue += stride) {
                const Colour ink = inkOnPaper(red | green << 8 | blue << 16);
                ASSERT_GE(contrastToWhite(ink), 4.5) << red << ' ' << green << ' ' << blue;
                const auto [r, g, b] = channelsOf(ink);
                ASSERT_TRUE((red < green || r >= g) && (green < blue || g >= b) && (blue < red || b >= r))
                    << red << ' ' << green << ' ' << blue;
            }
        }
    }
}

TEST(PaperInk, DarkGroundsAreThoseThatLightLettersStandOn)
{
    EXPECT_TRUE(isDarkGround(0x000000));
    EXPECT_TRUE(isDarkGround(0x402020));
    EXPECT_FALSE(isDarkGround(0xFFFFFF));
    EXPECT_FALSE(isDarkGround(0xC0FFFF));
}

} // namespace
} // namespace tarvex
