#include "desktop/documents/text/pane_view.h"

#include "desktop/documents/text/match_scroll_bar.h"

#include "coloured_text.h"
#include "timing.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// What the user waits for: from an act, or from what the program does to a pane, to the painted view.

namespace tarvex::benchmarks {
namespace {

struct PaintCounter : QObject {
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/// A text widget in a window of usual size.
class PaintedWidget {
public:
    explicit PaintedWidget(QPlainTextEdit& widget) : m_widget(widget)
    {
        widget.resize(1200, 900);
        widget.show();
        widget.viewport()->installEventFilter(&m_counter);
        paint();
    }
    /// Lets events run until what waits has been painted.
    void paint() const
    {
        const int before = m_counter.paints;
        const auto start = Clock::now();
        while (m_counter.paints == before && secondsSince(start) < longest) QApplication::processEvents();
        if (m_counter.paints == before) throw std::runtime_error("the view isn't painted");
    }
    /// Seconds from the key to its painted character.
    double press(Qt::Key code, const QString& text) const
    {
        QKeyEvent key(QEvent::KeyPress, code, Qt::NoModifier, text);
        const auto start = Clock::now();
        QApplication::sendEvent(&m_widget, &key);
        paint();
        return secondsSince(start);
    }

private:
    static constexpr double longest = 2; // seconds
    QPlainTextEdit& m_widget;
    PaintCounter m_counter;
};

/// A pane in such a window.
struct Shown {
    Pane pane;
    PaneView view{pane};
    PaintedWidget painted{view};

    void paint() const { painted.paint(); }
};

/// All that can be shown beside and behind the text.
struct Marked {
    LineMark error;
    MatchMarks matches;

    explicit Marked(Shown& shown) : error(shown.pane), matches(shown.pane)
    {
        shown.view.showMarks(error, matches);
        shown.view.showLineNumbers(true);
        shown.view.showCurrentLine(true);
    }
};

/// The floor: the same text in Qt's own widget, without colours, undo levels or a pane behind it.
struct PlainShown {
    QPlainTextEdit edit;
    PaintedWidget painted{edit};

    explicit PlainShown(const Shown& model)
    {
        edit.setLineWrapMode(QPlainTextEdit::NoWrap);
        edit.setFont(model.view.font());
        edit.setUndoRedoEnabled(false);
        edit.setPlainText(model.view.toPlainText());
        edit.setTextCursor(QTextCursor(edit.document()->findBlockByNumber(model.view.textCursor().blockNumber())));
        edit.setFocus();
        painted.paint();
    }
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

/// A key in the middle of a coloured text of so many lines, with its undo level, painted. Every tenth is Return. Each
/// key also goes to a plain widget with the same text: the "times" are how much longer the view takes than that.
void typeInto(Shown& shown, benchmark::State& state)
{
    RichText level;
    shown.pane.Change = [&] { level = shown.pane.TextRTF(); };
    shown.pane.setSelStart(shown.pane.lineStart(shown.pane.lineCount() / 2));
    shown.paint();
    const PlainShown plain(shown);
    std::vector<double> times;
    std::vector<double> plainTimes;
    for (auto _ : state) {
        const bool lineEnd = times.size() % 10 == 9;
        const Qt::Key key = lineEnd ? Qt::Key_Return : Qt::Key_X;
        const QString text = lineEnd ? QStringLiteral("\r") : QStringLiteral("x");
        plainTimes.push_back(plain.painted.press(key, text));
        times.push_back(shown.painted.press(key, text));
        state.SetIterationTime(times.back());
    }
    for (const auto& [name, part] : {std::pair("p50", 0.50), std::pair("p99", 0.99)}) {
        const double view = percentile(times, part);
        const double floor = percentile(plainTimes, part);
        state.counters[std::string(name) + "_ms"] = view * 1e3;
        state.counters[std::string(name) + "_plain_ms"] = floor * 1e3;
        state.counters[std::string(name) + "_times"] = view / floor;
    }
    state.counters["lines"] = static_cast<double>(shown.pane.lineCount());
}
constexpr std::size_t charactersOfALine = 44;

void keystrokeToPaintedView(benchmark::State& state)
{
    Shown shown;
    fillColoured(shown.pane, static_cast<std::size_t>(state.range(0)) * charactersOfALine);
    typeInto(shown, state);
}
BENCHMARK(keystrokeToPaintedView)
    ->Arg(700)
    ->Arg(10'000)
    ->Iterations(2'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// The same with line numbers, the line of the caret, an error and a match of a search in every line.
void keystrokeWithMarksToPaintedView(benchmark::State& state)
{
    Shown shown;
    fillColoured(shown.pane, static_cast<std::size_t>(state.range(0)) * charactersOfALine);
    Marked marked(shown);
    marked.error.set(shown.pane.lineCount() / 2 + 3);
    marked.matches.show("a", 0);
    typeInto(shown, state);
    state.counters["matches"] = static_cast<double>(marked.matches.positions().size());
}
BENCHMARK(keystrokeWithMarksToPaintedView)
    ->Arg(10'000)
    ->Iterations(2'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// Ten thousand matches in a megabyte, in the text and in the scroll bar.
void markMatchesToPaintedView(benchmark::State& state)
{
    constexpr int lines = 10'000;
    const std::string line = "BTN S1 /I Chaff_Flare " + std::string(80, '.') + "\r\n";
    std::string text;
    for (int i = 0; i < lines; ++i) text += line;
    Shown shown;
    Marked marked(shown);
    shown.pane.setText(text);
    shown.paint();
    for (auto _ : state) {
        const auto start = Clock::now();
        marked.matches.show("chaff", 0);
        shown.view.matchBar()->showPlaces();
        shown.paint();
        state.SetIterationTime(secondsSince(start));
        if (marked.matches.positions().size() != lines) throw std::runtime_error("not all matches are marked");
        marked.matches.clear();
        shown.paint();
    }
}
BENCHMARK(markMatchesToPaintedView)->UseManualTime()->Unit(benchmark::kMillisecond);

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
