#include "cli/Sounds.h"

#include "engine/BlockPipeline.h"
#include "engine/BlockResampler.h"

#include <cmath>
#include <random>
#include <sndfile.h>
#include <stdexcept>

namespace lumora::test {

std::vector<std::int16_t> Tune(std::int64_t frames, int channels)
{
    std::minstd_rand noise(7);
    std::vector<std::int16_t> samples;
    for (std::int64_t k = 0; k < frames; ++k) {
        for (int c = 0; c < channels; ++c) {
            const double t = static_cast<double>(k);
            const double note = std::sin(t * (0.05 + 0.02 * c)) + std::sin(t * 0.113);
            const double beat = 1.0 - static_cast<double>(k % 5000) / 5000.0;
            const double hiss = static_cast<double>(noise() % 1001) - 500.0;
            samples.push_back(static_cast<std::int16_t>(6000.0 * note * beat + hiss));
        }
    }
    return samples;
}

std::string BytesOfSamples(const std::vector<std::int16_t>& samples)
{
    std::string bytes;
    for (const std::int16_t sample : samples)
        bytes += Le16(sample);
    return bytes;
}

std::string TuneWave(std::int64_t frames, int channels, std::int32_t rate_hz)
{
    const FormatSpec format = {.channels = channels, .rate_hz = rate_hz};
    return PlainWave(format, BytesOfSamples(Tune(frames, channels)));
}

void WriteWithLibrary(const std::string& path, int format, const std::vector<std::int16_t>& samples,
                      int channels, int rate_hz, double gain)
{
    SF_INFO info = {};
    info.format = format;
    info.channels = channels;
    info.samplerate = rate_hz;
    SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
    if (!file) throw std::runtime_error(path + ": " + sf_strerror(nullptr));
    std::vector<double> values;
    values.reserve(samples.size());
    for (const std::int16_t sample : samples)
        values.push_back(gain * sample / 32768.0);
    const auto count = static_cast<sf_count_t>(values.size());
    const bool written = sf_write_double(file, values.data(), count) == count;
    if (sf_close(file) != 0 || !written) throw std::runtime_error("cannot write " + path);
}

std::string EngineResult(const std::string& path, double quotient, int channels)
{
    const TempFolder folder;
    BlockResampler resampler;
    RunBlockPipeline({path, folder / "result.wav", quotient, channels}, resampler, {});
    return BytesOf(folder / "result.wav");
}

} // namespace lumora::test
