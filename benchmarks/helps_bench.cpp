#include "desktop/generators/heading_view.h"
#include "desktop/generators/single_text_view.h"
#include "desktop/generators/title_view.h"
#include "shown_program.h"

#include <benchmark/benchmark.h>

// The boxes, wizards and the Template Editor, from the command to the painted window.

namespace tarvex::benchmarks {
namespace {

/// Opens a window by its command in one program after the other; "first_ms" is its very first time in the process.
void opening(benchmark::State& state, MenuItem Menus::*command, const char* painted)
{
    std::vector<double> times;
    for (auto _ : state) {
        ShownProgram shown;
        PaintsOf part(painted);
        const auto start = Clock::now();
        (shown.program.menus().*command).Click();
        part.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["first_ms"] = times.front() * 1e3;
}

void templateEditorOpening(benchmark::State& state) { opening(state, &Menus::mnuAppsTemplate, "Command1_2"); }
void macroWizardOpening(benchmark::State& state) { opening(state, &Menus::mnuhelpWizCreateMacroFile, "FootNext"); }
void joystickWizardOpening(benchmark::State& state) { opening(state, &Menus::mnuhelpWizCreateJoyFile, "FootNext"); }
BENCHMARK(templateEditorOpening)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(macroWizardOpening)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(joystickWizardOpening)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A dialogue is made anew each time that it is shown.
template <typename View, typename State> void showing(benchmark::State& state, State& form, const char* painted)
{
    std::vector<double> times;
    for (auto _ : state) {
        PaintsOf part(painted);
        const auto start = Clock::now();
        View view(form, nullptr);
        form.Form.Visible = true;
        part.wait();
        times.push_back(secondsSince(start));
        form.Form.Visible = false;
        state.SetIterationTime(times.back());
    }
    state.counters["first_ms"] = times.front() * 1e3;
}

void titleShowing(benchmark::State& state)
{
    ShownProgram shown;
    showing<TitleView>(state, shown.program.program().generators.title, "Command1");
}
void headingShowing(benchmark::State& state)
{
    ShownProgram shown;
    showing<HeadingView>(state, shown.program.program().generators.heading, "Command1_0");
}
void remShowing(benchmark::State& state)
{
    ShownProgram shown;
    showing<SingleTextView>(state, shown.program.program().generators.rem, "Command1");
}
BENCHMARK(titleShowing)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(headingShowing)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(remShowing)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

/// With 500 lines of comment, into a file of its own.
void insertTitle(benchmark::State& state)
{
    std::string comment;
    for (int line = 0; line < 500; ++line) comment += "what this file is about, line " + std::to_string(line) + "\r\n";
    for (auto _ : state) {
        state.PauseTiming();
        ShownProgram shown;
        Title& title = shown.program.program().generators.title;
        title.RichTextBox1.setText(comment);
        state.ResumeTiming();
        title.Command1.Click();
        QApplication::processEvents();
    }
}
BENCHMARK(insertTitle)->Iterations(10)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
