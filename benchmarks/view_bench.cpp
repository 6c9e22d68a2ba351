#include "desktop/documents/text/pane_view.h"

#include "coloured_text.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <vector>

// What the user waits for: from an act, or from what the program does to a pane, to the painted view.

namespace tarvex::benchmarks {
namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

struct PaintCounter : QObject {
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/// A pane in a window of usual size.
struct Shown {
    Pane pane;
    PaneView view{pane};
    PaintCounter counter;

    Shown()
    {
        view.resize(1200, 900);
        view.show();
        view.viewport()->installEventFilter(&counter);
        paint();
    }
    /// Lets events run until what waits has been painted.
    void paint() const
    {
        const int before = counter.paints;
        const auto start = Clock::now();
        while (counter.paints == before && secondsSince(start) < longest) QApplication::processEvents();
        if (counter.paints == before) throw std::runtime_error("the view isn't painted");
    }
    static constexpr double longest = 2; // seconds
};

/// Every ten characters of 30,000 get a colour, and all that is in sight is painted.
void colourRunsToPaintedView(benchmark::State& state)
{
    constexpr std::int64_t characters = 30'000;
    constexpr std::int64_t run = 10;
    Shown shown;
    shown.pane.setText(joystickText(characters));
    shown.paint();
    Colour shade = 0;
    for (auto _ : state) {
        ++shade;
        const auto start = Clock::now();
        for (std::int64_t at = 0; at < characters; at += run) {
            shown.pane.setSelStart(at);
            shown.pane.setSelLength(run);
            shown.pane.setSelColor(static_cast<Colour>((at / run % 5 * 40 + shade % 40) << 8));
        }
        shown.pane.setSelStart(0);
        shown.paint();
        state.SetIterationTime(secondsSince(start));
    }
}
BENCHMARK(colourRunsToPaintedView)->UseManualTime()->Unit(benchmark::kMillisecond);

double percentile(std::vector<double>& sorted, double part)
{
    return sorted[std::min(sorted.size() - 1, static_cast<std::size_t>(part * static_cast<double>(sorted.size())))];
}

/// A key in the middle of a coloured text of so many lines, with its undo level, painted. Every tenth is Return.
void keystrokeToPaintedView(benchmark::State& state)
{
    constexpr std::size_t charactersOfALine = 44;
    Shown shown;
    fillColoured(shown.pane, static_cast<std::size_t>(state.range(0)) * charactersOfALine);
    RichText level;
    shown.pane.Change = [&] { level = shown.pane.TextRTF(); };
    shown.view.setFocus();
    shown.pane.setSelStart(shown.pane.lineStart(shown.pane.lineCount() / 2) + 5);
    shown.paint();
    std::vector<double> times;
    for (auto _ : state) {
        const bool lineEnd = times.size() % 10 == 9;
        QKeyEvent key(QEvent::KeyPress, lineEnd ? Qt::Key_Return : Qt::Key_X, Qt::NoModifier,
                      lineEnd ? QStringLiteral("\r") : QStringLiteral("x"));
        const auto start = Clock::now();
        QApplication::sendEvent(&shown.view, &key);
        shown.paint();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    std::sort(times.begin(), times.end());
    state.counters["p50_ms"] = percentile(times, 0.50) * 1e3;
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
    state.counters["lines"] = static_cast<double>(shown.pane.lineCount());
}
BENCHMARK(keystrokeToPaintedView)
    ->Arg(700)
    ->Arg(10'000)
    ->Iterations(2'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// A file of 400 lines with its colours replaces another.
void openToPaintedView(benchmark::State& state)
{
    Pane source;
    fillColoured(source, 400 * 44);
    const RichText text = source.TextRTF();
    Shown shown;
    for (auto _ : state) {
        shown.pane.setText("");
        shown.view.viewport()->update(); // also when it was empty
        shown.paint();
        const auto start = Clock::now();
        shown.pane.setTextRTF(text);
        shown.paint();
        state.SetIterationTime(secondsSince(start));
    }
}
BENCHMARK(openToPaintedView)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Every one of so many lines has a match.
void replaceAllToPaintedView(benchmark::State& state)
{
    std::string text;
    for (std::int64_t i = 0; i < state.range(0); ++i) text += "BTN S1 /I Chaff_Flare // help\r\n";
    Shown shown;
    shown.pane.setText(text);
    shown.paint();
    bool there = false;
    for (auto _ : state) {
        const auto start = Clock::now();
        shown.pane.replaceEach(there ? "BUTTON" : "BTN", there ? "BTN" : "BUTTON", 0, 0,
                               [](std::int64_t) { return true; });
        shown.paint();
        state.SetIterationTime(secondsSince(start));
        there = !there;
    }
}
BENCHMARK(replaceAllToPaintedView)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks

int main(int argumentCount, char** arguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
