// The transform of a row of samples beside FFTW's real transform in double precision: a pair for
// bench/ratios.py.
#include "numeric/clsMatrix.h"

#include <benchmark/benchmark.h>

#include <fftw3.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace lumora {
namespace {

constexpr std::int32_t kSize = 4096;

double SampleAt(std::int32_t k)
{
    return std::sin(0.05 * k) + 0.3 * std::sin(0.31 * k);
}

void Ours(benchmark::State& state)
{
    clsMatrix x;
    x.Initial_matrix(1, kSize);
    for (std::int32_t k = 1; k <= kSize; ++k)
        x.Real(1, k, SampleAt(k));
    for (auto _ : state)
        benchmark::DoNotOptimize(x.fftm(kSize));
}
BENCHMARK(Ours)->Name("fftm_4096/lumora")->Unit(benchmark::kMicrosecond);

/// Planned once, as FFTW is meant to be used; only the transform counts.
void Fftw(benchmark::State& state)
{
    std::vector<double> in(kSize);
    std::vector<fftw_complex> out(kSize / 2 + 1);
    const std::unique_ptr<fftw_plan_s, decltype(&fftw_destroy_plan)> plan(
        fftw_plan_dft_r2c_1d(kSize, in.data(), out.data(), FFTW_MEASURE), fftw_destroy_plan);
    for (std::int32_t k = 1; k <= kSize; ++k)
        in[static_cast<std::size_t>(k - 1)] = SampleAt(k);
    for (auto _ : state) {
        fftw_execute(plan.get());
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(Fftw)->Name("fftm_4096/other")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace lumora
