#include "platform/joystick_axes.h"

#include <gtest/gtest.h>

#include <climits>

namespace tarvex {
namespace {

JoystickDevice deviceWith(std::initializer_list<int> codes)
{
    JoystickDevice device{"Stick", "1", {}, 0, 0};
    for (const int code : codes) device.axes.push_back({axisName(code, device.axes.size()), code, 0, 255, 0, 0});
    return device;
}

TEST(AxisName, IsThatOfItsCodeOrItsNumber)
{
    const char* names[] = {"X",        "Y",      "Z",     "X rotation", "Y rotation", "Twist",
                           "Throttle", "Rudder", "Wheel", "Gas",        "Brake"};
    for (int code = 0; code < 11; ++code) EXPECT_EQ(axisName(code, 3), names[code]);
    EXPECT_EQ(axisName(11, 3), "Axis 4");
    EXPECT_EQ(axisName(-1, 0), "Axis 1");
}

TEST(GuessAxes, ThrottleAndRudderAreTakenBeforeZAndTwist)
{
    EXPECT_EQ(guessAxes(deviceWith({0, 1, 2, 5, 6, 7})), (AxisMap{0, 1, 4, 5}));
}

TEST(GuessAxes, ZIsTheThrottleAndTwistTheRudderWithoutOthers)
{
    EXPECT_EQ(guessAxes(deviceWith({0, 1, 2, 5})), (AxisMap{0, 1, 2, 3}));
}

TEST(GuessAxes, ADeviceThatSaysNothingHasThemInOrder)
{
    EXPECT_EQ(guessAxes(deviceWith({-1, -1, -1})), (AxisMap{0, 1, 2, noAxis}));
}

TEST(GuessAxes, WithoutAxesThereAreNone)
{
    EXPECT_EQ(guessAxes(deviceWith({})), (AxisMap{noAxis, noAxis, noAxis, noAxis}));
    EXPECT_EQ(guessAxes(deviceWith({1})), (AxisMap{noAxis, 0, noAxis, noAxis}));
}

TEST(AxesOf, TheUsersChoicesReplaceTheGuess)
{
    JoystickChoice choice;
    choice.axes = {axisByGuess, 3, noAxis, axisByGuess};
    EXPECT_EQ(axesOf(deviceWith({0, 1, 2, 5}), choice), (AxisMap{0, 3, noAxis, 3}));
}

TEST(AxesOf, AChoiceThatTheDeviceLacksIsTheGuess)
{
    JoystickChoice choice;
    choice.axes = {2, -3, 31, 32};
    EXPECT_EQ(axesOf(deviceWith({0, 1}), choice), (AxisMap{0, 1, noAxis, noAxis}));
}

TEST(AxesOf, ADeviceWith32AxesHasThemAll)
{
    JoystickDevice device = deviceWith({});
    device.axes.resize(32);
    JoystickChoice choice;
    choice.axes = {31, 0, 30, axisByGuess};
    EXPECT_EQ(axesOf(device, choice), (AxisMap{31, 0, 30, 3}));
}

TEST(IndexOfJoystick, NameAndKindMustBothMatch)
{
    const std::vector<JoystickDevice> devices{
        {"Stick", "1", {}, 0, 0}, {"Stick", "2", {}, 0, 0}, {"Pedals", "2", {}, 0, 0}, {"Pedals", "2", {}, 0, 0}};
    EXPECT_EQ(indexOf({.name = "Stick", .guid = "2", .number = 0}, devices), 1U);
    EXPECT_EQ(indexOf({.name = "Pedals", .guid = "2", .number = 0}, devices), 2U);
    EXPECT_EQ(indexOf({.name = "Pedals", .guid = "2", .number = 1}, devices), 3U);
    EXPECT_EQ(indexOf({.name = "Pedals", .guid = "1", .number = 0}, devices), 0U) << "none of them: the first";
    EXPECT_FALSE(indexOf({.name = "Stick", .guid = "1", .number = 0}, {}));
}

TEST(AxisPosition, EndsOfTheRangeAreTheEndsOfTheScale)
{
    EXPECT_EQ(axisPosition(-32768, -32768, 32767), 0);
    EXPECT_EQ(axisPosition(0, -32768, 32767), 32768);
    EXPECT_EQ(axisPosition(32767, -32768, 32767), 65535);
    EXPECT_EQ(axisPosition(255, 0, 255), 65535);
    EXPECT_EQ(axisPosition(INT_MAX, INT_MIN, INT_MAX), 65535);
    EXPECT_EQ(axisPosition(INT_MIN, INT_MIN, INT_MAX), 0);
}

TEST(AxisPosition, ValuesBeyondTheRangeAreCut)
{
    EXPECT_EQ(axisPosition(-1, 0, 255), 0);
    EXPECT_EQ(axisPosition(256, 0, 255), 65535);
}

TEST(AxisPosition, ARangeOfNothingGivesTheCentre)
{
    EXPECT_EQ(axisPosition(7, 7, 7), 32768);
    EXPECT_EQ(axisPosition(7, 9, 3), 32768);
}

TEST(HatAngle, GoesClockwiseFromUp)
{
    EXPECT_EQ(hatAngle(0, 0), povCentred);
    const int around[][2] = {{0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}, {-1, -1}};
    std::uint32_t angle = 0;
    for (const auto& [x, y] : around) {
        EXPECT_EQ(hatAngle(x, y), angle);
        angle += 4500;
    }
    EXPECT_EQ(hatAngle(5, 0), 9000U);
}

TEST(ReportOf, AxesThatAreMissingStandInTheMiddle)
{
    DeviceState state;
    state.axes[0] = 10;
    const JoystickReport report = reportOf(state, {0, noAxis, noAxis, noAxis});
    EXPECT_EQ(report.position.dwXpos, 10U);
    EXPECT_EQ(report.position.dwYpos, 32768U);
    EXPECT_EQ(report.position.dwZpos, 32768U);
}

TEST(ReportOf, TheRecordHasTheFirst32ButtonsAndTheReportAll)
{
    DeviceState state;
    state.buttons.set(0).set(31).set(127);
    const JoystickReport report = reportOf(state, {noAxis, noAxis, noAxis, noAxis});
    EXPECT_EQ(report.position.dwButtons, 0x80000001U);
    EXPECT_TRUE(report.buttons[127]);
}

TEST(CapsOf, SayWhetherThereAreThrottleRuddersAndHats)
{
    JoystickDevice device = deviceWith({0, 1, 6});
    device.buttons = 128;
    const JOYCAPS caps = capsOf(device, guessAxes(device));
    EXPECT_EQ(caps.szPname, "Stick");
    EXPECT_EQ(caps.wCaps, joyCaps::hasZ);
    EXPECT_EQ(caps.wNumAxes, 3U);
    EXPECT_EQ(caps.wNumButtons, 128U);
    device.hats = 1;
    EXPECT_EQ(capsOf(device, {0, 1, noAxis, 2}).wCaps, joyCaps::hasR | joyCaps::hasPov);
}

TEST(AxisName, UnknownCodesAreNumbered)
{
    EXPECT_EQ(axisName(axisCode::throttle, 3), "Throttle");
    EXPECT_EQ(axisName(-1, 3), "Axis 4");
    EXPECT_EQ(axisName(40, 0), "Axis 1");
}

} // namespace
} // namespace tarvex
