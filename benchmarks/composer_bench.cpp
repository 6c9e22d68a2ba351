#include "coloured_text.h"
#include "composer/macro_tab.h"
#include "desktop/composer/hardware_picture.h"
#include "desktop/documents/text/pane_view.h"
#include "shown_program.h"

#include <benchmark/benchmark.h>

#include <stdexcept>
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

/// The program with the Composer over a large joystick file, the caret in sight in an empty line of it.
struct ComposerOverFile : ShownProgram {
    Pane& joystick = program.editor().JoystickText;
    InsertOptions& composer = program.program().composer;
    PaneView* text = window.findChild<PaneView*>(QStringLiteral("JoystickText"));
    std::string file = joystickText(usual) + "\r\n" + joystickText(100);

    ComposerOverFile()
    {
        program.typeJoystick(file);
        openComposer(*this);
        QApplication::processEvents();
        joystick.setSelStart(static_cast<std::int64_t>(joystickText(usual).size()));
        program.editor().joystick.Caret = joystick.SelStart();
        text->settle();
        text->ensureCursorVisible();
        QApplication::processEvents();
    }
    HardwareControl& control(const char* id) const
    {
        auto* found = window.findChild<HardwareControl*>(QLatin1String(id));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + id);
        return *found;
    }
    bool holds(const std::string& statement) const { return joystick.Text().find(statement) != std::string::npos; }
};

/// From the click on a button whose statement isn't in the file, through the search for it, to the painted statement.
void composerClick(benchmark::State& state)
{
    ComposerOverFile shown;
    int length = 0; // of the text on show before the click
    const auto characters = [&shown] { return shown.text->document()->characterCount(); };
    PaintedState longer(*shown.text->viewport(), [&] { return characters() > length; });
    std::vector<double> times;
    for (auto _ : state) {
        const std::string number = std::to_string(times.size() % 4 + 1);
        HardwareControl& button = shown.control(("BTN(" + std::to_string(times.size() % 4) + ")").c_str());
        length = characters();
        const auto start = Clock::now();
        click(button);
        longer.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
        if (!shown.holds("\r\nBTN S" + number + " ")) return state.SkipWithError("the click wrote no statement");
        shown.program.menus().mnuEditUndo.Click();
        QApplication::processEvents();
        if (shown.joystick.Text() != shown.file) return state.SkipWithError("the statement is still there");
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(composerClick)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);

/// What runs once the user pauses, to the painted mark: an edit has brought a statement or taken it away.
void overlayRenewed(benchmark::State& state)
{
    ComposerOverFile shown;
    const std::string statement = "BTN S1 Fire";
    const auto place = static_cast<std::int64_t>(joystickText(usual).size());
    const HardwareControl& button = shown.control("BTN(0)");
    bool wanted = false;
    PaintedState marked(*button.parentWidget(), [&] { return button.isAssigned() == wanted; });
    std::vector<double> times;
    for (auto _ : state) {
        wanted = !wanted;
        shown.joystick.setSelStart(place);
        shown.joystick.setSelLength(wanted ? 0 : static_cast<std::int64_t>(statement.size()));
        shown.joystick.setSelText(wanted ? statement : "");
        QApplication::processEvents();
        if (shown.holds(statement) != wanted) return state.SkipWithError("the edit didn't arrive");
        if (!shown.composer.TimerAssigned.Enabled || button.isAssigned() == wanted)
            return state.SkipWithError("the mark is renewed by the edit itself");
        const auto start = Clock::now();
        shown.composer.TimerAssigned.Tick();
        marked.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(overlayRenewed)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);

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
