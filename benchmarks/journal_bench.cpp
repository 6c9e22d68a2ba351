#include "coloured_text.h"

#include "documents/recovery/recovery_format.h"
#include "platform/posix/posix_append_file.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <stdlib.h>

namespace tarvex::benchmarks {
namespace {

/// A character typed in a coloured text, and written into its journal on the disk.
void keystrokeWithJournal(benchmark::State& state)
{
    std::string folder = (std::filesystem::temp_directory_path() / "tarvex-bench-XXXXXX").string();
    if (!::mkdtemp(folder.data())) return state.SkipWithError("no folder");
    {
        SystemCalls calls;
        PosixAppendFile file(calls, folder + "/Recover/1.journal");
        std::uint64_t chain = 0;
        Pane pane;
        fillColoured(pane, static_cast<std::size_t>(state.range(0)));
        const Connection journal = pane.edited.connect([&](const Pane::Edit& edit) {
            const auto position = static_cast<std::size_t>(edit.position);
            file.append(journalEdit({position, static_cast<std::uint64_t>(edit.removed),
                                     pane.Text().substr(position, static_cast<std::size_t>(edit.inserted))},
                                    chain));
        });
        const std::int64_t middle = state.range(0) / 2;
        bool typed = false;
        for (auto _ : state) {
            pane.userEdit(middle, typed ? 1 : 0, typed ? "" : "x");
            typed = !typed;
        }
    }
    std::filesystem::remove_all(folder);
}
BENCHMARK(keystrokeWithJournal)->Arg(30'000);

/// The first change of a text, which takes all of it into a journal.
void journalBegun(benchmark::State& state)
{
    JournalStart start;
    start.base = joystickText(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        std::uint64_t chain = 0;
        benchmark::DoNotOptimize(journalStart(start, chain));
    }
}
BENCHMARK(journalBegun)->Arg(30'000)->Arg(1'000'000);

} // namespace
} // namespace tarvex::benchmarks
