#include "coloured_text.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

// The floors of the logic: what the C library takes to look through, or to copy, a text of the same size.

namespace tarvex::benchmarks {
namespace {

void scanText(benchmark::State& state)
{
    const std::string text = joystickText(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(std::memchr(text.data(), '\x01', text.size()));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(scanText)->Arg(30'000)->Arg(1'000'000);

void copyText(benchmark::State& state)
{
    const std::string text = joystickText(static_cast<std::size_t>(state.range(0)));
    std::vector<char> copy(text.size());
    for (auto _ : state) {
        std::memcpy(copy.data(), text.data(), text.size());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(copyText)->Arg(30'000)->Arg(1'000'000);

} // namespace
} // namespace tarvex::benchmarks
