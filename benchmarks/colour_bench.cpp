#include "example_text.h"
#include "language/pass_runner.h"

#include <benchmark/benchmark.h>

namespace tarvex::benchmarks {
namespace {

constexpr std::size_t usual = 30'000; // characters of a large controller file

Settings scheme()
{
    Settings settings;
    settings.BTNColour = 16711680;
    settings.SlashColour = 255;
    settings.RAWColour = 32768;
    settings.MiscellaneousColour = 12615680;
    settings.RemStatements = 8421504;
    return settings;
}

void colour(benchmark::State& state, const std::string& text, std::span<const ColourPass> passes)
{
    const Settings settings = scheme();
    Mum mum;
    Pane pane;
    pane.setText(text);
    float position = 0;
    for (auto _ : state) {
        pane.setSelStart(0);
        pane.setSelLength(static_cast<std::int64_t>(text.size()));
        pane.setSelColor(0);
        runPasses({pane, settings, position, Steps(), &mum, {}}, passes);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
    state.counters["characters"] = static_cast<double>(text.size());
}

void colourJoystick(benchmark::State& state)
{
    colour(state, exampleText(largestJoystickExample, usual), joystickPasses());
}
BENCHMARK(colourJoystick);

void colourMacro(benchmark::State& state) { colour(state, exampleText(largestMacroExample, usual), macroPasses()); }
BENCHMARK(colourMacro);

/// The example once, twice, up to 32 times.
void colourGrowing(benchmark::State& state)
{
    const std::size_t once = exampleText(largestJoystickExample, 6'500).size();
    colour(state, exampleText(largestJoystickExample, once * static_cast<std::size_t>(state.range(0))),
           joystickPasses());
}
BENCHMARK(colourGrowing)->RangeMultiplier(2)->Range(1, 32);

} // namespace
} // namespace tarvex::benchmarks
