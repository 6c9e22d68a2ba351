#include "coloured_text.h"
#include "example_text.h"
#include "language/macro_analysis.h"
#include "language/macro_file_lines.h"
#include "language/macros_used.h"
#include "language/slash_columns.h"

#include <benchmark/benchmark.h>

namespace tarvex::benchmarks {
namespace {

constexpr std::size_t usual = 30'000; // characters of a large controller file

/// The lines of a macro file and its lists, from its bytes.
void listMacros(benchmark::State& state, const std::string& file)
{
    for (auto _ : state) {
        MacroRecord record;
        record.MacroFileLines = keptMacroLines(file);
        benchmark::DoNotOptimize(extractMacros(record));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.size()));
}

void macroList(benchmark::State& state) { listMacros(state, exampleText(largestMacroExample, usual)); }
BENCHMARK(macroList);

/// The example once, twice, up to 32 times.
void macroListGrowing(benchmark::State& state)
{
    listMacros(state, exampleText(largestMacroExample, 6'500 * static_cast<std::size_t>(state.range(0))));
}
BENCHMARK(macroListGrowing)->RangeMultiplier(2)->Range(1, 32);

/// As many headings, with a macro each.
void macroHeadings(benchmark::State& state)
{
    std::string file;
    for (std::int64_t i = 0; i < state.range(0); ++i) file += "Rem ----\r\nRem HEADING\r\nRem ----\r\nFire = f\r\n";
    listMacros(state, file);
}
BENCHMARK(macroHeadings)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

/// 2,000 macros, of which every twentieth is used, sought in a text of so many characters.
void identify2000(benchmark::State& state)
{
    std::vector<std::string> names;
    for (int i = 1; i <= 2'000; ++i)
        names.push_back((i % 20 == 0 ? "Chaff_" : "Unused_Chaff_") + std::to_string(i / 20));
    Pane pane;
    pane.setText(std::string(blanksBeforeText) + joystickText(static_cast<std::size_t>(state.range(0))));
    int used = 0;
    for (auto _ : state) {
        used = 0;
        for (const std::string& name : names) used += isMacroUsed(pane, name) ? 1 : 0;
    }
    state.counters["used"] = used;
}
BENCHMARK(identify2000)->Arg(usual)->Arg(2 * usual)->Arg(8 * usual)->Unit(benchmark::kMillisecond);

/// One macro whose name begins a word of every statement, so that the search stops at each of them.
void identifyNearMiss(benchmark::State& state)
{
    Pane pane;
    pane.setText(std::string(blanksBeforeText) + joystickText(usual));
    for (auto _ : state) benchmark::DoNotOptimize(isMacroUsed(pane, "Chaf"));
}
BENCHMARK(identifyNearMiss);

void align(benchmark::State& state)
{
    const std::string text = exampleText(largestJoystickExample, 6'500 * static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(alignedText(text));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(align)->RangeMultiplier(2)->Range(1, 32);

} // namespace
} // namespace tarvex::benchmarks
