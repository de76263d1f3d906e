// Whole files against digests that stand in golden.txt, so that a drift of the method is noticed
// even where fast and plain code drift together. The numbers are those of the plain pipeline, which
// is held against them as well; the inputs come from whole numbers only and are the same anywhere.

#include "engine/BlockPipeline.h"
#include "engine/BlockResampler.h"
#include "engine/PlainPipeline.h"
#include "engine/SoundFile.h"
#include "engine/SoundKinds.h"
#include "support/TempFolder.h"

#include <cstdint>
#include <fstream>
#include <gtest/gtest.h>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

namespace lumora {
namespace {

using test::Sound;

struct GoldenRun {
    const char* name;
    int rate_hz;
    int bits;
    std::size_t channels;
    std::size_t frames;
    double Q_P;
};
// Quotients as literals, for the last bit of a power differs between libraries.
constexpr GoldenRun kRuns[] = {
    {"mono_22050_octave_up", 22050, 16, 1, 70000, 0.5},
    {"mono_22050_tone_up", 22050, 16, 1, 70000, 0.8908987181403393},
    {"mono_22050_unchanged", 22050, 16, 1, 40000, 1.0},
    {"mono_22050_tone_down", 22050, 16, 1, 70000, 1.122462048309373},
    {"mono_22050_octave_down", 22050, 16, 1, 70000, 2.0},
    {"stereo_44100_two_tones_up", 44100, 16, 2, 90000, 0.7937005259840998},
    {"stereo_44100_octave_down", 44100, 16, 2, 90000, 2.0},
    {"mono_48000_fine_down", 48000, 16, 1, 80000, 1.0145453349375237},
    {"bytes_8000_three_tones_up", 8000, 8, 1, 30000, 0.7071067811865476},
    {"bytes_stereo_11025_tones_down", 11025, 8, 2, 40000, 1.5},
    {"mono_96000_octave_up", 96000, 16, 1, 100000, 0.5},
};

/// Two triangles, the higher one fading in bursts, and noise from a linear congruence.
Sound Made(const GoldenRun& run)
{
    Sound sound(run.channels);
    std::uint32_t state = 1;
    for (std::size_t i = 0; i < run.frames; ++i)
        for (std::size_t channel = 0; channel < run.channels; ++channel) {
            state = state * 1664525U + 1013904223U;
            const int noise = static_cast<int>(state >> 21) - 1024;
            const int burst = 4000 - static_cast<int>(i % 4001);
            const int low = test::Triangle(i, run.rate_hz / 110 + static_cast<int>(channel) * 7);
            const int high = test::Triangle(i, run.rate_hz / 523);
            const int value = low / 3 + high / 4 * burst / 4000 + noise;
            sound[channel].push_back(
                static_cast<std::int16_t>(run.bits == 8 ? value / 256 * 256 : value));
        }
    return sound;
}

/// FNV-1a of 64 bits over the data bytes.
std::string Digest(const Sound& sound)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (char byte : test::DataBytes(sound))
        hash = (hash ^ static_cast<std::uint8_t>(byte)) * 0x100000001b3U;
    std::ostringstream text;
    text << std::hex << std::setw(16) << std::setfill('0') << hash;
    return text.str();
}

/// "NAME FRAMES DIGEST", as a line of the table.
std::string Line(const GoldenRun& run, const Sound& sound)
{
    return std::string(run.name) + ' ' + std::to_string(sound.at(0).size()) + ' ' + Digest(sound);
}

std::vector<std::string> GoldenLines()
{
    std::ifstream table(LUMORA_SOURCE_DIR "/tests/engine/golden.txt");
    std::vector<std::string> lines;
    for (std::string line; std::getline(table, line);)
        if (!line.empty() && line[0] != '#') lines.push_back(line);
    return lines;
}

/// The line of the table for a run, empty if it has none.
std::string GoldenLine(const GoldenRun& run)
{
    for (const std::string& line : GoldenLines())
        if (line.rfind(std::string(run.name) + ' ', 0) == 0) return line;
    return {};
}

class Golden : public testing::TestWithParam<GoldenRun> {};
INSTANTIATE_TEST_SUITE_P(, Golden, testing::ValuesIn(kRuns),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_P(Golden, IsWhatThePlainPipelineGives)
{
    const GoldenRun& run = GetParam();
    test::PlainResampler resampler;
    EXPECT_EQ(Line(run, test::PlainRun(Made(run), run.rate_hz, run.Q_P, resampler)),
              GoldenLine(run));
}

TEST_P(Golden, IsWhatAWholeRunWrites)
{
    const GoldenRun& run = GetParam();
    const test::TempFolder folder;
    const std::string in = folder.Write("in.wav", test::FileOf(Made(run), run.rate_hz, run.bits));
    BlockResampler resampler;
    RunBlockPipeline({in, folder / "out.wav", run.Q_P, static_cast<int>(run.channels)}, resampler,
                     {});
    const Sound written = test::ParseSoundFile(test::BytesOf(folder / "out.wav")).sound;
    EXPECT_EQ(Line(run, written), GoldenLine(run));
}

TEST(GoldenTable, HasOneLineForEachRun)
{
    EXPECT_EQ(GoldenLines().size(), std::size(kRuns));
}

} // namespace
} // namespace lumora
