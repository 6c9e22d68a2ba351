#include "coloured_text.h"
#include "shown_program.h"

#include "documents/files/outside_notice.h"

#include <benchmark/benchmark.h>

namespace tarvex::benchmarks {
namespace {

/// Another program has changed ten lines of a file of so many coloured characters: from the click on Reload to the
/// painted text.
void reloadToPaintedView(benchmark::State& state)
{
    constexpr const char* path = "c:\\tm\\b50progs\\mig.b50";
    std::string text = joystickText(static_cast<std::size_t>(state.range(0)));
    ShownProgram shown;
    TestProgram& t = shown.program;
    t.files.addFile(path, text);
    t.openBoth(path);
    PaneView& view = shown.window.editor().pane(t.editor().joystick);
    OutsideNotices& notices = t.program().outsideNotices;
    const std::size_t apart = text.size() / 10;
    for (auto _ : state) {
        for (std::size_t place = 0; place + apart <= text.size(); place += apart) {
            char& changed = text[text.find_first_not_of("\r\n", place)];
            changed = changed == 'x' ? 'y' : 'x';
        }
        t.files.addFile(path, text);
        lookForOutsideChanges(notices);
        QApplication::processEvents();
        const auto start = Clock::now();
        notices.joystick.Reload.Click();
        view.settle();
        view.viewport()->repaint();
        state.SetIterationTime(secondsSince(start));
    }
    if (t.editor().JoystickText.Text() != text) state.SkipWithError("not reloaded");
}
BENCHMARK(reloadToPaintedView)->Arg(30'000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
