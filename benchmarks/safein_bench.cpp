#include "safein/keys/key_table.h"
#include "shown_program.h"

#include <benchmark/benchmark.h>

#include <vector>

// What the user of Safein waits for, from a command or a click to the painted window.

namespace tarvex::benchmarks {
namespace {

void openSafein(ShownProgram& shown) { shown.program.menus().mnuInsertRAW.Click(); }

/// The window is made; "first_ms" is its very first time in the process.
void safeinOpening(benchmark::State& state)
{
    std::vector<double> times;
    for (auto _ : state) {
        ShownProgram shown;
        PaintsOf pad("KeyPad");
        const auto start = Clock::now();
        openSafein(shown);
        pad.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["first_ms"] = times.front() * 1e3;
}
BENCHMARK(safeinOpening)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

void safeinShownAgain(benchmark::State& state)
{
    ShownProgram shown;
    PaintsOf pad("KeyPad");
    openSafein(shown);
    pad.wait();
    std::vector<double> times;
    for (auto _ : state) {
        shown.program.program().safein.Command2.Click(); // hides it
        QApplication::processEvents();
        const auto start = Clock::now();
        openSafein(shown);
        pad.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(safeinShownAgain)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);

/// To the last of the fields that show the key's texts.
void safeinKeyClick(benchmark::State& state)
{
    ShownProgram shown;
    PaintsOf field("RCombinedText");
    openSafein(shown);
    field.wait();
    const QWidget* safein = shown.window.findChild<QWidget*>(QStringLiteral("RAWform"));
    const auto keys = keyTable();
    std::vector<double> times;
    for (auto _ : state) {
        const Key& key = keys[times.size() % keys.size()];
        auto* button = safein->findChild<QWidget*>(QStringLiteral("Command1_%1").arg(key.index));
        const auto start = Clock::now();
        click(*button);
        field.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(safeinKeyClick)->Iterations(1'000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
