#include "engine/SimilaritySearch.h"
#include "support/Signals.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace lumora::bench {

namespace {

// The two searches of a jump at 44,100 Hz, about: points in the target, shifts tried.
constexpr std::int64_t kCoarse[] = {89, 45};
constexpr std::int64_t kFine[] = {881, 21};
constexpr std::size_t kReadAhead = 64; ///< more than any kernel reads beyond its window

/// Items are products of one sample with another.
template <class T> void Search(benchmark::State& state, const std::vector<T>& signal)
{
    const auto points = static_cast<std::size_t>(state.range(0));
    const auto shifts = static_cast<std::size_t>(state.range(1));
    std::vector<T> target(points + kReadAhead, T{});
    std::copy_n(signal.begin() + 5000, points, target.begin());
    const std::vector<T> input(
        signal.begin(), signal.begin() + static_cast<std::ptrdiff_t>(points + shifts + kReadAhead));
    SimilaritySearch search(WidestVectors());
    search.SetUp(shifts);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            search.BestShift(input.data(), target.data(), points, shifts, EnergyWindow::OneAhead));
    state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}

void SearchOfShorts(benchmark::State& state)
{
    if (!SimilaritySearch(WidestVectors()).TakesShorts()) {
        state.SkipWithError("this processor has no instructions for it");
        return;
    }
    Search(state, ChordShorts(10000));
}

/// Samples that are no multiples of 2^-15, as a stage before the core may make them.
void SearchOfDoubles(benchmark::State& state)
{
    std::vector<double> samples = ChordSamples(10000);
    for (double& sample : samples)
        sample /= 3.0;
    Search(state, samples);
}

void Sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"points", "shifts"});
    benchmark->Args({std::begin(kCoarse), std::end(kCoarse)});
    benchmark->Args({std::begin(kFine), std::end(kFine)});
}
BENCHMARK(SearchOfShorts)->Apply(Sizes);
BENCHMARK(SearchOfDoubles)->Apply(Sizes);

} // namespace

} // namespace lumora::bench
