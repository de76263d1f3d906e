#include "engine/BlockResampler.h"
#include "support/Signals.h"

#include <benchmark/benchmark.h>

namespace lumora::bench {

namespace {

constexpr std::size_t kBlockLen = 440;

/// Brings a stretched block, whose length is the argument, back to 440 samples.
void Resample(benchmark::State& state)
{
    const std::vector<double> stretched = ChordSamples(static_cast<std::size_t>(state.range(0)));
    const double rate = static_cast<double>(kBlockLen) / static_cast<double>(stretched.size());
    std::vector<double> block(kBlockLen);
    BlockResampler resampler;
    for (auto _ : state) {
        resampler.Resample(stretched, rate, block);
        benchmark::DoNotOptimize(block.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kBlockLen));
}
BENCHMARK(Resample)->Arg(220)->Arg(392)->Arg(494)->Arg(880);

} // namespace

} // namespace lumora::bench
