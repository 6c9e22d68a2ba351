// The adapter on a device file, as a real stick has one.

#include "desktop/platform/sdl_joystick.h"
#include "mock_stick.h"

#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct EvdevJoystick : testing::Test {
    MockStick stick;
    SdlJoystick joystick;
    std::vector<JoystickReport> reports;
    Connection listening =
        joystick.reported.connect([this](const JoystickReport& report) { reports.push_back(report); });

    static void waitUntil(const std::function<bool()>& condition) { EXPECT_TRUE(QTest::qWaitFor(condition, 20'000)); }
    void sendX(int x, std::int64_t microseconds)
    {
        const std::size_t before = reports.size();
        stick.send({{EV_ABS, ABS_X, x}}, microseconds);
        waitUntil([&] { return reports.size() > before; });
    }
};

TEST_F(EvdevJoystick, TheDeviceIsDescribedAsTheKernelDoes)
{
    stick.plug();
    joystick.start();
    ASSERT_EQ(joystick.devices().size(), 1U);
    const JoystickDevice device = joystick.devices()[0];
    EXPECT_EQ(device.name, "Home-made stick");
    EXPECT_EQ(device.buttons, 5);
    EXPECT_EQ(device.hats, 1);
    ASSERT_EQ(device.axes.size(), 4U);
    EXPECT_EQ(device.axes[2].name, "Throttle");
    EXPECT_EQ(device.axes[0].flat, 15);
    EXPECT_EQ(device.axes[2].fuzz, 7);
    JOYCAPS caps;
    EXPECT_EQ(joystick.joyGetDevCapsA(caps), joyError::none);
    EXPECT_EQ(caps.wCaps, joyCaps::hasZ | joyCaps::hasR | joyCaps::hasPov);
}

TEST_F(EvdevJoystick, PositionsAreThereBeforeTheFirstReport)
{
    stick.plug();
    joystick.start();
    JOYINFOEX info;
    EXPECT_EQ(joystick.joyGetPosEx(info), joyError::none);
    EXPECT_EQ(info.dwXpos, 32896U);
    EXPECT_EQ(info.dwZpos, 65535U);
    EXPECT_EQ(info.dwRpos, 32800U);
}

TEST_F(EvdevJoystick, AReportOfSeveralAxesIsOneWithTheKernelsTime)
{
    stick.plug();
    joystick.start();
    stick.send({{EV_ABS, ABS_X, 0},
                {EV_ABS, ABS_Y, 255},
                {EV_ABS, ABS_THROTTLE, 0},
                {EV_KEY, BTN_TOP2, 1},
                {EV_ABS, ABS_HAT0X, -1}},
               123'456'789);
    waitUntil([&] { return !reports.empty(); });
    ASSERT_EQ(reports.size(), 1U);
    EXPECT_EQ(reports[0].microseconds, 123'456'789);
    EXPECT_EQ(reports[0].position.dwXpos, 0U);
    EXPECT_EQ(reports[0].position.dwYpos, 65535U);
    EXPECT_EQ(reports[0].position.dwZpos, 0U);
    EXPECT_EQ(reports[0].position.dwButtons, 16U);
    EXPECT_EQ(reports[0].hats[0], 27000U);
}

TEST_F(EvdevJoystick, OfAThousandReportsASecondNoneIsLost)
{
    stick.plug();
    joystick.start();
    for (int i = 0; i < 1000; ++i) sendX(i % 256, 1000 * (i + 1));
    ASSERT_EQ(reports.size(), 1000U);
    for (std::size_t i = 0; i < reports.size(); ++i) {
        EXPECT_EQ(reports[i].position.dwXpos, i % 256 * 257);
        EXPECT_EQ(reports[i].microseconds, static_cast<std::int64_t>(1000 * (i + 1)));
    }
}

TEST_F(EvdevJoystick, OfAHundredReportsASecondTheTimesAreKept)
{
    stick.plug();
    joystick.start();
    for (int i = 0; i < 100; ++i) sendX(i, 10'000 * (i + 1));
    EXPECT_EQ(reports.back().microseconds - reports.front().microseconds, 990'000);
}

TEST_F(EvdevJoystick, UnpluggedInTheMiddleItIsGoneAndComesBack)
{
    stick.plug();
    joystick.start();
    sendX(200, 1000);
    stick.unplug();
    JOYINFOEX info;
    waitUntil([&] { return joystick.joyGetPosEx(info) == joyError::unplugged; });
    EXPECT_FALSE(joystick.chosen().has_value());
    stick.plug();
    waitUntil([&] { return joystick.joyGetPosEx(info) == joyError::none; });
    sendX(0, 2000);
    EXPECT_EQ(reports.back().position.dwXpos, 0U);
}

TEST_F(EvdevJoystick, TheDeviceIsOnlyReadFrom)
{
    stick.plug();
    joystick.start();
    sendX(200, 1000);
    joystick.stop();
    EXPECT_EQ(stick.writes, 0);
}

} // namespace
} // namespace tarvex
