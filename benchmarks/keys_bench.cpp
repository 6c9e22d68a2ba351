#include "safein/keys/key_strings.h"
#include "safein/keys/key_table.h"
#include "safein/keys/raw_decoder.h"

#include <benchmark/benchmark.h>

#include <string>

namespace tarvex::benchmarks {
namespace {

/// What the pad holds, by the bits of a number, and the two options that names and codes depend on.
PadState padOf(unsigned held, unsigned options)
{
    PadState pad{.JoyName = 1};
    pad.shift = (held & 1U) != 0;
    pad.ctrl = (held & 2U) != 0;
    pad.alt = (held & 4U) != 0;
    pad.numLock = (held & 8U) != 0;
    pad.UseShfKey = options & 1U;
    pad.ApplyRAWTMnotes = (options >> 1U) & 1U;
    return pad;
}

/// The texts of all keys in each of the 16 states of the pad with each of the four settings.
void allKeyStrings(benchmark::State& state)
{
    KeyStrings strings;
    for (auto _ : state) {
        for (unsigned options = 0; options < 4; ++options) {
            for (unsigned held = 0; held < 16; ++held) {
                PadState pad = padOf(held, options);
                for (const Key& key : keyTable()) {
                    strings.LastKeyIndex = static_cast<std::int16_t>(key.index);
                    pad.caption = key.labelWith(pad.shift);
                    GetKeystrings(strings, pad);
                    benchmark::DoNotOptimize(strings);
                }
            }
        }
    }
}
BENCHMARK(allKeyStrings)->Unit(benchmark::kMillisecond);

/// One RAW block of a megabyte, of keys that go down and up.
void decodeRawText(benchmark::State& state)
{
    constexpr std::size_t size = 1'000'000;
    std::string text = "RAW (";
    for (std::size_t at = 0; text.size() < size; ++at) {
        const Key& key = keyTable()[at % keyTable().size()];
        text += std::string(key.make) + ' ' + breakCode(key) + ' ';
    }
    text += ')';
    for (auto _ : state) benchmark::DoNotOptimize(decodeRaw(text));
    state.counters["ns_per_byte"] =
        benchmark::Counter(static_cast<double>(text.size()) * 1e-9,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(decodeRawText)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
