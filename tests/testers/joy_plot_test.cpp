#include "testers/joy_plot.h"

#include "support/menu_text.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

namespace tarvex {
namespace {

using testing::ElementsAre;

constexpr Colour white = 0xFFFFFF;
constexpr Colour black = 0;
constexpr Colour blue = 0xFF0000;
constexpr Colour red = 0x0000FF;
constexpr Colour green = 0x00FF00;
constexpr Colour gridColour = 85 + 128 * 256 + 151 * 65536;

std::vector<Stroke> cross(float x, float y, float arm, Colour colour)
{
    return {{x - arm, y, x + arm, y, colour}, {x, y - arm, x, y + arm, colour}};
}
std::vector<Stroke> operator+(std::vector<Stroke> a, const std::vector<Stroke>& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}
std::vector<Stroke> centreLines(Colour vertical, Colour horizontal, float from = 0, float high = 65535)
{
    return {{32768, from, 32768, high, vertical}, {from, 32768, high, 32768, horizontal}};
}
std::vector<Stroke> grid(float high = 65535)
{
    std::vector<Stroke> lines;
    for (const float g : {8192.0F, 16384.0F, 24576.0F, 40960.0F, 49152.0F, 57344.0F}) {
        lines.push_back({g, 0, g, high, gridColour, true});
        lines.push_back({0, g, high, g, gridColour, true});
    }
    return lines;
}

struct JoyPlotTest : testing::Test, TestProgram {
    JoyPlot& form = program().testers.joyPlot;

    void open() { menus().mnuAppsJoyAnalyser.Click(); }
    void openPainted()
    {
        open();
        form.JoyTimer.Tick();
        form.PicJoy.painted();
    }
    void tickAt(std::uint32_t x, std::uint32_t y)
    {
        joystick.send(x, y);
        form.JoyTimer.Tick();
    }
    std::vector<Stroke> strokesOfTickAt(std::uint32_t x, std::uint32_t y)
    {
        form.PicJoy.painted();
        tickAt(x, y);
        return form.PicJoy.strokes();
    }
};

// ---- opening and closing ----

TEST_F(JoyPlotTest, TheJoystickIsAskedForAllThatItHasInARecordOf52Bytes)
{
    open();
    form.Info.dwSize = form.Info.dwFlags = 0;
    joystick.positionResult = joyError::unplugged; // leaves the record as it was asked with
    form.JoyTimer.Tick();
    EXPECT_EQ(form.Info.dwSize, 52U);
    EXPECT_EQ(form.Info.dwFlags, 255U);
}

TEST_F(JoyPlotTest, OpensWithBothCentreLinesInBlackOnAnEmptyField)
{
    open();
    EXPECT_TRUE(form.form.Visible);
    EXPECT_EQ(form.form.Caption.get(), "Joystick motion analayser");
    EXPECT_TRUE(form.PicJoy.isCleared());
    EXPECT_EQ(form.PicJoy.strokes(), centreLines(black, black));
    EXPECT_TRUE(form.JoyTimer.Enabled);
    EXPECT_EQ(form.JoyTimer.Interval, 1);
    EXPECT_TRUE(dialogues.boxes.empty());
}

TEST_F(JoyPlotTest, WithoutAJoystickTheFieldIsDrawnAfterOneMessageAndTheTimerStaysOff)
{
    joystick.unplug();
    open();
    ASSERT_EQ(dialogues.boxes.size(), 1U);
    EXPECT_EQ(lastBox().title, "No joystick detected");
    EXPECT_EQ(lastBox().icon, BoxIcon::Exclamation);
    EXPECT_EQ(lastBox().text, "I couldn't detect the joystick. Check the Windows Control Panel's Game controllers or "
                              "Thrustmaster's ProPanel to see what the problem is.");
    EXPECT_EQ(form.PicJoy.strokes(), centreLines(black, black));
    EXPECT_FALSE(form.JoyTimer.Enabled);
    EXPECT_TRUE(form.form.Visible);
}

TEST_F(JoyPlotTest, EachOpeningStartsAfresh)
{
    open();
    tickAt(100, 200);
    form.mnuPlot.Click();
    form.mnuGrid.Click();
    form.mnuZoom.Click();
    form.mnuMaintain.Click();
    form.mnuexit.Click();
    EXPECT_FALSE(form.form.Visible);
    EXPECT_FALSE(form.JoyTimer.Enabled);
    EXPECT_EQ(joystick.users, 0);
    open();
    EXPECT_EQ(form.LastX, 0U);
    EXPECT_TRUE(form.mnuPlot.Checked && form.mnuGrid.Checked);
    EXPECT_FALSE(form.mnuZoom.Checked || form.mnuMaintain.Checked);
    EXPECT_EQ(form.PicJoy.low(), 0);
    EXPECT_EQ(form.PicJoy.high(), 65535);
    EXPECT_EQ(form.numbers.statistics.reports(), 0U);
}

TEST_F(JoyPlotTest, ClosesWithTheDocumentWindow)
{
    open();
    EXPECT_TRUE(program().exit());
    EXPECT_FALSE(form.form.Visible);
    EXPECT_EQ(joystick.users, 0);
}

// ---- a tick ----

TEST_F(JoyPlotTest, TheFirstTickErasesACrossThatWasNeverDrawn)
{
    open();
    EXPECT_EQ(strokesOfTickAt(100, 200), cross(0, 0, 750, white) + cross(0, 0, 150, blue) +
                                             cross(100, 200, 750, black) + cross(100, 200, 150, blue) +
                                             centreLines(red, red) + grid());
}

TEST_F(JoyPlotTest, TheNextTickMovesTheCrossAndLeavesAMark)
{
    openPainted();
    tickAt(100, 200);
    EXPECT_EQ(strokesOfTickAt(300, 400), cross(100, 200, 750, white) + cross(100, 200, 150, blue) +
                                             cross(300, 400, 750, black) + cross(300, 400, 150, blue) +
                                             centreLines(red, red) + grid());
    EXPECT_EQ(status(), "Joystick position: x = 300, y = 400");
}

TEST_F(JoyPlotTest, ATickWithoutAReportDrawsThePositionAgain)
{
    openPainted();
    tickAt(100, 200);
    form.PicJoy.painted();
    form.JoyTimer.Tick();
    EXPECT_EQ(form.PicJoy.strokes(), cross(100, 200, 750, white) + cross(100, 200, 150, blue) +
                                         cross(100, 200, 750, black) + cross(100, 200, 150, blue) +
                                         centreLines(red, red) + grid());
}

TEST_F(JoyPlotTest, ReportsBetweenTwoTicksAllLeaveTheirMarks)
{
    openPainted();
    tickAt(100, 200);
    form.PicJoy.painted();
    joystick.send(60000, 200, 1000); // a spike that lasts for one report
    joystick.send(110, 200, 1000);
    form.JoyTimer.Tick();
    EXPECT_EQ(form.PicJoy.strokes(), cross(100, 200, 750, white) + cross(100, 200, 150, blue) +
                                         cross(60000, 200, 750, white) + cross(60000, 200, 150, blue) +
                                         cross(110, 200, 750, black) + cross(110, 200, 150, blue) +
                                         centreLines(red, red) + grid());
    EXPECT_EQ(form.numbers.statistics.reports(), 3U);
}

TEST_F(JoyPlotTest, OfAHundredThousandReportsNoneIsLost)
{
    openPainted();
    std::size_t marks = 0;
    for (int i = 0; i < 100'000; ++i) {
        joystick.send(static_cast<std::uint32_t>(i % 65536), 0, 125);
        if (i % 133 != 0) continue;
        form.JoyTimer.Tick();
        form.PicJoy.painted();
    }
    form.JoyTimer.Tick();
    for (const Stroke& stroke : form.PicJoy.strokes()) marks += stroke.colour == blue ? 1 : 0;
    EXPECT_EQ(form.numbers.statistics.reports(), 100'000U);
    EXPECT_EQ(marks / 2, 99'999U % 133 + 1) << "one of each report since the tick before, and one of the position";
}

TEST_F(JoyPlotTest, TheVerticalLineIsGreenInTheBandAndRedBesideIt)
{
    openPainted();
    for (const auto& [x, colour] : {std::pair{32268U, red}, {32269U, green}, {33267U, green}, {33268U, red}}) {
        EXPECT_THAT(strokesOfTickAt(x, 0), testing::IsSupersetOf(centreLines(colour, red))) << x;
    }
}

TEST_F(JoyPlotTest, TheHorizontalLineIsGreenInTheBandAndRedBesideIt)
{
    openPainted();
    for (const auto& [y, colour] : {std::pair{32268U, red}, {32269U, green}, {33267U, green}, {33268U, red}}) {
        EXPECT_THAT(strokesOfTickAt(0, y), testing::IsSupersetOf(centreLines(red, colour))) << y;
    }
}

TEST_F(JoyPlotTest, PositionsAtTheEndsOfTheAxesAreDrawnThere)
{
    openPainted();
    tickAt(0, 65535);
    EXPECT_EQ(status(), "Joystick position: x = 0, y = 65535");
    EXPECT_EQ(form.LastY, 65535U);
}

// ---- the commands ----

TEST_F(JoyPlotTest, WithPlotOffTheTrailStaysAndNoMarksAreAdded)
{
    openPainted();
    tickAt(100, 200);
    form.mnuPlot.Click();
    EXPECT_TRUE(form.PicJoy.isCleared()) << "switching clears";
    EXPECT_FALSE(form.mnuPlot.Checked);
    EXPECT_EQ(strokesOfTickAt(300, 400),
              cross(100, 200, 750, white) + cross(300, 400, 750, black) + centreLines(red, red) + grid());
    EXPECT_FALSE(form.PicJoy.isCleared());
    form.mnuPlot.Click();
    EXPECT_TRUE(form.PicJoy.isCleared());
    EXPECT_EQ(form.PlotOn, 1);
}

TEST_F(JoyPlotTest, WithGridOffNoGridIsDrawn)
{
    openPainted();
    tickAt(100, 200);
    form.mnuGrid.Click();
    EXPECT_TRUE(form.PicJoy.isCleared());
    EXPECT_FALSE(form.mnuGrid.Checked);
    for (const Stroke& stroke : strokesOfTickAt(300, 400)) EXPECT_FALSE(stroke.dotted);
}

TEST_F(JoyPlotTest, ClearEmptiesTheFieldAndTheNextTickPaintsItsLinesAgain)
{
    openPainted();
    tickAt(100, 200);
    form.mnuClear.Click();
    EXPECT_TRUE(form.PicJoy.isCleared());
    EXPECT_TRUE(form.PicJoy.strokes().empty());
    form.JoyTimer.Tick();
    EXPECT_THAT(form.PicJoy.strokes(), testing::IsSupersetOf(centreLines(red, red) + grid()));
}

TEST_F(JoyPlotTest, ZoomShowsTheMiddleAndDrawsItsCentreLinesInRed)
{
    openPainted();
    tickAt(100, 200);
    form.mnuZoom.Click();
    EXPECT_TRUE(form.mnuZoom.Checked);
    EXPECT_EQ(form.PicJoy.low(), 22768);
    EXPECT_EQ(form.PicJoy.high(), 42768);
    EXPECT_TRUE(form.PicJoy.isCleared());
    EXPECT_EQ(form.PicJoy.strokes(), cross(100, 200, 750, white) + centreLines(red, red, 22768, 42768));
    form.mnuZoom.Click();
    EXPECT_EQ(form.PicJoy.low(), 0);
    EXPECT_EQ(form.PicJoy.high(), 65535);
}

TEST_F(JoyPlotTest, ZoomedATickDrawsAStickOffTheFieldAllTheSame)
{
    openPainted();
    form.mnuZoom.Click();
    const auto strokes = strokesOfTickAt(22767, 42769);
    EXPECT_THAT(strokes, testing::IsSupersetOf(cross(22767, 42769, 750, black)));
    EXPECT_THAT(strokes, testing::IsSupersetOf(centreLines(red, red, 0, 42768) + grid(42768)));
}

TEST_F(JoyPlotTest, TheFieldFillsTheWindow)
{
    open();
    form.InnerWidth = 640;
    form.InnerHeight = 480;
    Form_Resize(form);
    EXPECT_EQ(form.PicJoyPlace.get(), (Placement{0, 0, 640, 480}));
}

TEST_F(JoyPlotTest, MaintainingTheRatioMakesTheFieldASquareOfTheSmallerSide)
{
    open();
    std::vector<std::pair<int, int>> wanted;
    const auto listening = form.sizeWanted.connect([&](int width, int height) { wanted.emplace_back(width, height); });
    form.InnerWidth = 640;
    form.InnerHeight = 480;
    form.form.State = WindowState::Maximised;
    form.mnuMaintain.Click();
    EXPECT_TRUE(form.mnuMaintain.Checked);
    EXPECT_EQ(form.form.State.get(), WindowState::Normal);
    EXPECT_EQ(form.PicJoyPlace.get(), (Placement{0, 0, 480, 480}));
    EXPECT_THAT(wanted, ElementsAre(std::pair(480, 480)));
    form.mnuMaintain.Click();
    EXPECT_EQ(form.PicJoyPlace.get(), (Placement{0, 0, 640, 480}));
    form.InnerWidth = 300;
    form.mnuMaintain.Click();
    EXPECT_EQ(form.PicJoyPlace.get(), (Placement{0, 0, 300, 300})) << "whichever is smaller";
}

TEST_F(JoyPlotTest, ArrangeHandsTheModeOn)
{
    std::vector<int> modes;
    form.Arrange = [&](int mode) { modes.push_back(mode); };
    for (int i = 0; i < 4; ++i) form.mnuArrange[i].Click();
    EXPECT_THAT(modes, ElementsAre(0, 1, 2, 3));
}

TEST_F(JoyPlotTest, HelpEntriesShowTheirTopics)
{
    std::vector<int> topics;
    editor().operations.HelpTopic = [&](int topic) { topics.push_back(topic); };
    open();
    form.mnuHelpOverview.Click();
    form.mnuhelpSpiking.Click();
    EXPECT_TRUE(form.mnuHelpOverview.Enabled);
    EXPECT_THAT(topics, ElementsAre(7021, 9410));
}

TEST_F(JoyPlotTest, HelpEntriesAreGreyedWithoutHelp)
{
    editor().operations.HelpTopic = {};
    open();
    EXPECT_FALSE(form.mnuHelpOverview.Enabled);
    EXPECT_FALSE(form.mnuhelpSpiking.Enabled);
}

TEST_F(JoyPlotTest, ReadMeWarnsOfTheLoad)
{
    form.mnuReadMe.Click();
    EXPECT_EQ(lastBox().title, "Be kind on your CPU");
    EXPECT_EQ(
        lastBox().text,
        "Don't leave this running when you're using other parts of Tarvex, as it may slow down Tarvex because the "
        "program is constantly reading data from the joystick. The centre lines will change to green if the "
        "joystick is centred on that axis.");
}

// ---- failures ----

TEST_F(JoyPlotTest, UnpluggingGivesOneMessageAndAFrozenDisplay)
{
    openPainted();
    tickAt(100, 200);
    form.PicJoy.painted();
    joystick.send(5, 5);
    joystick.unplug();
    form.JoyTimer.Tick();
    ASSERT_EQ(dialogues.boxes.size(), 1U);
    EXPECT_EQ(lastBox().text, "I think your joystick is unplugged, or incorrectly set up under Windows. Please "
                              "investigate further!");
    EXPECT_EQ(lastBox().icon, BoxIcon::None);
    EXPECT_FALSE(form.JoyTimer.Enabled);
    EXPECT_TRUE(form.PicJoy.strokes().empty());
    joystick.positionResult = joyError::none; // it comes back
    joystick.send(300, 400);
    EXPECT_TRUE(form.waiting.empty()) << "alive again only when it is reopened";
    form.mnuexit.Click();
    joystick.capsResult = joyError::none;
    open();
    EXPECT_TRUE(form.JoyTimer.Enabled);
}

TEST_F(JoyPlotTest, AJoystickThatVanishesAtOpeningGivesOneMessage)
{
    open(); // its capabilities could be read
    joystick.unplug();
    form.JoyTimer.Tick();
    ASSERT_EQ(dialogues.boxes.size(), 1U);
    EXPECT_THAT(lastBox().text, testing::StartsWith("I think your joystick is unplugged"));
    EXPECT_FALSE(form.JoyTimer.Enabled);
    EXPECT_TRUE(form.form.isLoaded());
}

TEST_F(JoyPlotTest, AJoystickThatVanishesWhileADialogueIsUpGivesOneMessage)
{
    openPainted();
    tickAt(100, 200);
    dialogues.filesToSave.push_back({});
    dialogues.whileSaving = [&] {
        joystick.unplug();
        form.JoyTimer.Tick();
    };
    form.numbers.SaveSamples.Click();
    EXPECT_EQ(dialogues.boxes.size(), 1U);
    EXPECT_FALSE(form.JoyTimer.Enabled);
}

TEST_F(JoyPlotTest, AMinuteOfEightThousandReportsASecondIsAllInTheTrail)
{
    openPainted();
    tickAt(0, 0);
    constexpr int frames = 3'750;
    constexpr std::uint32_t inFrame = 128;
    int incomplete = 0;
    for (int frame = 0; frame < frames; ++frame) {
        form.PicJoy.painted();
        for (std::uint32_t i = 0; i < inFrame; ++i) joystick.send(i * 500, 65535 - i * 500, 125);
        form.JoyTimer.Tick();
        // Each report but the last has its erased cross and its mark; the last one its cross and the lines, too.
        const std::size_t expected = inFrame * 4 + 4 + 2 + 12;
        incomplete += form.PicJoy.strokes().size() == expected ? 0 : 1;
    }
    EXPECT_EQ(incomplete, 0);
    EXPECT_TRUE(form.waiting.empty());
    EXPECT_EQ(form.numbers.statistics.reports(), 1 + std::size_t{frames} * inFrame);
    EXPECT_NEAR(form.numbers.statistics.rate(), 8000, 1);
}

TEST_F(JoyPlotTest, AnyOtherErrorGivesItsOwnMessage)
{
    openPainted();
    joystick.positionResult = 165;
    form.JoyTimer.Tick();
    EXPECT_EQ(lastBox().text,
              "Ooohhh....something's happened to the signal from the joystick. Please check your settings, close down "
              "the joystick analyser, and restart it to see if I can pick it up again.");
    EXPECT_FALSE(form.JoyTimer.Enabled);
}

TEST_F(JoyPlotTest, ReportsThatWaitWhenTheWindowClosesAreNotShownAtTheNextOpening)
{
    openPainted();
    joystick.send(5, 5);
    EXPECT_EQ(form.waiting.size(), 1U);
    form.mnuexit.Click();
    open();
    form.JoyTimer.Tick();
    EXPECT_EQ(form.numbers.statistics.reports(), 0U);
}

TEST_F(JoyPlotTest, ReportsThatComeWhileNothingIsReadAreNotKept)
{
    joystick.send(1, 1);
    EXPECT_TRUE(form.waiting.empty());
    open();
    form.mnuexit.Click();
    joystick.send(2, 2);
    EXPECT_TRUE(form.waiting.empty());
}

TEST_F(JoyPlotTest, EachOpeningForgetsWhatTheCommandsSet)
{
    openPainted();
    tickAt(100, 200);
    for (MenuItem* command : {&form.mnuPlot, &form.mnuGrid, &form.mnuMaintain}) command->Click();
    form.PicJoy.painted();
    form.mnuexit.Click();
    open();
    EXPECT_EQ(form.LastY, 0U);
    EXPECT_EQ(form.PlotOn, 1);
    EXPECT_EQ(form.GridOn, 1);
    EXPECT_EQ(form.MaintainRatio, 0);
    EXPECT_TRUE(form.PicJoy.isCleared());
}

TEST_F(JoyPlotTest, WhatChangesTheFieldAsksForAPaintingAndATickWhileTheJoystickIsRead)
{
    int painted = 0;
    int asked = 0;
    const Connection painting = form.PicJoy.refreshWanted.connect([&painted] { ++painted; });
    const Connection asking = form.reportArrived.connect([&asked] { ++asked; });
    const auto paints = [&painted] { return std::exchange(painted, 0) > 0; };
    const auto asks = [&asked] { return std::exchange(asked, 0) > 0; };
    open();
    EXPECT_TRUE(paints() && asks());
    form.mnuClear.Click();
    EXPECT_TRUE(paints() && asks());
    form.mnuMaintain.Click();
    EXPECT_TRUE(paints() && asks());
    joystick.send(1, 2);
    EXPECT_TRUE(asks());
    joystick.caps.wCaps = 0;
    joystick.devicesChanged();
    EXPECT_TRUE(asks());
    EXPECT_EQ(form.Caps.wCaps, 0U);
    form.mnuexit.Click();
    asked = 0;
    joystick.caps.wCaps = joyCaps::hasZ;
    joystick.devicesChanged();
    form.mnuMaintain.Click();
    EXPECT_FALSE(asks()) << "nothing is read";
    EXPECT_EQ(form.Caps.wCaps, 0U);
}

TEST_F(JoyPlotTest, ATickStandsWhereTheLastReportWas)
{
    openPainted();
    joystick.send(5, 6);
    joystick.position.dwXpos = 900; // and has not reported it yet
    form.JoyTimer.Tick();
    EXPECT_EQ(form.LastX, 5U);
    EXPECT_EQ(form.LastY, 6U);
}

TEST_F(JoyPlotTest, ItsHelpMenuOpensTheHandbookWhereThereIsOne)
{
    int opened = 0;
    menus().mnuHelpContents.handler = [&opened] { ++opened; };
    open();
    EXPECT_TRUE(form.mnuHelpContents.Enabled);
    form.mnuHelpContents.Click();
    EXPECT_EQ(opened, 1);
    form.mnuexit.Click();
    menus().mnuHelpContents.handler = nullptr;
    open();
    EXPECT_FALSE(form.mnuHelpContents.Enabled);
}

TEST_F(JoyPlotTest, ItsMenusHaveTheirCommands)
{
    EXPECT_EQ(menuText(form.menuBar()), "&File\n"
                                        " E&xit joystick analyser\n"
                                        "&View\n"
                                        " &Clear\n"
                                        " -\n"
                                        " &Plot\n"
                                        " Show &grid\n"
                                        " &Zoom\n"
                                        " &Maintain 1:1 ratio\n"
                                        " -\n"
                                        " Show &numbers\n"
                                        "&Window\n"
                                        " &Cascade\n"
                                        " Tile &horizontally\n"
                                        " Tile &vertically\n"
                                        " &Arrange icons\n"
                                        "&Help\n"
                                        " &Contents\n"
                                        " &Overview\n"
                                        " What's &spiking?\n"
                                        " -\n"
                                        " &Read me\n");
}

} // namespace
} // namespace tarvex
