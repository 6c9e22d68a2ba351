#include "coloured_text.h"
#include "composer/macro_tab.h"
#include "composer/overlay.h"
#include "shown_program.h"

#include <benchmark/benchmark.h>

#include <QAbstractScrollArea>

#include <vector>

// What the user of the Composer waits for, from a command or a click to the painted window, and the work behind it.

namespace tarvex::benchmarks {
namespace {

constexpr std::size_t usual = 30'000;   // characters of a large controller file
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

/// Each click adds a statement to a file of the usual size.
void composerClick(benchmark::State& state)
{
    ShownProgram shown;
    shown.program.typeJoystick(joystickText(usual));
    openComposer(shown);
    QApplication::processEvents();
    shown.program.settings().AlwaysInsert = 1;
    const Pane& joystick = shown.program.editor().JoystickText;
    auto* button = shown.window.findChild<QWidget*>("BTN(0)");
    auto* view = shown.window.findChild<QAbstractScrollArea*>("JoystickText");
    if (button == nullptr || view == nullptr) return state.SkipWithError("no button or no text on show");
    view->viewport()->setObjectName("textArea");
    PaintsOf text("textArea");
    std::vector<double> times;
    for (auto _ : state) {
        const std::size_t before = joystick.TextLength();
        const auto start = Clock::now();
        click(*button);
        text.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
        if (joystick.TextLength() == before) return state.SkipWithError("the click inserted nothing");
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(composerClick)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);

/// What runs once the user pauses: another statement is in the file each time, and the marks are painted.
void overlayRenewed(benchmark::State& state)
{
    const std::string text = joystickText(static_cast<std::size_t>(state.range(0)));
    ShownProgram shown;
    openComposer(shown);
    QApplication::processEvents();
    InsertOptions& composer = shown.program.program().composer;
    std::vector<double> times;
    for (auto _ : state) {
        shown.program.typeJoystick(text + (times.size() % 2 == 0 ? "BTN S1 Fire" : "BTN S2 Fire"));
        QApplication::processEvents();
        const auto start = Clock::now();
        renewAssigned(composer);
        QApplication::processEvents();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
        if (isAssigned(composer, "BTN(0)") == isAssigned(composer, "BTN(1)"))
            return state.SkipWithError("the marks don't follow the text");
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(overlayRenewed)->Arg(usual)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);

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
