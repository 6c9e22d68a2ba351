#include "shell/hardware/pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
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

TEST(Pictures, AreReadOutInTheOrderOfTheirControls)
{
    const auto readOut = [](PictureOf what) {
        std::string text(picture(what).description);
        for (const PictureControl& control : picture(what).controls) text += "; " + accessibleName(control);
        return text;
    };
    EXPECT_EQ(readOut(PictureOf::F22AndF16Stick),
              "F-22 Pro or F-16 FLCS joystick; S2, button; H1, hat; H2, hat; H3, hat; S1, button; TG1 TG2, trigger; "
              "SWAPTG, trigger order; H4, hat; S3, button; S4, paddle; JSY, axis; JSX, axis; PORT, game port; "
              "Rudder, pedals");
    EXPECT_EQ(readOut(PictureOf::OlderStick), "P FCS, Top Gun or FCS joystick; UB, button; H, hat; MB, button; "
                                              "TG, trigger; LB, button; Rudder, pedals");
    EXPECT_EQ(readOut(PictureOf::Tqs),
              "TQS throttle; RNG, knob; T6, button; ANT, knob; T2, switch; T3, switch; T4, switch; T5, switch; "
              "T7, switch; T8, switch; T9, switch; T10, switch; T1, button; T11, switch; T12, switch; T13, switch; "
              "T14, switch; Throttle, axis");
    EXPECT_EQ(readOut(PictureOf::Wcs), "WCS throttle; T3, button; T2, button; T1, button; T4, button; T5, button; "
                                       "T6, button; T7, rocker; Middle, rocker; T8, rocker; Throttle, axis");
    EXPECT_EQ(readOut(PictureOf::WcsWithOlderStick),
              "WCS throttle beside an older joystick; 3, button; 2, button; 1, button; 4, button; 5, button; "
              "6, button; RKR UP, rocker; RKR MD, rocker; RKR DN, rocker; Throttle, axis");
}

TEST(Pictures, HaveADrawingOfTheirName)
{
    for (const Picture& shown : allPictures())
        EXPECT_TRUE(
            std::filesystem::exists(TARVEX_SOURCE_DIRECTORY "/resources/hardware/" + std::string(shown.file) + ".svg"))
            << shown.file;
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
