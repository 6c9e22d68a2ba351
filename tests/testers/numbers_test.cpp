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

TEST_F(NumbersTest, AnotherDeviceStartsWithNothingMeasured)
{
    send(0, 10);
    numbers.Device.Click();
    EXPECT_EQ(numbers.statistics.reports(), 0U);
}

} // namespace
} // namespace tarvex
