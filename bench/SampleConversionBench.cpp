#include "audio/SampleConversion.h"
#include "support/Signals.h"

#include <benchmark/benchmark.h>

namespace lumora::bench {

namespace {

constexpr std::size_t kCount = 4096; ///< stays in the first-level cache

void FromShorts(benchmark::State& state)
{
    const std::vector<std::int16_t> values = ChordShorts(kCount);
    std::vector<double> samples(kCount);
    for (auto _ : state) {
        SamplesFromShorts(values, samples);
        benchmark::DoNotOptimize(samples.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}
BENCHMARK(FromShorts);

void ToShorts(benchmark::State& state)
{
    const std::vector<double> samples = ChordSamples(kCount);
    std::vector<std::int16_t> values(kCount);
    for (auto _ : state) {
        ShortsFromSamples(samples, values);
        benchmark::DoNotOptimize(values.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}
BENCHMARK(ToShorts);

void ToStereoShorts(benchmark::State& state)
{
    const std::vector<double> samples = ChordSamples(kCount);
    const std::span<const double> left = std::span(samples).first(kCount / 2);
    const std::span<const double> right = std::span(samples).last(kCount / 2);
    std::vector<std::int16_t> values(kCount);
    for (auto _ : state) {
        ShortsFromSamples(left, right, values);
        benchmark::DoNotOptimize(values.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}
BENCHMARK(ToStereoShorts);

} // namespace

} // namespace lumora::bench
