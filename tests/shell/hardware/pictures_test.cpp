#include "shell/hardware/pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tarvex {
namespace {

std::multiset<std::string> idsOf(std::initializer_list<PictureOf> which)
{
    std::multiset<std::string> ids;
    for (const PictureOf what : which) {
        for (const PictureControl& control : picture(what).controls) ids.emplace(control.id);
    }
    return ids;
}

std::set<std::string> allControls()
{
    std::set<std::string> ids{"TRIG"};
    for (int i = 0; i <= 8; ++i) ids.insert("BTN(" + std::to_string(i) + ")");
    for (int i = 11; i <= 32; ++i) ids.insert("BTN(" + std::to_string(i) + ")");
    for (int i = 0; i <= 4; ++i) ids.insert("HAT(" + std::to_string(i) + ")");
    for (int i = 0; i <= 9; ++i) ids.insert("ROTARY(" + std::to_string(i) + ")");
    return ids;
}

TEST(Pictures, TogetherHaveEachControlOnce)
{
    using enum PictureOf;
    const auto shown = idsOf({F22AndF16Stick, OlderStick, Tqs, Wcs});
    const std::multiset<std::string> expected = [] {
        const auto ids = allControls();
        return std::multiset<std::string>(ids.begin(), ids.end());
    }();
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(idsOf({Wcs}), idsOf({WcsWithOlderStick}));
}

TEST(Pictures, NameEachControlOnce)
{
    for (const Picture& shown : allPictures()) {
        std::set<std::string_view> names;
        for (const PictureControl& control : shown.controls) {
            EXPECT_TRUE(names.insert(control.name).second) << shown.file << ": " << control.id;
            EXPECT_FALSE(control.kind.empty()) << control.id;
        }
    }
}

TEST(StickPicture, FollowsTheJoystick)
{
    EXPECT_EQ(stickPicture(0), PictureOf::F22AndF16Stick);
    EXPECT_EQ(stickPicture(1), PictureOf::F22AndF16Stick);
    for (const std::int16_t older : {2, 3, 4}) EXPECT_EQ(stickPicture(older), PictureOf::OlderStick);
    for (const std::int16_t unknown : {-1, 5, 32767}) EXPECT_EQ(stickPicture(unknown), PictureOf::F22AndF16Stick);
}

TEST(WcsPicture, HasTheNamesOfTheStickBesideIt)
{
    const auto name = [](PictureOf what, std::string_view id) { return findControl(picture(what), id)->name; };
    EXPECT_EQ(name(wcsPicture(false), "BTN(21)"), "T3");
    EXPECT_EQ(name(wcsPicture(false), "BTN(16)"), "T7");
    EXPECT_EQ(name(wcsPicture(false), "BTN(4)"), "");
    EXPECT_EQ(name(wcsPicture(false), "BTN(17)"), "T8");
    EXPECT_EQ(name(wcsPicture(true), "BTN(21)"), "3");
    EXPECT_EQ(name(wcsPicture(true), "BTN(4)"), "RKR MD");
}

TEST(FindControl, UnknownIdGivesNone)
{
    EXPECT_EQ(findControl(picture(PictureOf::Tqs), "BTN(0)"), nullptr);
    EXPECT_EQ(findControl(picture(PictureOf::Tqs), ""), nullptr);
}

TEST(AccessibleName, SaysWhatTheControlIs)
{
    EXPECT_EQ(accessibleName(*findControl(picture(PictureOf::F22AndF16Stick), "BTN(0)")), "S1, button");
    EXPECT_EQ(accessibleName(*findControl(picture(PictureOf::F22AndF16Stick), "HAT(1)")), "H2, hat");
    EXPECT_EQ(accessibleName(*findControl(picture(PictureOf::Wcs), "BTN(4)")), "Middle, rocker");
}

} // namespace
} // namespace tarvex
