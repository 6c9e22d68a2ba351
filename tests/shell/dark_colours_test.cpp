#include "shell/dark_colours.h"

#include "shell/settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvex {
namespace {

constexpr Colour ground = 0x24211F; // of dark windows
constexpr double least = 4.5;

int channel(Colour colour, int shift) { return (colour >> shift) & 0xFF; }

int chroma(Colour colour)
{
    const auto [low, high] = std::minmax({channel(colour, 0), channel(colour, 8), channel(colour, 16)});
    return high - low;
}

/// Degrees, from 0 to 360; a grey has none.
double hue(Colour colour)
{
    const double red = channel(colour, 0);
    const double green = channel(colour, 8);
    const double blue = channel(colour, 16);
    const double degrees = std::atan2(std::sqrt(3) * (green - blue), 2 * red - green - blue) * 180 / std::acos(-1);
    return degrees < 0 ? degrees + 360 : degrees;
}

double hueDistance(Colour one, Colour other)
{
    const double distance = std::abs(hue(one) - hue(other));
    return std::min(distance, 360 - distance);
}

TEST(ContrastOf, IsThatOfTheWebsGuidelines)
{
    EXPECT_DOUBLE_EQ(contrastOf(0, 0xFFFFFF), 21);
    EXPECT_DOUBLE_EQ(contrastOf(0xFFFFFF, 0), 21);
    EXPECT_DOUBLE_EQ(contrastOf(0x0000FF, 0x0000FF), 1);
    EXPECT_NEAR(contrastOf(0x777777, 0xFFFFFF), 4.48, 0.005);
    EXPECT_NEAR(contrastOf(0x0000FF, 0xFFFFFF), 4.00, 0.005) << "red is the low byte";
}

TEST(IsDark, IsWhereWhiteIsEasierToReadThanBlack)
{
    EXPECT_TRUE(isDark(0));
    EXPECT_TRUE(isDark(0x757575));
    EXPECT_FALSE(isDark(0x767676));
    EXPECT_FALSE(isDark(0xFFFFFF));
    EXPECT_FALSE(isDark(0x00FFFF)) << "yellow";
}

TEST(OnDarkGround, EveryColourOfTheSchemeIsReadableAndKeepsItsHue)
{
    const Settings settings;
    for (const Colour colour :
         {settings.BTNColour, settings.SlashColour, settings.RAWColour, settings.MiscellaneousColour,
          settings.RemStatements, Colour{0}, Colour{16711680}, Colour{255}, Colour{32768}, Colour{8421504}}) {
        const Colour shown = onDarkGround(colour, ground, least);
        EXPECT_GE(contrastOf(shown, ground), least) << colour;
        EXPECT_EQ(chroma(shown) == 0, chroma(colour) == 0) << colour;
        if (chroma(colour) > 0) {
            EXPECT_LE(hueDistance(colour, shown), 1) << colour;
        }
    }
}

TEST(OnDarkGround, AllColoursAreReadableOnEveryDarkGroundAndKeepTheirHues)
{
    constexpr Colour stride = 251; // a prime: all channels take all values
    for (const Colour dark : {Colour{0}, ground, Colour{0x402010}}) {
        for (Colour colour = 0; colour <= 0xFFFFFF; colour += stride) {
            const Colour shown = onDarkGround(colour, dark, least);
            ASSERT_GE(contrastOf(shown, dark), least) << colour << " on " << dark;
            const int weaker = std::min(chroma(colour), chroma(shown));
            if (weaker == 0) continue;
            const double rounding = 70.0 / weaker; // degrees that half a step in each channel can turn the hue by
            ASSERT_LE(hueDistance(colour, shown), rounding) << colour << " on " << dark;
        }
    }
}

TEST(OnDarkGround, BlackIsTheBrightestGreyAndLighterGreysAreDimmer)
{
    Colour before = onDarkGround(0, ground, least);
    EXPECT_GT(contrastOf(before, ground), 12);
    for (int grey = 16; grey < 256; grey += 16) {
        const Colour shown = onDarkGround(grey * 0x010101, ground, least);
        EXPECT_LE(contrastOf(shown, ground), contrastOf(before, ground)) << grey;
        before = shown;
    }
}

TEST(OnDarkGround, ABrightColourThatIsReadableAlreadyStays)
{
    EXPECT_EQ(onDarkGround(0x00FF00, ground, least), 0x00FF00);
    EXPECT_EQ(onDarkGround(0x00FFFF, ground, least), 0x00FFFF);
}

TEST(OnDarkGround, IsTheFirstLightnessWithEnoughContrast)
{
    // Found by going through all 1024 of them.
    constexpr std::pair<Colour, Colour> colours[] = {
        {0x000000, 0xE6E6E6}, {0xFFFFFF, 0x888888}, {0xFF0000, 0xFF7777}, {0x0000FF, 0x3838FF}, {0x008000, 0x00AB00},
        {0x808080, 0x888888}, {0xC08000, 0xD68F00}, {0x804000, 0xFF860C}, {0x400040, 0xFF2EFF}, {0xC0FFFF, 0x008C8C},
    };
    for (const auto& [colour, shown] : colours) EXPECT_EQ(onDarkGround(colour, ground, least), shown) << colour;
}

TEST(OnDarkGround, AStrongerContrastIsReachedToo)
{
    for (const Colour colour : {Colour{0xFF0000}, Colour{0x0000FF}, Colour{0x008000}, Colour{0x808080}})
        EXPECT_GE(contrastOf(onDarkGround(colour, 0, 7), 0), 7) << colour;
}

} // namespace
} // namespace tarvex
