// Matrix operations beside what they are measured against: "Name/lumora" and "Name/other" are a
// pair, and bench/ratios.py prints how many times the other's time ours is.
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"

#include <benchmark/benchmark.h>

#include <Eigen/Dense>

#include <cmath>
#include <cstdint>
#include <memory>

namespace lumora {
namespace {

constexpr std::int32_t kMany = 1'000'000;

Ref<clsMatrix> Filled(std::int32_t rows, std::int32_t columns, double scale)
{
    Ref<clsMatrix> m = MakeRef<clsMatrix>();
    m->Initial_matrix(rows, columns);
    for (std::int32_t j = 1; j <= columns; ++j)
        for (std::int32_t i = 1; i <= rows; ++i)
            m->Real(i, j, scale * std::sin(0.7 * i + 1.3 * j));
    return m;
}

/// The bare loop, its result in memory that nobody filled before.
template <class F> void BareLoop(benchmark::State& state, F f)
{
    const auto a = Filled(1, kMany, 1.0)->GetRealAll();
    const auto b = Filled(1, kMany, 2.0)->GetRealAll();
    for (auto _ : state) {
        const auto result = std::make_unique_for_overwrite<double[]>(kMany);
        const double* const x = a.Span().data();
        const double* const y = b.Span().data();
        for (std::int32_t k = 0; k < kMany; ++k)
            result[static_cast<std::size_t>(k)] = f(x[k], y[k]);
        benchmark::DoNotOptimize(result.get());
    }
}

template <class F> void OnMatrices(benchmark::State& state, F f)
{
    const auto a = Filled(1, kMany, 1.0);
    const auto b = Filled(1, kMany, 2.0);
    for (auto _ : state)
        benchmark::DoNotOptimize(f(*a, *b));
}

void PlusOurs(benchmark::State& state)
{
    OnMatrices(state, [](const clsMatrix& a, const clsMatrix& b) { return a.PlusR(b); });
}
void PlusBare(benchmark::State& state)
{
    BareLoop(state, [](double a, double b) { return a + b; });
}
BENCHMARK(PlusOurs)->Name("PlusR_1e6/lumora")->Unit(benchmark::kMicrosecond);
BENCHMARK(PlusBare)->Name("PlusR_1e6/other")->Unit(benchmark::kMicrosecond);

void TimesOurs(benchmark::State& state)
{
    OnMatrices(state, [](const clsMatrix& a, const clsMatrix& b) { return a.TimesR(b); });
}
void TimesBare(benchmark::State& state)
{
    BareLoop(state, [](double a, double b) { return a * b; });
}
BENCHMARK(TimesOurs)->Name("TimesR_1e6/lumora")->Unit(benchmark::kMicrosecond);
BENCHMARK(TimesBare)->Name("TimesR_1e6/other")->Unit(benchmark::kMicrosecond);

void SinOurs(benchmark::State& state)
{
    OnMatrices(state, [](const clsMatrix& a, const clsMatrix&) { return a.SinM(); });
}
void SinBare(benchmark::State& state)
{
    BareLoop(state, [](double a, double) { return std::sin(a); });
}
BENCHMARK(SinOurs)->Name("SinM_1e6/lumora")->Unit(benchmark::kMicrosecond);
BENCHMARK(SinBare)->Name("SinM_1e6/other")->Unit(benchmark::kMicrosecond);

void ProductOurs(benchmark::State& state)
{
    const auto size = static_cast<std::int32_t>(state.range(0));
    const auto a = Filled(size, size, 1.0);
    const auto b = Filled(size, size, 2.0);
    for (auto _ : state)
        benchmark::DoNotOptimize(a->MtimesR(*b));
}
void ProductEigen(benchmark::State& state)
{
    const auto size = static_cast<std::int32_t>(state.range(0));
    const auto from = [size](double scale) {
        const auto store = Filled(size, size, scale)->GetRealAll();
        return Eigen::MatrixXd(Eigen::Map<const Eigen::MatrixXd>(store.Span().data(), size, size));
    };
    const Eigen::MatrixXd a = from(1.0);
    const Eigen::MatrixXd b = from(2.0);
    for (auto _ : state) {
        Eigen::MatrixXd result = a * b;
        benchmark::DoNotOptimize(result.data());
    }
}
BENCHMARK(ProductOurs)->Name("MtimesR/lumora")->Arg(512)->Unit(benchmark::kMillisecond);
BENCHMARK(ProductEigen)->Name("MtimesR/other")->Arg(512)->Unit(benchmark::kMillisecond);

/// A dispatcher on the smallest operands: what a call costs.
void Dispatcher(benchmark::State& state)
{
    const auto a = Filled(1, 1, 1.0);
    const Variant b = Filled(1, 1, 2.0);
    for (auto _ : state)
        benchmark::DoNotOptimize(a->Plus(b));
}
BENCHMARK(Dispatcher)->Name("Plus_1_by_1");

} // namespace
} // namespace lumora
