#include "coloured_text.h"
#include "documents/text/rtf/rtf.h"

#include <benchmark/benchmark.h>

namespace tarvex::benchmarks {
namespace {

constexpr std::size_t usual = 30'000;

void rtfWrite(benchmark::State& state)
{
    Pane pane;
    fillColoured(pane, usual);
    const RichText text = pane.TextRTF();
    for (auto _ : state) benchmark::DoNotOptimize(writeRtf(text));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(rtfWrite);

void rtfRead(benchmark::State& state)
{
    Pane pane;
    fillColoured(pane, usual);
    const std::string rtf = writeRtf(pane.TextRTF());
    for (auto _ : state) benchmark::DoNotOptimize(readRtf(rtf, pane.formats()));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * rtf.size()));
}
BENCHMARK(rtfRead);

} // namespace
} // namespace tarvex::benchmarks
