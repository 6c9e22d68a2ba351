#include "coloured_text.h"

#include <benchmark/benchmark.h>

#include <array>

#include <malloc.h>

namespace tarvex::benchmarks {
namespace {

constexpr std::size_t usual = 30'000; // characters of a large controller file

/// Bytes that the heap has given out, with what each block costs.
std::size_t usedHeap()
{
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

/// A character typed in a coloured text, with its undo level.
void keystrokeWithLevel(benchmark::State& state)
{
    Pane pane;
    fillColoured(pane, static_cast<std::size_t>(state.range(0)));
    pane.Find("none of it", 0);
    RichText level;
    pane.Change = [&] { level = pane.TextRTF(); };
    const std::int64_t middle = state.range(0) / 2;
    bool typed = false;
    for (auto _ : state) {
        if (typed) {
            pane.userEdit(middle, 1, "");
        } else {
            pane.userEdit(middle, 0, "x");
        }
        typed = !typed;
    }
}
BENCHMARK(keystrokeWithLevel)->Arg(usual)->Arg(1'000'000)->Arg(10'000'000);

/// Memory of undo levels taken after single keystrokes in a coloured text of 44 KB.
void undoLevels(benchmark::State& state)
{
    std::size_t bytes = 0;
    for (auto _ : state) {
        Pane pane;
        fillColoured(pane, 44'000);
        std::vector<RichText> levels{pane.TextRTF()};
        levels.reserve(static_cast<std::size_t>(state.range(0)) + 1);
        const std::size_t before = usedHeap();
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            pane.userEdit(20'000 + i, 0, "x");
            levels.push_back(pane.TextRTF());
        }
        bytes = usedHeap() - before + (levels.size() - 1) * sizeof(RichText);
    }
    state.counters["bytes"] = static_cast<double>(bytes);
    state.counters["bytes_a_level"] = static_cast<double>(bytes) / static_cast<double>(state.range(0));
}
BENCHMARK(undoLevels)->Arg(1'000)->Arg(30'000)->Unit(benchmark::kMillisecond);

/// Back and forth between two levels that differ in a word.
void undoAndRedo(benchmark::State& state)
{
    Pane pane;
    fillColoured(pane, usual);
    const RichText before = pane.TextRTF();
    pane.userEdit(usual / 2, 0, "word");
    const RichText after = pane.TextRTF();
    for (auto _ : state) {
        pane.setTextRTF(before);
        pane.setTextRTF(after);
    }
}
BENCHMARK(undoAndRedo);

/// As many searches as a colouring run has passes, each through the whole text.
void find36Words(benchmark::State& state)
{
    constexpr std::array words{"BTNN",   "/q",      "RAW [",
                               "RAW[",   "DLY[",    "RPT[",
                               "ANTX",   "RNG",     "USE",
                               "MTT",    "MDEF",    "RATE",
                               "PortB",  "JSX",     "JSY",
                               "RDDR",   "THR",     "SWAPTG",
                               "RKR UP", "RKR DN",  "ANDY",
                               "NOTX",   "ORY",     "DEF",
                               "F22RST", "CMPLT",   "CMPGT",
                               "DELAY",  "PULSE",   "GAME1",
                               "GAME2",  "NULLCHR", "@digitalthrottle",
                               "Remm",   "~",       "//"};
    static_assert(words.size() == 36);
    Pane pane;
    fillColoured(pane, usual);
    for (auto _ : state) {
        for (const char* word : words) benchmark::DoNotOptimize(pane.Find(word, 0, Pane::toEnd, find::wholeWord));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * words.size() * usual));
}
BENCHMARK(find36Words);

void paintOneWord(benchmark::State& state)
{
    Pane pane;
    fillColoured(pane, usual);
    pane.setSelStart(usual / 2);
    pane.setSelLength(3);
    Colour colour = 0;
    for (auto _ : state) pane.setSelColor(colour ^= 255);
}
BENCHMARK(paintOneWord);

void paintWholeText(benchmark::State& state)
{
    Pane pane;
    fillColoured(pane, usual);
    pane.setSelStart(0);
    pane.setSelLength(usual);
    Colour colour = 0;
    for (auto _ : state) pane.setSelColor(colour ^= 255);
}
BENCHMARK(paintWholeText);

/// So many matches, each in a line of 31 characters and coloured.
void replaceAll(benchmark::State& state)
{
    const auto matches = static_cast<std::size_t>(state.range(0));
    std::string text;
    for (std::size_t i = 0; i < matches; ++i) text += "BTN S1 /I Chaff_Flare // help\r\n";
    Pane pane;
    pane.setText(text);
    for (std::int64_t line = 0; line < pane.lineCount() - 1; ++line) {
        pane.setSelStart(pane.lineStart(line));
        pane.setSelLength(3);
        pane.setSelColor(255);
    }
    bool there = false;
    const auto always = [](std::int64_t) { return true; };
    for (auto _ : state) {
        const Pane::Replaced replaced =
            pane.replaceEach(there ? "BUTTON" : "BTN", there ? "BTN" : "BUTTON", 0, 0, always);
        if (replaced.count != state.range(0)) state.SkipWithError("not all were replaced");
        there = !there;
    }
    state.counters["characters"] = static_cast<double>(text.size());
}
BENCHMARK(replaceAll)->Arg(10'000)->Arg(20'000)->Arg(40'000)->Unit(benchmark::kMillisecond);

/// For a word at the end of so many characters.
void findAcross(benchmark::State& state)
{
    Pane pane;
    pane.setText(joystickText(static_cast<std::size_t>(state.range(0))) + "needle");
    for (auto _ : state) {
        if (pane.Find("Needle", 0, Pane::toEnd, find::wholeWord) < 0) state.SkipWithError("not found");
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(findAcross)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

/// The last line but one of so many characters, by its number.
void gotoLine(benchmark::State& state)
{
    Pane pane;
    pane.setText(joystickText(static_cast<std::size_t>(state.range(0))));
    for (auto _ : state) {
        const std::int64_t line = pane.GetLineFromChar(state.range(0)) - 1;
        pane.setSelStart(pane.lineStart(line));
        pane.setSelLength(pane.lineStart(line + 1) - pane.lineStart(line));
        benchmark::DoNotOptimize(pane.SelLength());
    }
}
BENCHMARK(gotoLine)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void getLineFromChar(benchmark::State& state)
{
    Pane pane;
    pane.setText(joystickText(1'000'000));
    std::int64_t position = 0;
    for (auto _ : state) {
        position = (position + 611'953) % 1'000'000;
        benchmark::DoNotOptimize(pane.GetLineFromChar(position));
    }
}
BENCHMARK(getLineFromChar);

} // namespace
} // namespace tarvex::benchmarks
