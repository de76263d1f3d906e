#include "engine/BlockPlan.h"
#include "engine/ClsWsolaQuick.h"
#include "support/Signals.h"

#include <benchmark/benchmark.h>

#include <span>

namespace lumora::bench {

namespace {

constexpr std::size_t kBlocks = 1000;

/// One channel at 44,100 Hz; the argument is the scale in thousandths. Scales far from 1 jump, and
/// so search, more often.
template <class T> void StretchBlocks(benchmark::State& state, const std::vector<T>& signal)
{
    const BlockPlan plan = BlockPlan::ForRate(static_cast<std::int32_t>(kRateHz));
    const auto block_len = static_cast<std::size_t>(plan.BlockLen);
    const double scale = static_cast<double>(state.range(0)) / 1000.0;
    ClsWsolaQuick core;
    core.SetUp(plan.BlockLen, plan.CoarseStep, kExtraLen);
    std::size_t block = 0;
    for (auto _ : state) {
        const std::span<const T> in = std::span(signal).subspan(block * block_len, block_len);
        benchmark::DoNotOptimize(core.Stretch(in, scale).data());
        block = (block + 1) % kBlocks;
    }
    state.SetItemsProcessed(state.iterations() * plan.BlockLen);
}

void StretchOfShorts(benchmark::State& state)
{
    StretchBlocks(state, ChordShorts(kBlocks * 440));
}

void StretchOfDoubles(benchmark::State& state)
{
    StretchBlocks(state, ChordSamples(kBlocks * 440));
}

// Six tones down, one down, an eighth up, one up, six up.
void Scales(benchmark::internal::Benchmark* benchmark)
{
    for (const int thousandths : {500, 891, 1014, 1122, 2000})
        benchmark->Arg(thousandths);
}
BENCHMARK(StretchOfShorts)->Apply(Scales);
BENCHMARK(StretchOfDoubles)->Apply(Scales);

} // namespace

} // namespace lumora::bench
