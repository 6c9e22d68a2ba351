#include "desktop/help/qt_help_system.h"
#include "shown_program.h"

#include <benchmark/benchmark.h>

#include <stdexcept>
#include <vector>

// The handbook that the build made: from the key or the command to the painted page.

namespace tarvex::benchmarks {
namespace {

/// The program with the installed handbook.
struct WithHandbook {
    QtHelpSystem system{helpPlaces("")};
    ShownProgram shown;
    PaintsOf page{"HandbookPageArea"};

    WithHandbook() { help().useSystem(system); }
    Help& help() { return shown.program.program().help; }
    double open()
    {
        const auto start = Clock::now();
        shown.program.menus().mnuHelpContents.Click();
        page.wait();
        return secondsSince(start);
    }
};

/// "first_ms" is the very first time in the process, with Qt Help and its database loaded.
void handbookOpening(benchmark::State& state)
{
    std::vector<double> times;
    for (auto _ : state) {
        WithHandbook handbook;
        times.push_back(handbook.open());
        state.SetIterationTime(times.back());
    }
    state.counters["first_ms"] = times.front() * 1e3;
}
BENCHMARK(handbookOpening)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

/// F1 on each keyword of the index in turn, in the open handbook.
void helpKeywordToPage(benchmark::State& state)
{
    WithHandbook handbook;
    handbook.open();
    const auto& keywords = handbook.help().handbook.index.keywords();
    if (keywords.empty()) throw std::runtime_error("the handbook has no index");
    std::vector<double> times;
    std::size_t next = 0;
    while (state.KeepRunning()) {
        const std::string before = handbook.help().handbook.Target.get();
        const auto start = Clock::now();
        do { // two keywords of one place paint nothing
            HelpKeyword(handbook.help().handbook, keywords[next++ % keywords.size()].word);
        } while (handbook.help().handbook.Target.get() == before && next < times.size() + 2 * keywords.size());
        handbook.page.wait();
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(helpKeywordToPage)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A search through all pages with each letter that is typed, to the filled list.
void handbookSearch(benchmark::State& state)
{
    WithHandbook handbook;
    handbook.open();
    Property<std::string>& words = handbook.help().handbook.Search.Text;
    const std::string typed = "the joystick file button";
    std::vector<double> times;
    while (state.KeepRunning()) {
        const std::size_t letters = 1 + times.size() % typed.size();
        const auto start = Clock::now();
        words = typed.substr(0, letters);
        times.push_back(secondsSince(start));
        state.SetIterationTime(times.back());
    }
    state.counters["p99_ms"] = percentile(times, 0.99) * 1e3;
}
BENCHMARK(handbookSearch)->Iterations(240)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
