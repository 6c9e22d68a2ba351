#include "desktop/platform/sdl_joystick.h"

#include <QTest>

#include <SDL.h>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// SDL's virtual joystick, read through the adapter. The subsystem stays up for the whole test, as devices are plugged
/// in before and while the adapter is started.
struct SdlJoystickTest : testing::Test {
    SdlJoystick joystick;
    std::vector<JoystickReport> reports;
    Connection listening =
        joystick.reported.connect([this](const JoystickReport& report) { reports.push_back(report); });
    int changes = 0;
    Connection watching = joystick.devicesChanged.connect([this] { ++changes; });
    std::vector<int> plugged; ///< SDL's numbers of the devices

    void SetUp() override { ASSERT_EQ(SDL_InitSubSystem(SDL_INIT_JOYSTICK), 0) << SDL_GetError(); }
    void TearDown() override
    {
        for (auto* device : m_handles) SDL_JoystickClose(device);
        for (const int instance : plugged) unplug(instance);
        SDL_QuitSubSystem(SDL_INIT_JOYSTICK);
    }

    SDL_Joystick* plug(int axes, int buttons, int hats)
    {
        const int index = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_FLIGHT_STICK, axes, buttons, hats);
        EXPECT_GE(index, 0) << SDL_GetError();
        plugged.push_back(SDL_JoystickGetDeviceInstanceID(index));
        m_handles.push_back(SDL_JoystickOpen(index));
        return m_handles.back();
    }
    static void unplug(int instance)
    {
        for (int i = 0; i < SDL_NumJoysticks(); ++i)
            if (SDL_JoystickGetDeviceInstanceID(i) == instance) SDL_JoystickDetachVirtual(i);
    }
    void unplugAll()
    {
        for (auto* device : m_handles) SDL_JoystickClose(device);
        m_handles.clear();
        for (const int instance : plugged) unplug(instance);
        plugged.clear();
    }
    static void waitUntil(const std::function<bool()>& condition) { EXPECT_TRUE(QTest::qWaitFor(condition, 20'000)); }
    JOYINFOEX position()
    {
        JOYINFOEX info;
        EXPECT_EQ(joystick.joyGetPosEx(info), joyError::none);
        return info;
    }
    JOYCAPS caps()
    {
        JOYCAPS found;
        EXPECT_EQ(joystick.joyGetDevCapsA(found), joyError::none);
        return found;
    }

private:
    std::vector<SDL_Joystick*> m_handles;
};

TEST_F(SdlJoystickTest, BeforeTheStartNothingIsRead)
{
    JOYINFOEX info;
    EXPECT_EQ(joystick.joyGetPosEx(info), joyError::noDriver);
    EXPECT_TRUE(joystick.devices().empty());
}

TEST_F(SdlJoystickTest, WithoutADeviceItIsUnplugged)
{
    joystick.start();
    JOYINFOEX info;
    JOYCAPS found;
    EXPECT_EQ(joystick.joyGetPosEx(info), joyError::unplugged);
    EXPECT_EQ(joystick.joyGetDevCapsA(found), joyError::unplugged);
}

TEST_F(SdlJoystickTest, ADeviceThatIsThereAtTheStartIsOpen)
{
    plug(4, 6, 1);
    joystick.start();
    EXPECT_EQ(joystick.devices().size(), 1U);
    EXPECT_EQ(joystick.chosen(), 0U);
    EXPECT_EQ(caps().wCaps, joyCaps::hasZ | joyCaps::hasR | joyCaps::hasPov);
    EXPECT_EQ(caps().wNumButtons, 6U);
    EXPECT_EQ(position().dwXpos, 32768U);
}

TEST_F(SdlJoystickTest, MovementsAndButtonsAreReported)
{
    SDL_Joystick* stick = plug(4, 6, 1);
    joystick.start();
    SDL_JoystickSetVirtualAxis(stick, 0, -32768);
    SDL_JoystickSetVirtualAxis(stick, 1, 32767);
    SDL_JoystickSetVirtualAxis(stick, 3, 10000);
    waitUntil([&] { return !reports.empty() && reports.back().position.dwRpos == 42768; });
    EXPECT_EQ(position().dwXpos, 0U);
    EXPECT_EQ(position().dwYpos, 65535U);
    SDL_JoystickSetVirtualButton(stick, 5, 1);
    SDL_JoystickSetVirtualHat(stick, 0, SDL_HAT_RIGHT);
    waitUntil([&] { return reports.back().buttons[5] && reports.back().hats[0] == 9000; });
    EXPECT_EQ(position().dwButtons, 32U);
    EXPECT_GT(reports.back().microseconds, reports.front().microseconds);
}

TEST_F(SdlJoystickTest, SmallMovementsAroundTheCentrePassWithoutADeadZone)
{
    SDL_Joystick* stick = plug(2, 0, 0);
    joystick.start();
    SDL_JoystickSetVirtualAxis(stick, 0, 20000); // SDL waits for one real movement
    waitUntil([&] { return !reports.empty(); });
    SDL_JoystickSetVirtualAxis(stick, 0, 1);
    waitUntil([&] { return position().dwXpos == 32769; });
}

TEST_F(SdlJoystickTest, UnpluggedAndPluggedInAgainItIsRead)
{
    plug(2, 1, 0);
    joystick.start();
    EXPECT_EQ(position().dwXpos, 32768U);
    unplugAll();
    JOYINFOEX info;
    waitUntil([&] { return joystick.joyGetPosEx(info) == joyError::unplugged; });
    EXPECT_GE(changes, 1);
    SDL_Joystick* again = plug(2, 1, 0);
    waitUntil([&] { return joystick.joyGetPosEx(info) == joyError::none; });
    SDL_JoystickSetVirtualAxis(again, 1, -32768);
    waitUntil([&] { return position().dwYpos == 0; });
}

TEST_F(SdlJoystickTest, DevicesOfEverySizeAreRead)
{
    for (const auto& [axes, buttons] : {std::pair{0, 0}, {1, 0}, {2, 128}, {32, 1}}) {
        SDL_Joystick* stick = plug(axes, buttons, 0);
        joystick.start();
        EXPECT_EQ(caps().wNumAxes, static_cast<unsigned>(axes));
        EXPECT_EQ(caps().wNumButtons, static_cast<unsigned>(buttons));
        EXPECT_EQ(position().dwYpos, 32768U);
        reports.clear();
        if (buttons == 128) {
            SDL_JoystickSetVirtualButton(stick, 127, 1);
            waitUntil([&] { return !reports.empty() && reports.back().buttons[127]; });
        }
        joystick.stop();
        unplugAll();
    }
}

TEST_F(SdlJoystickTest, OfTwoDevicesOfOneNameTheChosenOneIsRead)
{
    plug(2, 0, 0);
    SDL_Joystick* second = plug(2, 0, 0);
    joystick.start();
    const auto devices = joystick.devices();
    ASSERT_EQ(devices.size(), 2U);
    EXPECT_EQ(devices[0].name, devices[1].name);
    JoystickChoice choice;
    choice.name = devices[1].name;
    choice.guid = devices[1].guid;
    choice.number = 1;
    choice.axes = {1, 0, noAxis, noAxis};
    joystick.choose(choice);
    EXPECT_EQ(joystick.chosen(), 1U);
    SDL_JoystickSetVirtualAxis(second, 0, -32768);
    waitUntil([&] { return position().dwYpos == 0; });
}

TEST_F(SdlJoystickTest, AfterTheLastStopNothingIsReported)
{
    SDL_Joystick* stick = plug(2, 0, 0);
    joystick.start();
    joystick.start();
    joystick.stop();
    SDL_JoystickSetVirtualAxis(stick, 0, 5000);
    waitUntil([&] { return !reports.empty(); });
    joystick.stop();
    reports.clear();
    SDL_JoystickSetVirtualAxis(stick, 0, 500);
    QTest::qWait(20);
    EXPECT_TRUE(reports.empty());
}

} // namespace
} // namespace tarvex
