#include "testers/numbers.h"

#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct NumbersTest : testing::Test, TestProgram {
    JoyPlot& form = program().testers.joyPlot;
    Numbers& numbers = form.numbers;

    void SetUp() override
    {
        menus().mnuAppsJoyAnalyser.Click();
        numbers.mnuNumbers.Click();
    }
    void send(std::uint32_t x, int times, std::int64_t step = 1000)
    {
        for (int i = 0; i < times; ++i) joystick.send(x, 32768, step);
        form.JoyTimer.Tick();
    }
    std::string kept(const char* key) { return program().shared.platformIni.readString("Joystick", key, "(none)"); }
    std::string cell(std::size_t role, std::size_t column) { return numbers.Cells[role][column].Caption; }
};

TEST_F(NumbersTest, ThePanelIsFoldedAwayUntilTheUserWantsItAndStaysAsItWasLeft)
{
    EXPECT_TRUE(numbers.Visible);
    EXPECT_TRUE(numbers.mnuNumbers.Checked);
    form.mnuexit.Click();
    numbers.Visible = false;
    menus().mnuAppsJoyAnalyser.Click();
    EXPECT_TRUE(numbers.Visible);
    numbers.mnuNumbers.Click();
    EXPECT_FALSE(numbers.Visible);
    EXPECT_EQ(kept("Numbers"), "0");
}

TEST_F(NumbersTest, AStickAtRestIsJudged)
{
    send(32896, 2000);
    reportsPaused(form, 1000);
    EXPECT_EQ(cell(axisRole::x, 0), "32896");
    EXPECT_EQ(cell(axisRole::x, 5), "+0.4 %");
    EXPECT_EQ(numbers.Verdict.Caption.get(), "Centred within 0.4 %.");
}

TEST_F(NumbersTest, WhatIsNothingHasNoMinus)
{
    send(32768, 2000);
    numbers.refresh(); // the first rest, which the drift counts from
    send(32767, 500);
    numbers.refresh();
    EXPECT_EQ(cell(axisRole::x, 5), "+0.0 %");
    EXPECT_EQ(cell(axisRole::x, 8), "+0");
}

TEST_F(NumbersTest, AStickOffItsCentreIsToBeCalibrated)
{
    send(36000, 2000);
    EXPECT_THAT(numbers.Verdict.Caption.get(), HasSubstr("Off centre by 9.9 % on X"));
}

TEST_F(NumbersTest, SpikesAreReportedWithTheirNumberAndTime)
{
    for (int i = 0; i < 7; ++i) {
        send(32768, 8571);
        send(60000, 1);
    }
    send(32768, 2);
    reportsPaused(form, 1000);
    EXPECT_THAT(numbers.Verdict.Caption.get(), HasSubstr(" 7 spikes on X in 60 s: clean or replace that pot."));
}

TEST_F(NumbersTest, WithoutReportsTheUserIsAskedToMoveTheStick)
{
    EXPECT_THAT(numbers.Verdict.Caption.get(), HasSubstr("wiggle"));
    EXPECT_EQ(cell(axisRole::x, 0), "");
}

TEST_F(NumbersTest, AnAxisThatTheDeviceLacksHasNoNumbers)
{
    joystick.caps.wCaps = joyCaps::hasZ;
    send(32768, 10);
    reportsPaused(form, 1000);
    EXPECT_NE(cell(axisRole::throttle, 0), "");
    EXPECT_EQ(cell(axisRole::rudder, 0), "");
}

TEST_F(NumbersTest, StartAgainForgetsWhatWasMeasured)
{
    send(0, 10);
    numbers.StartAgain.Click();
    send(32768, 10);
    reportsPaused(form, 1000);
    EXPECT_EQ(cell(axisRole::x, 1), "32768");
}

TEST_F(NumbersTest, SamplesAreSavedWithTheirTimes)
{
    joystick.position.dwZpos = 7;
    joystick.position.dwRpos = 9;
    joystick.position.dwButtons = 5;
    send(100, 1, 1000);
    send(200, 1, 125);
    dialogues.filesToSave = {std::string("c:\\tarvex\\stick.csv")};
    numbers.SaveSamples.Click();
    EXPECT_EQ(fileText("c:\\tarvex\\stick.csv"), "microseconds,x,y,throttle,rudder,buttons\r\n"
                                                 "0,100,32768,7,9,5\r\n"
                                                 "125,200,32768,7,9,5\r\n");
}

TEST_F(NumbersTest, ThePictureIsSavedAsTheWindowGivesIt)
{
    numbers.picture = [] { return std::string("PNG bytes"); };
    dialogues.filesToSave = {std::string("c:\\tarvex\\stick.png"), std::nullopt};
    numbers.SavePicture.Click();
    EXPECT_EQ(fileText("c:\\tarvex\\stick.png"), "PNG bytes");
    numbers.SavePicture.Click(); // cancelled
    EXPECT_TRUE(dialogues.boxes.empty());
}

TEST_F(NumbersTest, AFileThatCannotBeWrittenIsReported)
{
    dialogues.filesToSave = {std::string("c:\\nowhere\\stick.csv")};
    numbers.SaveSamples.Click();
    EXPECT_EQ(lastBox().title, "Ooops!");
    EXPECT_THAT(lastBox().text, testing::StartsWith("I couldn't write c:\\nowhere\\stick.csv: "));
}

TEST_F(NumbersTest, TheSummaryIsCopiedAsText)
{
    send(32768, 2000);
    numbers.CopySummary.Click();
    EXPECT_THAT(clipboard.content.text, HasSubstr("TM F-22 Pro (4 axes, 4 buttons)\n"));
    EXPECT_THAT(clipboard.content.text, HasSubstr("1000 reports a second"));
    EXPECT_THAT(clipboard.content.text, HasSubstr("X: Now 32768, Lowest 32768"));
    EXPECT_THAT(clipboard.content.text, HasSubstr("Centred within 0.0 %."));
}

TEST_F(NumbersTest, KernelFiltersAreShown)
{
    joystick.plugged[0].axes[0].flat = 15;
    joystick.plugged[0].axes[0].fuzz = 3;
    joystick.devicesChanged();
    EXPECT_THAT(numbers.Kernel.Caption.get(), HasSubstr("X flat 15 fuzz 3"));
}

TEST_F(NumbersTest, EachColumnOfAnAxisAtRestHasItsNumber)
{
    send(0, 1);
    send(65535, 1);
    for (int i = 0; i < 998; ++i) send(i % 2 == 0 ? 32700 : 32900, 1);
    numbers.refresh();
    for (std::size_t column = 4; column < Numbers::columns.size(); ++column)
        EXPECT_EQ(cell(axisRole::x, column), column == 7 ? "0" : "-") << "not long enough at rest";
    for (int i = 0; i < 1000; ++i) send(i % 2 == 0 ? 32700 : 32900, 1);
    numbers.refresh();
    const char* expected[] = {"32900", "0", "65535", "100.0 %", "32800", "+0.1 %", "100.0 (200)", "0", "+0"};
    for (std::size_t column = 0; column < Numbers::columns.size(); ++column)
        EXPECT_EQ(cell(axisRole::x, column), expected[column]) << Numbers::columns[column];
    send(32300, 7000);
    numbers.refresh();
    EXPECT_EQ(cell(axisRole::x, 8), "-500") << "since the first rest";
    EXPECT_EQ(cell(axisRole::x, 5), "-1.4 %");
}

TEST_F(NumbersTest, TheRateIsShownWithWhatASpikeIs)
{
    send(32768, 2000);
    numbers.refresh();
    EXPECT_EQ(numbers.Rate.Caption.get(),
              "1000 reports a second, 2000 so far. A spike is a jump over 1500 and back within 20 ms.");
}

TEST_F(NumbersTest, TheNumbersAreRefreshedAfterAQuarterOfASecondOfReports)
{
    joystick.send(1, 0, 1000);
    numbers.refresh();
    const auto shownAfter = [this](std::uint32_t x, std::int64_t later) {
        joystick.send(x, 0, later);
        form.JoyTimer.Tick();
        return cell(axisRole::x, 0);
    };
    shownAfter(1, 500'000);
    EXPECT_EQ(shownAfter(2, 249'999), "1");
    EXPECT_EQ(shownAfter(3, 1), "3");
    EXPECT_EQ(shownAfter(4, 249'999), "3") << "it counts from the last time";
}

TEST_F(NumbersTest, AFoldedPanelIsNotRefreshed)
{
    numbers.mnuNumbers.Click();
    send(5, 1, 1'000'000);
    numbers.refresh();
    EXPECT_EQ(cell(axisRole::x, 0), "");
    numbers.mnuNumbers.Click();
    EXPECT_EQ(cell(axisRole::x, 0), "5") << "unfolding shows what is known";
}

TEST_F(NumbersTest, StartAgainShowsAtOnceThatNothingIsMeasured)
{
    send(0, 10, 100'000);
    EXPECT_NE(cell(axisRole::x, 0), "");
    numbers.StartAgain.Click();
    EXPECT_EQ(cell(axisRole::x, 0), "");
    EXPECT_EQ(numbers.Rate.Caption.get().substr(0, 30), "0 reports a second, 0 so far. ");
}

TEST_F(NumbersTest, TheButtonsHaveTheirCaptions)
{
    EXPECT_EQ(numbers.SavePicture.Caption.get(), "Save &picture...");
    EXPECT_EQ(numbers.SaveSamples.Caption.get(), "Save &samples...");
    EXPECT_EQ(numbers.CopySummary.Caption.get(), "&Copy summary");
    EXPECT_EQ(numbers.StartAgain.Caption.get(), "Start &again");
}

TEST_F(NumbersTest, FilesAreSavedAsPngAndCsv)
{
    dialogues.filesToSave = {std::nullopt, std::nullopt};
    numbers.SavePicture.Click();
    numbers.SaveSamples.Click();
    const FileRequest& png = dialogues.saveRequests.at(0);
    EXPECT_EQ(png.title, "Save picture");
    EXPECT_EQ(png.filter, "Pictures (*.png)|*.png");
    EXPECT_EQ(png.defaultExtension, "png");
    const FileRequest& csv = dialogues.saveRequests.at(1);
    EXPECT_EQ(csv.title, "Save samples");
    EXPECT_EQ(csv.filter, "Comma-separated values (*.csv)|*.csv");
    EXPECT_EQ(csv.defaultExtension, "csv");
}

TEST_F(NumbersTest, WithoutAReportTheSamplesAreTheHeadingAlone)
{
    dialogues.filesToSave = {std::string("c:\\tarvex\\stick.csv")};
    numbers.SaveSamples.Click();
    EXPECT_EQ(fileText("c:\\tarvex\\stick.csv"), "microseconds,x,y,throttle,rudder,buttons\r\n");
}

TEST_F(NumbersTest, TheSummaryHasALineForEachAxisThatIsThere)
{
    joystick.caps.wCaps = joyCaps::hasR;
    joystick.plugged[0].axes[1].fuzz = 2;
    joystick.devicesChanged();
    send(32768, 2000);
    numbers.refresh();
    EXPECT_EQ(
        numbers.summary(),
        "TM F-22 Pro (4 axes, 4 buttons)\n"
        "1000 reports a second, 2000 so far. A spike is a jump over 1500 and back within 20 ms.\n"
        "Centred within 0.0 %.\n"
        "The kernel's own filters: Y flat 0 fuzz 2 (of the device's units). Fuzz hides small tremors from these "
        "numbers.\n"
        "X: Now 32768, Lowest 32768, Highest 32768, Range 0.0 %, At rest 32768, Off centre +0.0 %, Noise 0.0 (0), "
        "Spikes 0, Drift +0\n"
        "Y: Now 32768, Lowest 32768, Highest 32768, Range 0.0 %, At rest 32768, Off centre +0.0 %, Noise 0.0 (0), "
        "Spikes 0, Drift +0\n"
        "Rudder: Now 32768, Lowest 32768, Highest 32768, Range 0.0 %, At rest 32768, Off centre +0.0 %, Noise 0.0 "
        "(0), Spikes 0, Drift +0\n");
}

TEST_F(NumbersTest, KernelFiltersOfSeveralAxesAreListedAndThoseOfNoneAreNotMentioned)
{
    joystick.devicesChanged();
    EXPECT_EQ(numbers.Kernel.Caption.get(), "");
    joystick.plugged[0].axes[0].flat = 15;
    joystick.plugged[0].axes[3].fuzz = 1;
    joystick.devicesChanged();
    EXPECT_EQ(numbers.Kernel.Caption.get(), "The kernel's own filters: X flat 15 fuzz 0, Rudder flat 0 fuzz 1 (of the "
                                            "device's units). Fuzz hides small tremors from these numbers.");
}

// ---- what it means ----

struct VerdictTest : testing::Test {
    StickStatistics statistics;
    std::int64_t time = 1000;

    void send(std::uint32_t x, std::uint32_t y, int times, std::uint32_t throttle = 0, std::int64_t step = 1000)
    {
        for (int i = 0; i < times; ++i, time += step) {
            JoystickReport report;
            report.position.dwXpos = x;
            report.position.dwYpos = y;
            report.position.dwZpos = throttle;
            report.microseconds = time;
            statistics.add(report);
        }
    }
    std::string verdict(bool hasThrottle = false) { return verdictOf(statistics, hasThrottle, false); }
};

TEST_F(VerdictTest, WithoutReportsIsAnInvitation)
{
    EXPECT_EQ(verdict(), "Nothing has come from the joystick yet. Go on, wiggle it!");
}

TEST_F(VerdictTest, TwoPerCentFromTheCentreIsCentredAndMoreIsNot)
{
    send(32768 + 655, 32768, 2000);
    EXPECT_EQ(verdict(), "Centred within 2.0 %.");
    statistics.clear();
    send(32768 + 660, 32768, 2000);
    EXPECT_EQ(verdict(), "Off centre by 2.0 % on X, if you have let go of the stick: calibrate it.");
    statistics.clear();
    send(32768 + 700, 32768 - 3277, 2000);
    EXPECT_EQ(verdict(), "Off centre by 10.0 % on Y, if you have let go of the stick: calibrate it.");
}

TEST_F(VerdictTest, AStickThatHasNotRestedForASecondIsNotJudged)
{
    const std::string moving = "Let go of the stick for a moment, and I'll judge its centring.";
    send(32768, 32768, 999);
    EXPECT_EQ(verdict(), moving);
    send(32768, 32768, 1001);
    EXPECT_EQ(verdict(), "Centred within 0.0 %.");
    send(50000, 32768, 500);
    EXPECT_EQ(verdict(), moving);
}

TEST_F(VerdictTest, RestsOverTwoThousandUnitsAreAMovement)
{
    for (int i = 0; i < 1000; ++i) {
        send(32768, 31768, 2);
        send(32768, 32768, 2);
        send(32768, 33168, 2);
    }
    EXPECT_EQ(verdict().substr(0, 10), "Centred wi") << "1400 from end to end";
    statistics.clear();
    for (int i = 0; i < 1000; ++i) {
        send(32768, 31668, 2);
        send(32768, 32768, 2);
        send(32768, 33868, 2);
        send(32768, 32768, 2);
    }
    EXPECT_EQ(verdict().substr(0, 10), "Let go of ") << "2200 from end to end";
}

TEST_F(VerdictTest, OneSpikeIsInTheSingularAndItsTimeIsOneSecondAtLeast)
{
    send(32768, 32768, 100);
    send(60000, 32768, 1);
    send(32768, 32768, 100);
    EXPECT_THAT(verdict(), testing::EndsWith(" 1 spike on X in 1 s: clean or replace that pot."));
    send(32768, 32768, 1300);
    EXPECT_THAT(verdict(), testing::EndsWith(" 1 spike on X in 2 s: clean or replace that pot.")) << "1.5 s";
}

TEST_F(VerdictTest, NoiseOfMoreThanAThousandthOfTheRangeTimesThreeIsTrembling)
{
    for (int i = 0; i < 1000; ++i) {
        send(32768, 32768, 2, 1000);
        send(32768, 32768, 2, 1386);
    }
    EXPECT_EQ(verdict(true), "Centred within 0.0 %.") << "193 of 65535 units";
    EXPECT_EQ(verdict(false), "Centred within 0.0 %.");
    statistics.clear();
    for (int i = 0; i < 1000; ++i) {
        send(32768, 32768, 2, 1000);
        send(32768, 32768, 2, 1410);
    }
    EXPECT_EQ(verdict(true), "Centred within 0.0 %. Throttle trembles by 0.3 % at rest.");
    EXPECT_EQ(verdict(false), "Centred within 0.0 %.") << "a throttle that isn't there";
}

// ---- devices and axes ----

TEST_F(NumbersTest, AChosenDeviceIsKeptByNameAndGuid)
{
    joystick.plugged.push_back(FakeJoystick::deviceNamed("WCS", "77"));
    joystick.devicesChanged();
    EXPECT_THAT(numbers.Device.Items.get(), ElementsAre("TM F-22 Pro (4 axes, 4 buttons)", "WCS (4 axes, 4 buttons)"));
    numbers.Device.Text = "WCS (4 axes, 4 buttons)";
    numbers.Device.Click();
    EXPECT_EQ(joystick.wanted.guid, "77");
    EXPECT_EQ(kept("Name"), "WCS");
    EXPECT_EQ(kept("Guid"), "77");
    form.mnuexit.Click();
    joystick.wanted = {};
    menus().mnuAppsJoyAnalyser.Click();
    EXPECT_EQ(joystick.wanted.name, "WCS");
    form.mnuexit.Click();
    joystick.wanted = {};
    menus().mnuSendToKeyTest.Click();
    EXPECT_EQ(joystick.wanted.name, "WCS") << "the key tester shows the same one";
}

TEST_F(NumbersTest, TwoDevicesOfOneNameAreNumbered)
{
    joystick.plugged.push_back(joystick.plugged[0]);
    joystick.devicesChanged();
    EXPECT_THAT(numbers.Device.Items.get(),
                ElementsAre("TM F-22 Pro (4 axes, 4 buttons)", "TM F-22 Pro (4 axes, 4 buttons) no. 2"));
    numbers.Device.Text = "TM F-22 Pro (4 axes, 4 buttons) no. 2";
    numbers.Device.Click();
    EXPECT_EQ(joystick.chosen(), 1U);
    EXPECT_EQ(numbers.Device.Text.get(), "TM F-22 Pro (4 axes, 4 buttons) no. 2");
}

TEST_F(NumbersTest, AnAxisThatTheUserChoseIsKept)
{
    joystick.devicesChanged();
    ComboBox& throttle = numbers.Axis[axisRole::throttle];
    EXPECT_THAT(throttle.Items.get(), ElementsAre("Automatic: Throttle", "None", "X", "Y", "Throttle", "Rudder"));
    EXPECT_EQ(throttle.Text.get(), "Automatic: Throttle");
    throttle.Text = "Rudder";
    throttle.Click();
    EXPECT_EQ(joystick.wanted.axes, (std::array<int, 4>{axisByGuess, axisByGuess, 3, axisByGuess}));
    EXPECT_EQ(kept("AxisThrottle"), "3");
    EXPECT_EQ(throttle.Text.get(), "Rudder");
    throttle.Text = "None";
    throttle.Click();
    EXPECT_EQ(kept("AxisThrottle"), "-2");
    throttle.Text = "Automatic: Throttle";
    throttle.Click();
    EXPECT_EQ(joystick.wanted.axes[axisRole::throttle], axisByGuess);
}

TEST_F(NumbersTest, ADeviceThatCameWhileTheWindowWasClosedIsListed)
{
    form.mnuexit.Click();
    joystick.plugged.push_back(FakeJoystick::deviceNamed("WCS", "77"));
    menus().mnuAppsJoyAnalyser.Click();
    EXPECT_EQ(numbers.Device.Items.get().size(), 2U);
}

TEST_F(NumbersTest, EachOf32AxesCanBeChosen)
{
    JoystickDevice& device = joystick.plugged.front();
    device.buttons = 128;
    for (std::size_t i = device.axes.size(); i < mostAxes; ++i) device.axes.push_back({.name = axisName(-1, i)});
    joystick.devicesChanged();
    EXPECT_EQ(numbers.Device.Text.get(), "TM F-22 Pro (32 axes, 128 buttons)");
    ComboBox& rudder = numbers.Axis[axisRole::rudder];
    ASSERT_EQ(rudder.Items.get().size(), 2 + mostAxes);
    rudder.Text = "Axis 32";
    rudder.Click();
    EXPECT_EQ(joystick.wanted.axes[axisRole::rudder], 31);
    EXPECT_EQ(rudder.Text.get(), "Axis 32");
}

TEST_F(NumbersTest, ADeviceWithoutAxesHasNoneToChoose)
{
    joystick.plugged.front().axes.clear();
    joystick.caps.wCaps = 0;
    joystick.devicesChanged();
    EXPECT_THAT(numbers.Axis[axisRole::x].Items.get(), ElementsAre("Automatic: none", "None"));
    send(32768, 1);
    EXPECT_EQ(cell(axisRole::throttle, 0), "");
}

TEST_F(NumbersTest, ThreeDevicesOfOneNameAreNumbered)
{
    joystick.plugged.assign(3, joystick.plugged[0]);
    joystick.devicesChanged();
    EXPECT_THAT(numbers.Device.Items.get(),
                ElementsAre("TM F-22 Pro (4 axes, 4 buttons)", "TM F-22 Pro (4 axes, 4 buttons) no. 2",
                            "TM F-22 Pro (4 axes, 4 buttons) no. 3"));
    numbers.Device.Text = "TM F-22 Pro (4 axes, 4 buttons) no. 3";
    numbers.Device.Click();
    EXPECT_EQ(kept("Number"), "2");
    EXPECT_EQ(joystick.chosen(), 2U);
}

TEST_F(NumbersTest, ADeviceThatIsNotListedAnyMoreChoosesNothing)
{
    numbers.Device.Text = "Another (4 axes, 4 buttons)";
    numbers.Device.Click();
    EXPECT_EQ(kept("Name"), "(none)");
}

TEST_F(NumbersTest, WithoutADeviceNothingIsShownOfOneAndNoAxisCanBeChosen)
{
    joystick.plugged[0].axes[0].flat = 15;
    joystick.devicesChanged();
    joystick.unplug();
    EXPECT_EQ(numbers.Device.Text.get(), "");
    EXPECT_EQ(numbers.Kernel.Caption.get(), "");
    EXPECT_THAT(numbers.Device.Items.get(), ElementsAre());
    numbers.Axis[axisRole::x].Text = "None";
    numbers.Axis[axisRole::x].Click();
    EXPECT_EQ(kept("AxisX"), "(none)");
}

TEST_F(NumbersTest, EachAxisIsKeptUnderItsKey)
{
    joystick.devicesChanged();
    const char* keys[] = {"AxisX", "AxisY", "AxisThrottle", "AxisRudder"};
    for (std::size_t role = 0; role < axisRole::count; ++role) {
        numbers.Axis[role].Text = "Y";
        numbers.Axis[role].Click();
        EXPECT_EQ(kept(keys[role]), "1") << keys[role];
    }
}

TEST_F(NumbersTest, AnAxisOfAFileThatTheDeviceLacksIsShownAsAutomatic)
{
    for (const auto& [axis, shown] : {std::pair("3", "Rudder"), std::pair("4", "Automatic: X"), std::pair("-2", "None"),
                                      std::pair("-1", "Automatic: X")}) {
        program().shared.platformIni.writeString("Joystick", "AxisX", axis);
        joystick.devicesChanged();
        EXPECT_EQ(numbers.Axis[axisRole::x].Text.get(), shown) << axis;
    }
}

TEST_F(NumbersTest, AnotherDeviceStartsWithNothingMeasured)
{
    send(0, 10, 100'000);
    EXPECT_NE(cell(axisRole::x, 0), "");
    numbers.Device.Click();
    EXPECT_EQ(numbers.statistics.reports(), 0U);
    EXPECT_EQ(cell(axisRole::x, 0), "");
    EXPECT_EQ(numbers.Rate.Caption.get().substr(0, 30), "0 reports a second, 0 so far. ");
}

TEST_F(NumbersTest, APauseLengthensTheRest)
{
    send(32768, 10);
    numbers.refresh();
    EXPECT_EQ(cell(axisRole::x, 4), "-");
    reportsPaused(form, 3000);
    EXPECT_EQ(cell(axisRole::x, 4), "32768");
}

TEST_F(NumbersTest, WhatIsMeasuredAnewIsShownFromItsFirstReport)
{
    send(1, 1, 1'000'000);
    numbers.StartAgain.Click();
    send(7, 1);
    EXPECT_EQ(cell(axisRole::x, 0), "7");
    numbers.Device.Click();
    send(8, 1);
    EXPECT_EQ(cell(axisRole::x, 0), "8");
    form.mnuexit.Click();
    menus().mnuAppsJoyAnalyser.Click();
    send(9, 1);
    EXPECT_EQ(cell(axisRole::x, 0), "9");
}

TEST_F(NumbersTest, AxesThatAreChosenOneAfterTheOtherAreAllKept)
{
    joystick.devicesChanged();
    numbers.Axis[axisRole::throttle].Text = "Rudder";
    numbers.Axis[axisRole::throttle].Click();
    numbers.Axis[axisRole::rudder].Text = "Throttle";
    numbers.Axis[axisRole::rudder].Click();
    EXPECT_EQ(joystick.wanted.axes, (std::array<int, 4>{axisByGuess, axisByGuess, 3, 2}));
}

TEST_F(NumbersTest, TheSecondOfTwoDevicesOfOneNameIsChosenAtTheNextOpening)
{
    joystick.plugged.push_back(joystick.plugged[0]);
    joystick.devicesChanged();
    numbers.Device.Text = "TM F-22 Pro (4 axes, 4 buttons) no. 2";
    numbers.Device.Click();
    const JoystickChoice chosen = joystick.wanted;
    form.mnuexit.Click();
    joystick.wanted = {};
    menus().mnuAppsJoyAnalyser.Click();
    EXPECT_EQ(joystick.wanted.guid, "0300f22");
    EXPECT_EQ(joystick.wanted.number, chosen.number);
    EXPECT_EQ(joystick.chosen(), 1U);
}

TEST_F(NumbersTest, TheVerdictLeavesOutAxesThatTheDeviceLacks)
{
    const auto verdict = [this](std::uint32_t caps) {
        joystick.caps.wCaps = caps;
        numbers.StartAgain.Click();
        for (int i = 0; i < 2000; ++i) {
            joystick.position.dwZpos = joystick.position.dwRpos = i % 2 == 0 ? 30000 : 30900;
            joystick.send(32768, 32768, 1000);
        }
        form.JoyTimer.Tick();
        numbers.refresh();
        return numbers.Verdict.Caption.get();
    };
    const std::string neither = verdict(0);
    const std::string throttle = verdict(joyCaps::hasZ);
    const std::string rudders = verdict(joyCaps::hasR);
    EXPECT_EQ(neither, "Centred within 0.0 %.");
    EXPECT_NE(throttle, neither);
    EXPECT_NE(rudders, neither);
    EXPECT_NE(throttle, rudders);
}

} // namespace
} // namespace tarvex
