#include "composer/macro_tab.h"
#include "shown_program.h"

#include <benchmark/benchmark.h>

#include <vector>

// What the user of the Composer waits for, from a command or a click to the painted window, and the work behind it.

namespace tarvex::benchmarks {
namespace {

constexpr char lowest[] = "RemTextBox"; // below the picture, and painted after it

void openComposer(ShownProgram& shown) { shown.program.menus().mnuShowInsertWindow.Click(); }

/// The window is made; "first_ms" is its very first time in the process.
void composerOpening(benchmark::State& state)
{
    std::vector<double> times;
    for (auto _ : state) {
        ShownProgram shown;
        PaintsOf remark(lowest);
        const auto start = Clock::now();
        openComposer(shown);
        remark.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["first_ms"] = times.front() * 1e3;
}
BENCHMARK(composerOpening)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

void composerShownAgain(benchmark::State& state)
{
    ShownProgram shown;
    PaintsOf remark(lowest);
    openComposer(shown);
    remark.wait();
    std::vector<double> times;
    for (auto _ : state) {
        shown.program.program().composer.Command6.Click(); // hides it
        QApplication::processEvents();
        const auto start = Clock::now();
        openComposer(shown);
        remark.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(composerShownAgain)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);

void copyMacroList2000(benchmark::State& state)
{
    constexpr std::size_t count = 2'000;
    TestProgram program;
    std::string macros;
    for (std::size_t i = 0; i < count; ++i) macros += "Macro" + std::to_string(i) + " = a\r\n";
    program.files.addFile("c:\\tm\\a.b50", "");
    program.files.addFile("c:\\tm\\a.m50", macros);
    program.openBoth("c:\\tm\\a.b50");
    InsertOptions& composer = program.program().composer;
    composer.form.open();
    for (auto _ : state) CopyMacroList(composer);
    if (composer.macros.List1.front().Items.get().size() != count) state.SkipWithError("macros are missing");
}
BENCHMARK(copyMacroList2000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
