#include "coloured_text.h"
#include "support/test_program.h"
#include "timing.h"

#include <benchmark/benchmark.h>

namespace tarvex::benchmarks {
namespace {

/// A character was written in the middle of a coloured file; its line gets its colours.
void recolourStatement(benchmark::State& state)
{
    TestProgram t;
    Editor& editor = t.editor();
    t.program().shared.extras.set(extraKey::colourAsTyped, true);
    editor.JoystickText.setText(joystickText(static_cast<std::size_t>(state.range(0))));
    t.menus().mnuViewColourJoystick.Click();
    const std::int64_t middle = editor.JoystickText.lineStart(editor.JoystickText.lineCount() / 2);
    for (auto _ : state) {
        editor.JoystickText.userEdit(middle, 0, "x");
        const auto start = Clock::now();
        editor.TimerColour.Tick();
        state.SetIterationTime(secondsSince(start));
        editor.JoystickText.userEdit(middle, 1, "");
        editor.TimerColour.Tick();
    }
}
BENCHMARK(recolourStatement)->Arg(30'000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
