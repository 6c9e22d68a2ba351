#include "testers/stick_statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace tarvex {
namespace {

constexpr std::int64_t millisecond = 1000;

/// A signal on X, a report every so many microseconds.
struct Signal {
    StickStatistics statistics;
    std::int64_t time = 5'000'000'000;
    std::int64_t step = millisecond;

    void send(int x)
    {
        JoystickReport report;
        report.position.dwXpos = static_cast<std::uint32_t>(x);
        report.microseconds = time;
        time += step;
        statistics.add(report);
    }
    void send(int x, int times)
    {
        for (int i = 0; i < times; ++i) send(x);
    }
    AxisNumbers x() { return statistics.numbers(axisRole::x); }
};

TEST(StickStatistics, WithoutReportsThereIsNothing)
{
    StickStatistics statistics;
    EXPECT_EQ(statistics.rate(), 0);
    EXPECT_EQ(statistics.microseconds(), 0);
    EXPECT_EQ(statistics.numbers(axisRole::x).spikes, 0U);
}

TEST(StickStatistics, RateIsThatOfTheLastSecond)
{
    Signal signal;
    signal.step = 10 * millisecond;
    signal.send(32768, 300);
    EXPECT_NEAR(signal.statistics.rate(), 100, 0.01);
    signal.step = millisecond;
    signal.send(32768, 2000);
    EXPECT_NEAR(signal.statistics.rate(), 1000, 0.01);
}

TEST(StickStatistics, LowestAndHighestAreThoseOfAllReports)
{
    Signal signal;
    signal.send(20000);
    signal.send(0);
    signal.send(65535);
    signal.send(30000);
    EXPECT_EQ(signal.x().minimum, 0);
    EXPECT_EQ(signal.x().maximum, 65535);
    EXPECT_EQ(signal.x().now, 30000);
}

TEST(StickStatistics, NoiseAtRestIsItsStandardDeviationAndPeakToPeak)
{
    Signal signal;
    for (int i = 0; i < 4000; ++i) signal.send(i % 2 == 0 ? 32700 : 32900);
    EXPECT_NEAR(signal.x().rest.position, 32800, 0.5);
    EXPECT_NEAR(signal.x().rest.deviation, 100, 0.5);
    EXPECT_EQ(signal.x().rest.peakToPeak, 200);
}

TEST(StickStatistics, GaussianNoiseIsMeasuredAsItWasMade)
{
    Signal signal;
    std::mt19937 chance(7);
    std::normal_distribution<double> noise(33000, 80);
    for (int i = 0; i < 5000; ++i) signal.send(static_cast<int>(std::lround(noise(chance))));
    EXPECT_NEAR(signal.x().rest.position, 33000, 5);
    EXPECT_NEAR(signal.x().rest.deviation, 80, 4);
    EXPECT_EQ(signal.x().spikes, 0U);
}

TEST(StickStatistics, RestLooksBackFiveSecondsOnly)
{
    Signal signal;
    signal.send(33700, 3000);
    signal.send(32768, 6000);
    EXPECT_EQ(signal.x().rest.position, 32768);
    EXPECT_EQ(signal.x().rest.peakToPeak, 0);
}

TEST(StickStatistics, AMovementIsNoRest)
{
    Signal signal;
    for (int x = 0; x < 60000; x += 30) signal.send(x);
    EXPECT_LT(signal.x().rest.microseconds, 100 * millisecond);
}

TEST(StickStatistics, AQuietDeviceRestsWhereItStoppedAndItsWayBackIsNoNoise)
{
    Signal signal;
    signal.step = 10 * millisecond;
    for (int x = 60000; x > 32800; x -= 300) signal.send(x);
    signal.send(32800);
    signal.statistics.pause(1000 * millisecond);
    EXPECT_NEAR(signal.x().rest.position, 32800, 10);
    EXPECT_GE(signal.x().rest.microseconds, 1000 * millisecond);
    EXPECT_LE(signal.x().rest.peakToPeak, 600);
}

TEST(StickStatistics, SpikesAreCountedAndLeftOutOfTheNoise)
{
    Signal signal;
    for (int spike = 0; spike < 7; ++spike) {
        signal.send(32768, 500);
        signal.send(50000);
    }
    signal.send(32768, 500);
    EXPECT_EQ(signal.x().spikes, 7U);
    EXPECT_EQ(signal.x().rest.deviation, 0);
    EXPECT_EQ(signal.x().rest.peakToPeak, 0);
    EXPECT_GT(signal.x().rest.microseconds, 3000 * millisecond);
    EXPECT_EQ(signal.statistics.numbers(axisRole::y).spikes, 0U);
}

TEST(SpikeCounter, AJumpOverTheThresholdIsASpikeAndOneOfTheThresholdIsNot)
{
    for (const auto& [jump, spikes] : {std::pair{spikeThreshold, 0U}, {spikeThreshold + 1, 1U}}) {
        SpikeCounter counter;
        counter.add(0, 30000);
        counter.add(10 * millisecond, 30000 + jump);
        counter.add(20 * millisecond, 30000);
        EXPECT_EQ(counter.count(), spikes) << jump;
    }
}

TEST(SpikeCounter, BackAfterTwentyMillisecondsIsASpikeAndLaterIsAMovement)
{
    for (const auto& [back, spikes] : {std::pair{20 * millisecond, 1U}, {20 * millisecond + 1, 0U}}) {
        SpikeCounter counter;
        counter.add(0, 30000);
        counter.add(100, 60000);
        counter.add(100 + back, 30000);
        EXPECT_EQ(counter.count(), spikes) << back;
    }
}

TEST(SpikeCounter, ASpikeOfSeveralReportsIsOne)
{
    SpikeCounter counter;
    int time = 0;
    for (const int value : {30000, 50000, 10, 65535, 30100, 30100}) counter.add(millisecond * ++time, value);
    EXPECT_EQ(counter.count(), 1U);
}

TEST(SpikeCounter, AFastMovementIsNoSpike)
{
    SpikeCounter counter;
    for (int time = 0; time < 100; ++time) counter.add(time * millisecond, time < 50 ? 0 : 65535);
    EXPECT_EQ(counter.count(), 0U);
}

/// Spikes of values that come a millisecond after each other.
std::size_t spikesOf(std::initializer_list<int> values)
{
    SpikeCounter counter;
    std::int64_t time = 0;
    for (const int value : values) counter.add(time += millisecond, value);
    return counter.count();
}

TEST(SpikeCounter, AfterAMovementASpikeIsOneFromTheNewPlace)
{
    SpikeCounter counter;
    std::int64_t time = 0;
    const auto rest = [&](int value) {
        for (int i = 0; i < 50; ++i) counter.add(time += millisecond, value);
    };
    rest(0);
    rest(10000);
    EXPECT_EQ(counter.count(), 0U);
    counter.add(time += millisecond, 13000);
    rest(10000);
    EXPECT_EQ(counter.count(), 1U);
}

TEST(SpikeCounter, ASpikeEndsWithinHalfItsThresholdOfWhereItBegan)
{
    EXPECT_EQ(spikesOf({30000, 40000, 30000 + spikeThreshold / 2}), 1U);
    EXPECT_EQ(spikesOf({30000, 40000, 30000 + spikeThreshold / 2 + 1}), 0U);
    EXPECT_EQ(spikesOf({30000, 20000, 30000 - spikeThreshold / 2}), 1U);
}

TEST(SpikeCounter, ItGoesOnFromWhereASpikeEnded)
{
    EXPECT_EQ(spikesOf({0, 5000, 750, 2250, 750}), 1U) << "2250 is no jump from 750";
    EXPECT_EQ(spikesOf({0, 5000, 750, 2251, 750}), 2U);
}

TEST(SpikeCounter, ASlowMovementHasNoJumps)
{
    EXPECT_EQ(spikesOf({0, 1500, 3000, 4500, 6000, 4500, 3000}), 0U);
    EXPECT_EQ(spikesOf({0, 1500, 3001, 1500}), 1U);
}

TEST(StickStatistics, ARestIsAsWideAsASpikeIsHighAndLooksBackFiveSeconds)
{
    Signal signal;
    signal.send(32768 + spikeThreshold);
    signal.send(32768);
    EXPECT_EQ(signal.x().rest.peakToPeak, spikeThreshold);
    signal.send(32768 - 1, 30);
    EXPECT_EQ(signal.x().rest.peakToPeak, 1) << "a thousandth more is another place";
    Signal old;
    old.send(32768 + 5);
    old.step = 5'000 * millisecond - millisecond;
    old.send(32768 + 3);
    old.step = millisecond;
    old.send(32768);
    EXPECT_EQ(old.x().rest.peakToPeak, 5) << "five seconds ago";
    old.send(32768);
    EXPECT_EQ(old.x().rest.peakToPeak, 3) << "and a bit more";
}

TEST(StickStatistics, TheLastValueCountsAsLongAsThereIsAPause)
{
    Signal signal;
    signal.step = 10 * millisecond;
    signal.send(32768);
    EXPECT_EQ(signal.x().rest.microseconds, millisecond) << "the least";
    signal.statistics.pause(500 * millisecond);
    EXPECT_EQ(signal.x().rest.microseconds, 500 * millisecond);
    signal.send(32768);
    EXPECT_EQ(signal.x().rest.microseconds, 11 * millisecond) << "a report ends it";
}

TEST(StickStatistics, DriftIsTheMovementOfTheRest)
{
    Signal signal;
    signal.send(32768, 2000);
    EXPECT_EQ(signal.x().drift, 0);
    signal.send(33268, 7000);
    EXPECT_NEAR(signal.x().drift, 500, 1);
}

TEST(StickStatistics, WithoutARestThereIsNoDrift)
{
    Signal signal;
    signal.send(32768, 2000);
    signal.x();
    signal.send(60000, 10);
    EXPECT_EQ(signal.x().drift, 0);
}

TEST(StickStatistics, TenMinutesOfEightThousandReportsASecondStayWithinTheirMemory)
{
    Signal signal;
    signal.step = 125;
    for (int i = 0; i < 4'800'000; ++i) signal.send(32768 + i % 3);
    EXPECT_EQ(signal.statistics.reports(), 4'800'000U);
    EXPECT_EQ(signal.statistics.samples().size(), mostSamples);
    EXPECT_NEAR(signal.statistics.rate(), 8000, 1);
    EXPECT_NEAR(static_cast<double>(signal.statistics.microseconds()), 600e6, 1000);
}

TEST(StickStatistics, ClearForgetsEverything)
{
    Signal signal;
    signal.send(0);
    signal.statistics.clear();
    signal.send(30000);
    EXPECT_EQ(signal.x().minimum, 30000);
    EXPECT_EQ(signal.statistics.reports(), 1U);
}

} // namespace
} // namespace tarvex
