// Reading a device file, as a real stick has one.

#include "desktop/platform/evdev_reader.h"

#include "mock_stick.h"

#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct EvdevReaderTest : testing::Test {
    MockStick stick;
    std::unique_ptr<EvdevReader> reader;
    std::vector<DeviceState> reports;

    void SetUp() override
    {
        stick.plug();
        reader = EvdevReader::open(QStringLiteral("/dev/input/event7"));
        ASSERT_NE(reader, nullptr);
    }
    bool reads()
    {
        const EvdevReader::Read result = reader->read();
        reports.insert(reports.end(), result.reports.begin(), result.reports.end());
        return !result.reports.empty();
    }
    void sendX(int x, std::int64_t microseconds)
    {
        stick.send({{EV_ABS, ABS_X, x}}, microseconds);
        EXPECT_TRUE(QTest::qWaitFor([&] { return reads(); }, 20'000));
    }
};

TEST_F(EvdevReaderTest, TheDeviceIsDescribedAsTheKernelDoes)
{
    const JoystickDevice& device = reader->description();
    EXPECT_EQ(device.buttons, 5);
    EXPECT_EQ(device.hats, 1);
    ASSERT_EQ(device.axes.size(), 4U);
    EXPECT_EQ(device.axes[2].name, "Throttle");
    EXPECT_EQ(device.axes[0].flat, 15);
    EXPECT_EQ(device.axes[2].fuzz, 7);
    EXPECT_EQ(guessAxes(device), (AxisMap{0, 1, 2, 3}));
}

TEST_F(EvdevReaderTest, PositionsAreThereBeforeTheFirstReport)
{
    EXPECT_EQ(reader->state().axes[0], 32896);
    EXPECT_EQ(reader->state().axes[2], 65535);
    EXPECT_EQ(reader->state().axes[3], 32800);
    EXPECT_FALSE(reads());
}

TEST_F(EvdevReaderTest, AReportOfSeveralAxesIsOneWithTheKernelsTime)
{
    stick.send({{EV_ABS, ABS_X, 0},
                {EV_ABS, ABS_Y, 255},
                {EV_ABS, ABS_THROTTLE, 0},
                {EV_KEY, BTN_TOP2, 1},
                {EV_ABS, ABS_HAT0X, -1}},
               123'456'789);
    EXPECT_TRUE(QTest::qWaitFor([&] { return reads(); }, 20'000));
    ASSERT_EQ(reports.size(), 1U);
    EXPECT_EQ(reports[0].microseconds, 123'456'789);
    EXPECT_EQ(reports[0].axes[0], 0);
    EXPECT_EQ(reports[0].axes[1], 65535);
    EXPECT_EQ(reports[0].axes[2], 0);
    EXPECT_TRUE(reports[0].buttons[4]);
    EXPECT_EQ(reports[0].hats[0], 27000U);
}

TEST_F(EvdevReaderTest, OfAThousandReportsASecondNoneIsLost)
{
    for (int i = 0; i < 1000; ++i) sendX(i % 256, 1000 * (i + 1));
    ASSERT_EQ(reports.size(), 1000U);
    for (std::size_t i = 0; i < reports.size(); ++i) {
        EXPECT_EQ(reports[i].axes[0], i % 256 * 257);
        EXPECT_EQ(reports[i].microseconds, static_cast<std::int64_t>(1000 * (i + 1)));
    }
}

TEST_F(EvdevReaderTest, OfAHundredReportsASecondTheTimesAreKept)
{
    for (int i = 0; i < 100; ++i) sendX(i, 10'000 * (i + 1));
    EXPECT_EQ(reports.back().microseconds - reports.front().microseconds, 990'000);
}

TEST_F(EvdevReaderTest, TheDeviceIsOnlyReadFrom)
{
    sendX(200, 1000);
    EXPECT_EQ(stick.writes, 0);
}

TEST(EvdevReader, AFileThatIsNoDeviceIsNotOpened)
{
    EXPECT_EQ(EvdevReader::open(QStringLiteral("/dev/null")), nullptr);
    EXPECT_EQ(EvdevReader::open(QStringLiteral("/nowhere")), nullptr);
}

} // namespace
} // namespace tarvex
