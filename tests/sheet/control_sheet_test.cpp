#include "sheet/control_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

ControlSheet sheet(const std::string& name, std::string_view text)
{
    return controlSheet({.joystickName = name, .joystickText = text, .macroName = "m", .macroText = "Fire = SPC"},
                        "today");
}

std::vector<std::string> namesOn(const SheetPage& page)
{
    std::vector<std::string> names;
    for (const SheetRow& row : page.rows) names.push_back(row.name);
    return names;
}

TEST(ControlSheet, HasAPageForTheStickAndOneForTheThrottle)
{
    const ControlSheet both = sheet("mig.b50", "USE TQS\r\nBTN S1 Fire\r\nBTN T1 a\r\n");
    ASSERT_EQ(both.pages.size(), 2U);
    EXPECT_EQ(both.pages[0].picture, PictureOf::F22AndF16Stick);
    EXPECT_EQ(both.pages[1].picture, PictureOf::Tqs);
    EXPECT_THAT(namesOn(both.pages[0]), testing::ElementsAre("S1"));
    EXPECT_THAT(namesOn(both.pages[1]), testing::ElementsAre("T1"));
    EXPECT_EQ(sheet("mig.b50", "BTN S1 Fire").pages.size(), 1U);
}

TEST(ControlSheet, EachHardwareHasItsOwnPictures)
{
    const auto pictures = [](const ControlSheet& made) {
        std::vector<PictureOf> all;
        for (const SheetPage& page : made.pages) all.push_back(page.picture);
        return all;
    };
    EXPECT_EQ(pictures(sheet("a.f22", "USE WCS")), (std::vector{PictureOf::F22AndF16Stick, PictureOf::Wcs}));
    EXPECT_EQ(pictures(sheet("a.adv", "USE WCS")), (std::vector{PictureOf::OlderStick, PictureOf::WcsWithOlderStick}));
}

TEST(ControlSheet, ControlsThatDoNothingAreListedApart)
{
    const ControlSheet made = sheet("mig.b50", "BTN S1 Fire\r\nBTN S3 Rem the shift\r\n");
    EXPECT_THAT(made.pages[0].unused, Contains("S3"));
    EXPECT_THAT(made.pages[0].unused, Contains("H1U"));
    EXPECT_THAT(made.pages[0].unused, Not(Contains("S1")));
    EXPECT_EQ(made.pages[0].rows.at(0).layers.at(0).words.at(1).text, "Spacebar");
}

TEST(ControlSheet, SwaptgDoesItsWorkByItself)
{
    const SheetPage page = sheet("a.f22", "SWAPTG").pages[0];
    ASSERT_THAT(namesOn(page), ElementsAre("SWAPTG"));
    ASSERT_EQ(page.rows[0].layers.size(), 1U);
    EXPECT_EQ(page.rows[0].layers[0].words.at(0).text, "first and second stage swapped");
}

TEST(ControlSheet, AnEmptyFileHasAPageWithNothingOnIt)
{
    const ControlSheet made = sheet("a.f22", "");
    ASSERT_EQ(made.pages.size(), 1U);
    EXPECT_TRUE(made.pages[0].rows.empty());
    EXPECT_FALSE(made.pages[0].unused.empty());
}

} // namespace
} // namespace tarvex
