// A minute of speech through the lattice: analysis, residual, synthesis. The counter tells how many
// times faster than the sound runs each is.
#include "numeric/clsMatrix.h"
#include "support/Signals.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace lumora::bench {

namespace {

constexpr double kSeconds = 60.0;
constexpr std::size_t kSamples = 60 * 22050;
constexpr std::int32_t kOrder = 24;
constexpr std::int32_t kFrame = 220;

Ref<clsMatrix> RowOf(const std::vector<double>& samples)
{
    Array<double> store(static_cast<std::int64_t>(samples.size()));
    std::copy(samples.begin(), samples.end(), store.Span().begin());
    Ref<clsMatrix> row = MakeRef<clsMatrix>();
    row->SetRealAll(std::move(store));
    return row;
}

Ref<clsMatrix> Reflections(const clsMatrix& sound)
{
    std::int32_t window = 3 * kFrame;
    std::int32_t shift = kFrame;
    return sound.Parcor_Burg1(kOrder, window, shift).As<Ref<clsMatrix>>();
}

template <class Work> void Minute(benchmark::State& state, Work work)
{
    const Ref<clsMatrix> sound = RowOf(ChordSamples(kSamples));
    const Ref<clsMatrix> table = Reflections(*sound);
    const Ref<clsMatrix> silence = RowOf(std::vector<double>(kOrder + 1, 0.0));
    const Ref<clsMatrix> residual = sound->Parcor_Resid(*table, *silence, kFrame);
    for (auto _ : state)
        benchmark::DoNotOptimize(work(*sound, *table, *silence, *residual));
    state.counters["times_real_time"] =
        benchmark::Counter(kSeconds, benchmark::Counter::kIsIterationInvariantRate);
}

void Analysis(benchmark::State& state)
{
    Minute(state, [](const clsMatrix& sound, const auto&, const auto&, const auto&) {
        return Reflections(sound);
    });
}
void Residual(benchmark::State& state)
{
    Minute(state, [](const clsMatrix& sound, const clsMatrix& table, const clsMatrix& silence,
                     const auto&) { return sound.Parcor_Resid(table, silence, kFrame); });
}
void Synthesis(benchmark::State& state)
{
    Minute(state, [](const auto&, const clsMatrix& table, const clsMatrix& silence,
                     const clsMatrix& residual) {
        return residual.Parcor_Direct(table, silence, 1.0, kFrame);
    });
}
BENCHMARK(Analysis)->Name("Parcor_Burg1_a_minute")->Unit(benchmark::kMillisecond);
BENCHMARK(Residual)->Name("Parcor_Resid_a_minute")->Unit(benchmark::kMillisecond);
BENCHMARK(Synthesis)->Name("Parcor_Direct_a_minute")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace lumora::bench
