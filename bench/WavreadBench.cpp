// A whole file as a matrix beside the bare reading of its bytes, and the way back: pairs for
// bench/ratios.py.
#include "audio/Wavread.h"
#include "audio/Wavwrite.h"
#include "support/Signals.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace lumora {
namespace {

constexpr std::int32_t kRate = 44100;
constexpr std::int32_t kSeconds = 300;

/// Five minutes of stereo, and a place for another file of that length.
class StereoFile {
public:
    StereoFile()
    {
        const std::vector<double> second = bench::ChordSamples(kRate);
        Ref<clsMatrix> samples = MakeRef<clsMatrix>();
        samples->Initial_matrix(kRate * kSeconds, 2);
        for (std::int32_t k = 0; k < kRate * kSeconds; ++k) {
            const double sample = second[static_cast<std::size_t>(k % kRate)];
            samples->Real(k + 1, 1, sample);
            samples->Real(k + 1, 2, -0.5 * sample);
        }
        if (!wavwrite(samples, kRate, name_)) throw std::runtime_error("cannot write " + name_);
    }
    ~StereoFile()
    {
        std::error_code ignored;
        std::filesystem::remove(name_, ignored);
        std::filesystem::remove(Other(), ignored);
    }
    StereoFile(const StereoFile&) = delete;
    StereoFile& operator=(const StereoFile&) = delete;

    const std::string& Name() const { return name_; }
    std::string Other() const { return name_ + ".copy.wav"; }

private:
    std::string name_ = (std::filesystem::temp_directory_path() /
                         ("lumora-bench-" + std::to_string(getpid()) + ".wav"))
                            .string();
};

const StereoFile& FiveMinutes()
{
    static const StereoFile file;
    return file;
}

void ReadOurs(benchmark::State& state)
{
    const std::string& name = FiveMinutes().Name();
    for (auto _ : state)
        benchmark::DoNotOptimize(wavread(name));
}

/// All bytes of the file in one call, into memory that nobody filled before.
std::unique_ptr<char[]> AllBytes(const std::string& name, std::size_t size)
{
    auto bytes = std::make_unique_for_overwrite<char[]>(size);
    std::FILE* const file = std::fopen(name.c_str(), "rb");
    if (!file || std::fread(bytes.get(), 1, size, file) != size)
        throw std::runtime_error("cannot read " + name);
    std::fclose(file);
    return bytes;
}

void ReadBytes(benchmark::State& state)
{
    const std::string& name = FiveMinutes().Name();
    const std::size_t size = std::filesystem::file_size(name);
    for (auto _ : state)
        benchmark::DoNotOptimize(AllBytes(name, size));
}
BENCHMARK(ReadOurs)->Name("wavread_5min/lumora")->Unit(benchmark::kMillisecond);
BENCHMARK(ReadBytes)->Name("wavread_5min/other")->Unit(benchmark::kMillisecond);

void WriteOurs(benchmark::State& state)
{
    const WavreadResult sound = wavread(FiveMinutes().Name());
    const std::string name = FiveMinutes().Other();
    for (auto _ : state)
        benchmark::DoNotOptimize(wavwrite(sound.Samples, sound.Rate, name));
}

void WriteBytes(benchmark::State& state)
{
    const std::string& source = FiveMinutes().Name();
    const std::size_t size = std::filesystem::file_size(source);
    const auto bytes = AllBytes(source, size);
    const std::string name = FiveMinutes().Other();
    for (auto _ : state) {
        std::filesystem::remove(name); // as wavwrite does
        std::FILE* const file = std::fopen(name.c_str(), "wb");
        if (!file || std::fwrite(bytes.get(), 1, size, file) != size || std::fclose(file) != 0)
            throw std::runtime_error("cannot write " + name);
    }
}
BENCHMARK(WriteOurs)->Name("wavwrite_5min/lumora")->Unit(benchmark::kMillisecond);
BENCHMARK(WriteBytes)->Name("wavwrite_5min/other")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lumora
