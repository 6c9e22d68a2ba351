// The way of a real stick: SDL finds its device file, and the adapter reads it.

#include "desktop/platform/sdl_joystick.h"

#include "mock_stick.h"

#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct DeviceFileTest : testing::Test {
    MockStick stick;
    SdlJoystick joystick;
    std::vector<JoystickReport> reports;
    int changes = 0;
    Connection listening =
        joystick.reported.connect([this](const JoystickReport& report) { reports.push_back(report); });
    Connection watching = joystick.devicesChanged.connect([this] { ++changes; });

    void SetUp() override
    {
        // SDL lists the device files by a call that umockdev doesn't redirect. Of this one it hears by name; from then
        // on it follows the folder, as on a real system.
        qputenv("SDL_JOYSTICK_DEVICE", MockStick::file);
        stick.plug();
        joystick.start();
        ASSERT_EQ(result(), joyError::none);
    }
    void TearDown() override { qunsetenv("SDL_JOYSTICK_DEVICE"); }

    int result()
    {
        JOYINFOEX info;
        return joystick.joyGetPosEx(info);
    }
    void waitUntil(const std::function<bool()>& condition) { EXPECT_TRUE(QTest::qWaitFor(condition, 20'000)); }
    void sendX(int x, std::int64_t microseconds) { stick.send({{EV_ABS, ABS_X, x}}, microseconds); }
};

TEST_F(DeviceFileTest, SdlFindsTheStickAndTheKernelDescribesIt)
{
    ASSERT_EQ(joystick.devices().size(), 1U);
    const JoystickDevice device = joystick.devices().front();
    EXPECT_EQ(device.name, "Home-made stick");
    EXPECT_EQ(device.guid.size(), 32U);
    EXPECT_EQ(device.buttons, 5);
    ASSERT_EQ(device.axes.size(), 4U);
    EXPECT_EQ(device.axes[0].flat, 15);
    JOYCAPS caps;
    EXPECT_EQ(joystick.joyGetDevCapsA(caps), joyError::none);
    EXPECT_EQ(caps.wCaps, joyCaps::hasZ | joyCaps::hasR | joyCaps::hasPov);
}

TEST_F(DeviceFileTest, OfAThousandReportsASecondNoneIsLostAndEachHasItsTime)
{
    constexpr int count = 1000;
    for (int i = 0; i < count; ++i) {
        sendX(i % 256, 1000 * (i + 1));
        if (i % 16 == 15) waitUntil([&] { return reports.size() == static_cast<std::size_t>(i + 1); }); // a frame
    }
    waitUntil([&] { return reports.size() == count; });
    for (std::size_t i = 0; i < reports.size(); ++i) {
        EXPECT_EQ(reports[i].position.dwXpos, i % 256 * 257) << i;
        EXPECT_EQ(reports[i].microseconds, static_cast<std::int64_t>(1000 * (i + 1)));
    }
}

TEST_F(DeviceFileTest, AStickThatIsUnpluggedBetweenAThousandReportsASecondIsUnplugged)
{
    for (int i = 0; i < 500; ++i) {
        sendX(i % 256, 1000 * (i + 1));
        if (i % 16 == 15) waitUntil([&] { return reports.size() == static_cast<std::size_t>(i + 1); });
    }
    stick.unplug(); // the last reports haven't been read
    waitUntil([&] { return result() == joyError::unplugged; });
    EXPECT_GE(reports.size(), 496U);
    EXPECT_LE(reports.size(), 500U);
    EXPECT_GE(changes, 1);
    waitUntil([&] { return joystick.devices().empty(); });
    EXPECT_EQ(joystick.chosen(), std::nullopt);
}

TEST_F(DeviceFileTest, PluggedInAgainItIsRead)
{
    stick.unplug();
    waitUntil([&] { return result() == joyError::unplugged && joystick.devices().empty(); });
    reports.clear();
    stick.plug();
    waitUntil([&] { return result() == joyError::none; });
    sendX(255, 1000);
    waitUntil([&] { return !reports.empty(); });
    EXPECT_EQ(reports.back().position.dwXpos, axisLast);
}

TEST_F(DeviceFileTest, AStickThatIsGoneWhenItIsToBeOpenedIsUnplugged)
{
    stick.unplug();
    JoystickChoice choice; // opens it anew, before its end was noticed
    choice.axes = {1, 0, noAxis, noAxis};
    joystick.choose(choice);
    EXPECT_EQ(result(), joyError::unplugged);
    EXPECT_EQ(joystick.chosen(), std::nullopt);
    waitUntil([&] { return joystick.devices().empty(); });
}

TEST_F(DeviceFileTest, AStickThatIsGoneBeforeTheStartIsUnplugged)
{
    joystick.stop();
    stick.unplug();
    joystick.start();
    EXPECT_EQ(result(), joyError::unplugged);
    EXPECT_TRUE(joystick.devices().empty());
}

TEST_F(DeviceFileTest, NothingIsEverWrittenToTheStick)
{
    sendX(200, 1000);
    waitUntil([&] { return !reports.empty(); });
    EXPECT_EQ(stick.writes, 0);
}

} // namespace
} // namespace tarvex
