#include "audio/Wavwrite.h"
#include "overfilter/ClsRemoveOverPolynom.h"
#include "overfilter/ModOverPolynom.h"
#include "overfilter/OverFilterPlan.h"
#include "overfilter/RemoveOverStream.h"
#include "support/Signals.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace lumora::bench {

namespace {

constexpr std::int32_t kRate = 44100;
constexpr std::size_t kSeconds = 20;

/// Interleaved stereo; the argument is the drive over full scale in decibels, -3 for clean sound.
std::vector<double> Interleaved(std::int64_t drive_db)
{
    const std::vector<double> chord = ChordSamples(kRate * kSeconds);
    double peak = 0.0;
    for (const double x : chord)
        peak = std::max(peak, std::abs(x));
    const double drive = std::pow(10.0, static_cast<double>(drive_db) / 20.0) / peak;
    std::vector<double> samples(2 * chord.size());
    for (std::size_t k = 0; k < chord.size(); ++k) {
        // The other channel is a little later and softer, as from a stage.
        const double late = 0.8 * chord[k < 20 ? 0 : k - 20];
        samples[2 * k] = std::clamp(chord[k] * drive, -1.0, 32767.0 / 32768.0);
        samples[2 * k + 1] = std::clamp(late * drive, -1.0, 32767.0 / 32768.0);
    }
    return samples;
}

void ReportTimesRealTime(benchmark::State& state)
{
    state.counters["times_real_time"] = benchmark::Counter(
        static_cast<double>(kSeconds), benchmark::Counter::kIsIterationInvariantRate);
}

void RemoveOverBlocks(benchmark::State& state)
{
    const std::vector<double> samples = Interleaved(state.range(0));
    std::vector<double> out(samples.size());
    ClsRemoveOverPolynom filter;
    for (auto _ : state) {
        SetUpForRate(filter, kRate);
        filter.Process(samples, out);
        benchmark::DoNotOptimize(out.data());
    }
    ReportTimesRealTime(state);
}

/// A source of its own for the length of a benchmark, and what is made of it.
class StereoSource {
public:
    explicit StereoSource(std::int64_t drive_db)
    {
        const std::vector<double> samples = Interleaved(drive_db);
        Array<double> rows(2, static_cast<std::int64_t>(samples.size() / 2));
        std::copy(samples.begin(), samples.end(), rows.Span().begin());
        if (!wavwrite(rows, kRate, Name())) throw std::runtime_error("cannot write " + Name());
    }
    ~StereoSource()
    {
        std::error_code ignored;
        for (const std::string& name : {Name(), Result(), stem_ + "tmp.wav"})
            std::filesystem::remove(name, ignored);
    }
    StereoSource(const StereoSource&) = delete;
    StereoSource& operator=(const StereoSource&) = delete;

    std::string Name() const { return stem_ + ".wav"; }
    std::string Result() const { return stem_ + "-out.wav"; }

private:
    std::string stem_ =
        (std::filesystem::temp_directory_path() / ("lumora-over-" + std::to_string(getpid())))
            .string();
};

void RemoveOverStreamOfFile(benchmark::State& state)
{
    const StereoSource source(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(RemoveOverStream(source.Name(), source.Result()).end);
    ReportTimesRealTime(state);
}

void RemoveOverWholeFile(benchmark::State& state)
{
    const StereoSource source(state.range(0));
    std::int16_t quality = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(RemoveOverFile(source.Name(), quality).data());
    ReportTimesRealTime(state);
}

BENCHMARK(RemoveOverBlocks)->Arg(-3)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(RemoveOverStreamOfFile)->Arg(-3)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(RemoveOverWholeFile)->Arg(-3)->Arg(10)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace lumora::bench
