#include "desktop/platform/sdl_joystick.h"
#include "shown_program.h"

#include <SDL.h>
#include <benchmark/benchmark.h>

#include <QTimer>

#include <cstdint>
#include <ctime>
#include <stdexcept>
#include <vector>

// What a joystick costs while an analyser shows it, and how soon a report is seen.

namespace tarvex::benchmarks {
namespace {

constexpr int steps = 4096;

/// Once around the field, as a stick is turned.
void sendStep(FakeJoystick& joystick, int step)
{
    joystick.position.dwZpos = static_cast<std::uint32_t>(step % steps * 16);
    joystick.position.dwRpos = 65535 - joystick.position.dwZpos;
    joystick.send(static_cast<std::uint32_t>(step * 16 % 65536), static_cast<std::uint32_t>(step * 48 % 65536), 1000);
}

Analyser& analyserOf(Program& program, bool isTca)
{
    if (isTca) return program.testers.controllerAnalyser;
    return program.testers.joyPlot;
}

void open(ShownProgram& shown, bool isTca)
{
    shown.program.settings().UseTCA = isTca ? 1 : 0;
    PaintsOf field("PicJoy");
    shown.program.menus().mnuAppsJoyAnalyser.Click();
    field.wait();
}

/// Sends 1,000 reports a second, as often at once as the device file of such a joystick is read; how many were sent.
int sendForSeconds(FakeJoystick& joystick, double seconds)
{
    constexpr double perSecond = 1000;
    constexpr int millisecondsBetweenReads = 2;
    int sent = 0;
    const auto start = Clock::now();
    QTimer clock;
    clock.setTimerType(Qt::PreciseTimer);
    QObject::connect(&clock, &QTimer::timeout, [&] {
        while (sent < secondsSince(start) * perSecond) sendStep(joystick, sent++);
    });
    clock.start(millisecondsBetweenReads);
    while (secondsSince(start) < seconds) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return sent;
}

double processorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// What 1,000 reports a second take with the analyser open, beyond what sending them takes without it: the share of one
/// core, and the reports that got lost.
void analyserAtAThousandReports(benchmark::State& state)
{
    constexpr double seconds = 4;
    const bool isTca = state.range(0) != 0;
    ShownProgram shown;
    FakeJoystick& joystick = shown.program.joystick;
    const double atFirst = processorSeconds();
    sendForSeconds(joystick, seconds);
    const double sending = processorSeconds() - atFirst;
    open(shown, isTca);
    Analyser& analyser = analyserOf(shown.program.program(), isTca);
    for (auto _ : state) {
        analyser.numbers.statistics.clear();
        const double before = processorSeconds();
        const int sent = sendForSeconds(joystick, seconds);
        while (!analyser.waiting.empty()) QApplication::processEvents();
        const double used = processorSeconds() - before - sending;
        state.SetIterationTime(used);
        state.counters["percent"] = used / seconds * 100;
        state.counters["sending_percent"] = sending / seconds * 100;
        state.counters["lost"] = sent - static_cast<double>(analyser.numbers.statistics.reports());
    }
}
BENCHMARK(analyserAtAThousandReports)->Arg(0)->Arg(1)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

/// From a report at any moment to its cross on the screen.
void reportToPaintedCross(benchmark::State& state)
{
    ShownProgram shown;
    open(shown, false);
    std::vector<double> times;
    for (auto _ : state) {
        PaintsOf field("PicJoy");
        const auto start = Clock::now();
        sendStep(shown.program.joystick, static_cast<int>(times.size()));
        field.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(reportToPaintedCross)->Iterations(500)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The same from the device: a movement of SDL's virtual joystick, through the adapter.
void deviceToPaintedCross(benchmark::State& state)
{
    ShownProgram shown;
    open(shown, false);
    if (SDL_InitSubSystem(SDL_INIT_JOYSTICK) != 0) throw std::runtime_error(SDL_GetError());
    SDL_Joystick* stick =
        SDL_JoystickOpen(SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_FLIGHT_STICK, axisRole::count, 0, 0));
    {
        SdlJoystick device;
        FakeJoystick& shownOne = shown.program.joystick;
        const Connection passing = device.reported.connect([&](const JoystickReport& report) {
            shownOne.position = report.position;
            shownOne.reported(report);
        });
        device.start();
        std::vector<double> times;
        for (auto _ : state) {
            PaintsOf field("PicJoy");
            const auto start = Clock::now();
            SDL_JoystickSetVirtualAxis(stick, 0, times.size() % 2 == 0 ? SDL_JOYSTICK_AXIS_MIN : SDL_JOYSTICK_AXIS_MAX);
            field.wait();
            times.push_back(secondsSince(start));
            state.SetIterationTime(times.back());
        }
        state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
    }
    SDL_JoystickClose(stick);
    SDL_JoystickDetachVirtual(0);
    SDL_QuitSubSystem(SDL_INIT_JOYSTICK);
}
BENCHMARK(deviceToPaintedCross)->Iterations(500)->UseManualTime()->Unit(benchmark::kMillisecond);

void testerOpening(benchmark::State& state)
{
    const bool isTca = state.range(0) != 0;
    std::vector<double> times;
    for (auto _ : state) {
        ShownProgram shown;
        const auto start = Clock::now();
        open(shown, isTca);
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["first_ms"] = times.front() * 1e3;
}
BENCHMARK(testerOpening)->Arg(0)->Arg(1)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
