#include "testers/tca.h"

#include "support/menu_text.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace tarvex {
namespace {

using testing::ElementsAre;

constexpr Colour black = 0;
constexpr Colour yellow = 0x00FFFF;
constexpr Colour red = 0x0000FF;
constexpr Colour green = 0x00FF00;
constexpr const char* tcaPath = "c:\\tarvex\\TCA.ini";

struct TcaTest : testing::Test, TestProgram {
    TCAform& form = program().testers.controllerAnalyser;

    void open()
    {
        settings().UseTCA = 1;
        menus().mnuAppsJoyAnalyser.Click();
    }
    void painted()
    {
        for (DrawingField* field : {&form.PicJoy, &form.PicThrottle, &form.PicRudder}) field->painted();
    }
    void tick()
    {
        painted();
        joystick.send();
        form.JoyTimer.Tick();
    }
    static std::vector<float> dottedAt(const DrawingField& field, bool vertical)
    {
        std::vector<float> at;
        for (const Stroke& stroke : field.strokes())
            if (stroke.dotted && (stroke.x1 == stroke.x2) == vertical) at.push_back(vertical ? stroke.x1 : stroke.y1);
        return at;
    }
    Colour verticalCentre() { return centreColour(form.PicJoy, true); }
    static Colour centreColour(const DrawingField& field, bool vertical)
    {
        for (const Stroke& stroke : field.strokes())
            if (!stroke.dotted && (vertical ? stroke.x1 == 32768 && stroke.x2 == 32768 && stroke.y2 == 65535
                                            : stroke.y1 == 32768 && stroke.y2 == 32768 && stroke.x2 == 65535))
                return stroke.colour;
        return -1;
    }
};

TEST_F(TcaTest, ReplacesTheJoystickAnalyserWhenItIsChosen)
{
    open();
    EXPECT_TRUE(form.form.Visible);
    EXPECT_FALSE(program().testers.joyPlot.form.Visible);
    EXPECT_EQ(form.form.Caption.get(), "TCA - Tarvy's Controller Analyser");
    EXPECT_EQ(form.JoyTimer.Interval, 1);
}

TEST_F(TcaTest, WithoutAJoystickTheMessageMentionsTheTrayIcon)
{
    joystick.unplug();
    open();
    EXPECT_EQ(lastBox().text,
              "I couldn't detect the joystick. Check the Windows Control Panel's Game controllers or Thrustmaster's "
              "ProPanel to see what the problem is. Remember that if you're using the later versions of CTFJ, then you "
              "should do that from the CTFJ tray icon.");
    EXPECT_FALSE(form.JoyTimer.Enabled);
}

TEST_F(TcaTest, ReadFailuresGiveTheMessagesOfTheJoystickAnalyser)
{
    open();
    joystick.unplug();
    form.JoyTimer.Tick();
    EXPECT_EQ(dialogues.boxes.size(), 1U);
    EXPECT_EQ(lastBox().text, "I think your joystick is unplugged, or incorrectly set up under Windows. Please "
                              "investigate further!");
    EXPECT_FALSE(form.JoyTimer.Enabled);
}

TEST_F(TcaTest, TheStatusLineHasAllFourAxesBehindABlank)
{
    open();
    joystick.position.dwXpos = 1;
    joystick.position.dwYpos = 2;
    joystick.position.dwZpos = 3;
    joystick.position.dwRpos = 4;
    tick();
    EXPECT_EQ(status(), " Joystick X: 1, Joystick Y: 2, Throttle (Z): 3, Rudders (R): 4");
}

TEST_F(TcaTest, AMovedThrottleGetsABlackLineAtTheOldValueAndAYellowOneAtTheNew)
{
    open();
    joystick.position.dwZpos = 1000;
    tick();
    joystick.position.dwZpos = 2000;
    tick();
    const auto& strokes = form.PicThrottle.strokes();
    ASSERT_GE(strokes.size(), 2U);
    EXPECT_EQ(strokes[0], (Stroke{0, 1000, 65535, 1000, black}));
    EXPECT_EQ(strokes[1], (Stroke{0, 2000, 65535, 2000, yellow}));
    tick();
    for (const Stroke& stroke : form.PicThrottle.strokes()) EXPECT_NE(stroke.colour, yellow) << "it didn't move";
}

TEST_F(TcaTest, AMovedRudderGetsVerticalLines)
{
    open();
    joystick.position.dwRpos = 1000;
    tick();
    joystick.position.dwRpos = 65535;
    tick();
    const auto& strokes = form.PicRudder.strokes();
    ASSERT_GE(strokes.size(), 2U);
    EXPECT_EQ(strokes[0], (Stroke{1000, 0, 1000, 65535, black}));
    EXPECT_EQ(strokes[1], (Stroke{65535, 0, 65535, 65535, yellow}));
}

TEST_F(TcaTest, AControllerWithoutAThrottleLeavesItsStripEmpty)
{
    joystick.caps.wCaps = joyCaps::hasR;
    open();
    joystick.position.dwZpos = 100;
    tick();
    EXPECT_TRUE(form.PicThrottle.strokes().empty());
    EXPECT_FALSE(form.PicRudder.strokes().empty());
}

TEST_F(TcaTest, AControllerWithoutRuddersLeavesTheirStripEmpty)
{
    joystick.caps.wCaps = joyCaps::hasZ;
    open();
    joystick.position.dwRpos = 100;
    tick();
    EXPECT_TRUE(form.PicRudder.strokes().empty());
    EXPECT_FALSE(form.PicThrottle.strokes().empty());
}

TEST_F(TcaTest, WithExactOnlyTheCentreItselfIsGreen)
{
    open();
    form.SensitivityArray[0].Click();
    for (const auto& [x, colour] : {std::pair{32767U, red}, {32768U, green}, {32769U, red}}) {
        joystick.position.dwXpos = x;
        tick();
        EXPECT_EQ(verticalCentre(), colour) << x;
    }
}

TEST_F(TcaTest, TheBandHasBothBoundsOutside)
{
    open();
    form.SensitivityArray[1].Click();
    for (const auto& [at, colour] : {std::pair{32518U, red}, {32519U, green}, {33017U, green}, {33018U, red}}) {
        joystick.position.dwXpos = at;
        joystick.position.dwYpos = at;
        joystick.position.dwZpos = at;
        joystick.position.dwRpos = at;
        tick();
        EXPECT_EQ(verticalCentre(), colour) << at;
        EXPECT_EQ(centreColour(form.PicJoy, false), colour) << at;
        EXPECT_EQ(centreColour(form.PicThrottle, false), colour) << at;
        EXPECT_EQ(centreColour(form.PicRudder, true), colour) << at;
    }
}

TEST_F(TcaTest, TheGridHasItsLinesOnBothSidesOfTheCentre)
{
    open();
    form.mnuDensityArray[0].Click();
    tick();
    const std::vector<float> at = {6553, 13106, 19659, 26212, 39321, 45874, 52427, 58980};
    EXPECT_EQ(dottedAt(form.PicJoy, true), at);
    EXPECT_EQ(dottedAt(form.PicJoy, false), at);
    EXPECT_EQ(dottedAt(form.PicThrottle, false), at);
    EXPECT_EQ(dottedAt(form.PicThrottle, true), std::vector<float>{});
    EXPECT_EQ(dottedAt(form.PicRudder, true), at);
}

TEST_F(TcaTest, WithTwentyDivisionsTheLastLineBelowTheCentreIsTheLargestMultipleInside)
{
    open();
    form.mnuDensityArray[2].Click();
    tick();
    const std::vector<float> at = dottedAt(form.PicJoy, true);
    EXPECT_EQ(at[0], 1638);
    EXPECT_EQ(*std::ranges::max_element(at, {}, [](float g) { return g < 32768 ? g : 0; }), 31122);
    EXPECT_EQ(at.back(), 32768 + 19 * 1638);
}

TEST_F(TcaTest, WithGridOffThereIsNone)
{
    open();
    form.mnuGrid.Click();
    tick();
    EXPECT_TRUE(dottedAt(form.PicJoy, true).empty());
    EXPECT_TRUE(dottedAt(form.PicRudder, true).empty());
}

TEST_F(TcaTest, EachOfTheFourIndicatorsFollowsItsButton)
{
    open();
    for (std::uint32_t pressed = 0; pressed < 16; ++pressed) {
        joystick.position.dwButtons = pressed;
        tick();
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(form.JoyButtonAnalogue[i].BackColor.get(),
                      (pressed >> i & 1U) != 0 ? 0x80C0FF : static_cast<Colour>(0x8000000FU));
    }
}

TEST_F(TcaTest, OfA128ButtonsThoseBeyondTheIndicatorsAreNamed)
{
    open();
    JoystickReport report;
    report.buttons.set();
    joystick.reported(report);
    form.JoyTimer.Tick();
    EXPECT_THAT(form.MoreButtons.Caption.get(), testing::StartsWith("Buttons 5, 6, "));
    EXPECT_THAT(form.MoreButtons.Caption.get(), testing::EndsWith(", 127, 128"));
}

TEST_F(TcaTest, WithoutItsFileTheBandIsHighAndTheGridMedium)
{
    open();
    EXPECT_TRUE(form.SensitivityArray[1].Checked);
    EXPECT_TRUE(form.mnuDensityArray[1].Checked);
}

TEST_F(TcaTest, ChoicesAreExclusiveAndKeptInItsFile)
{
    open();
    form.mnuDensityArray[2].Click();
    form.SensitivityArray[3].Click();
    for (int i = 0; i < 3; ++i) EXPECT_EQ(form.mnuDensityArray[i].Checked, i == 2);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(form.SensitivityArray[i].Checked, i == 3);
    ProfileFile ini(files, tcaPath);
    EXPECT_EQ(ini.readInt("Options", "TCAGridCellSize", 0), 20);
    EXPECT_EQ(ini.readInt("Options", "TCACentreSensitivity", 0), 1000);
}

TEST_F(TcaTest, OpensWithTheChoicesOfItsFile)
{
    files.addFile(tcaPath, "[Options]\r\nTCACentreSensitivity=500\r\nTCAGridCellSize=5\r\n");
    open();
    EXPECT_TRUE(form.SensitivityArray[2].Checked);
    EXPECT_TRUE(form.mnuDensityArray[0].Checked);
}

TEST_F(TcaTest, AHalfWidthWithAFractionIsTakenAsItIsAndKept)
{
    files.addFile(tcaPath, "[Options]\r\nTCACentreSensitivity=1.5\r\nTCAGridCellSize=5\r\n");
    open();
    for (int i = 0; i < 4; ++i) EXPECT_FALSE(form.SensitivityArray[i].Checked);
    for (const auto& [x, colour] : {std::pair{32766U, red}, {32767U, green}, {32769U, green}, {32770U, red}}) {
        joystick.position.dwXpos = x;
        tick();
        EXPECT_EQ(verticalCentre(), colour) << x;
    }
    form.mnuDensityArray[1].Click();
    EXPECT_EQ(ProfileFile(files, tcaPath).readString("Options", "TCACentreSensitivity", "", 100), "1.5");
}

TEST_F(TcaTest, AnotherDensityClearsOnlyWhileTheGridIsOn)
{
    open();
    tick();
    painted();
    form.mnuDensityArray[0].Click();
    EXPECT_TRUE(form.PicJoy.isCleared());
    form.mnuGrid.Click();
    painted();
    form.mnuDensityArray[1].Click();
    EXPECT_FALSE(form.PicJoy.isCleared());
}

TEST_F(TcaTest, ValuesThatNobodyCanChooseCheckNothingAndDrawWithoutHarm)
{
    for (const char* value : {"0", "-5", "32767", "999"}) {
        files.addFile(tcaPath, "[Options]\r\nTCAGridCellSize=" + std::string(value) + "\r\n");
        open();
        for (int i = 0; i < 3; ++i) EXPECT_FALSE(form.mnuDensityArray[i].Checked);
        tick();
        EXPECT_TRUE(dottedAt(form.PicJoy, true).empty()) << value;
        form.mnuexit.Click();
    }
}

TEST_F(TcaTest, AFileMayAskForUpTo256Divisions)
{
    const auto linesWith = [this](int divisions) {
        files.addFile(tcaPath, "[Options]\r\nTCAGridCellSize=" + std::to_string(divisions) + "\r\n");
        open();
        tick();
        const std::size_t lines = dottedAt(form.PicJoy, true).size();
        form.mnuexit.Click();
        return lines;
    };
    EXPECT_EQ(linesWith(1), 0U) << "the edges have none";
    EXPECT_EQ(linesWith(2), 2U);
    EXPECT_EQ(linesWith(256), 2 * 255U);
    EXPECT_EQ(linesWith(257), 0U);
}

TEST_F(TcaTest, ZoomEmptiesTheStripsAndTheyComeBackWithTheNextTick)
{
    open();
    joystick.position.dwZpos = 100;
    tick();
    painted();
    form.mnuZoom.Click();
    EXPECT_TRUE(form.PicThrottle.isCleared());
    EXPECT_EQ(form.PicJoy.high(), 42768);
    form.JoyTimer.Tick();
    const auto& strokes = form.PicThrottle.strokes();
    EXPECT_TRUE(std::ranges::count(strokes, (Stroke{0, 100, 65535, 100, yellow})) == 1);
}

TEST_F(TcaTest, WhatEmptiesOrRepaintsTheFieldsAsksForATickWhileTheJoystickIsRead)
{
    int asked = 0;
    const Connection connection = form.reportArrived.connect([&asked] { ++asked; });
    const auto asksNow = [&] { return std::exchange(asked, 0) > 0; };
    open();
    EXPECT_TRUE(asksNow());
    form.SensitivityArray[1].Click();
    EXPECT_TRUE(asksNow());
    form.mnuClear.Click();
    EXPECT_TRUE(asksNow());
    form.mnuZoom.Click();
    EXPECT_TRUE(asksNow());
    joystick.unplug();
    form.JoyTimer.Tick();
    asked = 0;
    form.SensitivityArray[0].Click();
    form.mnuClear.Click();
    form.mnuZoom.Click();
    EXPECT_FALSE(asksNow()) << "a failed joystick is read no more";
}

TEST_F(TcaTest, AboutShowsTheVersion)
{
    form.mnuAbout.Click();
    EXPECT_EQ(lastBox().title, "Version info");
    EXPECT_EQ(lastBox().text, "Tarvy Controller Analyser (TCA) version 1.1\n\n"
                              "It comes with Tarvex. Questions and ideas go where you got Tarvex from.");
}

TEST_F(TcaTest, EachOpeningForgetsTheButtonsOfTheLastOne)
{
    open();
    joystick.position.dwButtons = 0xFF;
    tick();
    EXPECT_TRUE(form.JoyButtonAnalogue[0].isHeld());
    EXPECT_NE(form.MoreButtons.Caption.get(), "");
    form.mnuexit.Click();
    open();
    for (const ToggleLabel& button : form.JoyButtonAnalogue) EXPECT_FALSE(button.isHeld());
    EXPECT_EQ(form.MoreButtons.Caption.get(), "");
    joystick.position.dwButtons = 0;
    form.JoyTimer.Tick();
    EXPECT_EQ(form.MoreButtons.Caption.get(), "") << "no report has come yet";
}

TEST_F(TcaTest, ARudderIsDrawnAnewOnAFieldThatWasEmptied)
{
    open();
    joystick.position.dwRpos = 300;
    tick();
    painted();
    form.mnuClear.Click();
    form.JoyTimer.Tick();
    EXPECT_EQ(std::ranges::count(form.PicRudder.strokes(), (Stroke{300, 0, 300, 65535, yellow})), 1);
}

TEST_F(TcaTest, AnotherScaleHasItsCentreLinesInRedAtOnce)
{
    open();
    painted();
    int refreshed = 0;
    const Connection painting = form.PicJoy.refreshWanted.connect([&refreshed] { ++refreshed; });
    form.mnuZoom.Click();
    EXPECT_EQ(std::ranges::count(form.PicJoy.strokes(), (Stroke{32768, 22768, 32768, 42768, red})), 1);
    EXPECT_EQ(refreshed, 1);
}

TEST_F(TcaTest, TheBandThatIsChosenIsInTheFileAtOnce)
{
    open();
    form.SensitivityArray[0].Click();
    const std::string first = ProfileFile(files, tcaPath).readString("Options", "TCACentreSensitivity", "", 100);
    form.SensitivityArray[1].Click();
    EXPECT_NE(ProfileFile(files, tcaPath).readString("Options", "TCACentreSensitivity", "", 100), first);
}

TEST_F(TcaTest, ItsMenusAndButtonsAreNamed)
{
    EXPECT_EQ(form.form.Caption.get(), "TCA - Tarvy's Controller Analyser");
    for (std::size_t i = 0; i < form.JoyButtonAnalogue.size(); ++i)
        EXPECT_EQ(form.JoyButtonAnalogue[i].Caption.get(), std::to_string(i + 1));
    EXPECT_EQ(menuText(form.menuBar()), "&File\n"
                                        " E&xit\n"
                                        "&View\n"
                                        " &Clear\n"
                                        " -\n"
                                        " &Plot\n"
                                        " Show &grid\n"
                                        " &Zoom\n"
                                        " -\n"
                                        " Grid &density\n"
                                        "  &Low\n"
                                        "  &Medium\n"
                                        "  &High\n"
                                        " Centre &sensitivity\n"
                                        "  &Exact\n"
                                        "  &High\n"
                                        "  &Medium\n"
                                        "  &Low\n"
                                        " -\n"
                                        " Show &numbers\n"
                                        "&Help\n"
                                        " &About TCA\n");
}

} // namespace
} // namespace tarvex
