// Others read what wavwrite writes, and wavread reads what others write: the same numbers, 32 bits
// wide, in the order of the file.

#include "audio/Wavread.h"
#include "audio/Wavwrite.h"

#include "numeric/Matrices.h"
#include "support/MessageRecorder.h"
#include "support/TempFolder.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <sndfile.h>

namespace lumora {
namespace {

using namespace test;

constexpr int kPeerFrames = 3001; // odd, so that 8 bits of mono need the pad byte
constexpr int kRate = 22050;

using Numbers = std::vector<std::int32_t>;

/// A tone in each channel, near full scale, as numbers of the width in the order of the file.
Numbers Tone(int channels, int bits)
{
    const double full = std::ldexp(1.0, bits - 1) - 1.0;
    Numbers numbers;
    for (int frame = 0; frame < kPeerFrames; ++frame)
        for (int c = 0; c < channels; ++c)
            numbers.push_back(static_cast<std::int32_t>(
                std::lround(0.98 * full * std::sin(0.03 * (c + 1) * frame + c))));
    return numbers;
}

/// The same numbers widened to 32 bits, as both peers hand them out.
Numbers Widened(Numbers numbers, int bits)
{
    for (std::int32_t& number : numbers)
        number *= std::int32_t{1} << (32 - bits);
    return numbers;
}

/// The matrix from which wavwrite makes these numbers.
Ref<clsMatrix> MatrixOf(const Numbers& numbers, int channels, int bits)
{
    const double full = bits == 32 ? 2147483647.0 : std::ldexp(1.0, bits - 1);
    Ref<clsMatrix> m = MakeRef<clsMatrix>();
    m->Initial_matrix(kPeerFrames, channels);
    for (int frame = 0; frame < kPeerFrames; ++frame)
        for (int c = 0; c < channels; ++c)
            m->Real(frame + 1, c + 1,
                    numbers[static_cast<std::size_t>(frame * channels + c)] / full);
    return m;
}

class WavePeers : public testing::TestWithParam<std::tuple<int, int>> {
protected:
    void TearDown() override { EXPECT_EQ(messages.Take(), Shown{}); }

    const int bits = std::get<0>(GetParam());
    const int channels = std::get<1>(GetParam());
    const int subtype = bits == 8    ? SF_FORMAT_PCM_U8
                        : bits == 16 ? SF_FORMAT_PCM_16
                                     : SF_FORMAT_PCM_32;
    TempFolder folder;
    const std::string name = folder / "f.wav";
    MessageRecorder messages;
};
INSTANTIATE_TEST_SUITE_P(, WavePeers,
                         testing::Combine(testing::Values(8, 16, 32), testing::Values(1, 2)),
                         [](const auto& one) {
                             return std::to_string(std::get<0>(one.param)) + "BitsBy" +
                                    std::to_string(std::get<1>(one.param));
                         });

TEST_P(WavePeers, LibsndfileReadsWhatWeWrite)
{
    const Numbers tone = Tone(channels, bits);
    ASSERT_TRUE(wavwrite(MatrixOf(tone, channels, bits), kRate, std::int16_t(bits), name, 0.0,
                         "text behind the data"));
    SF_INFO info = {};
    SNDFILE* const file = sf_open(name.c_str(), SFM_READ, &info);
    ASSERT_NE(file, nullptr) << sf_strerror(nullptr);
    EXPECT_EQ(info.frames, kPeerFrames);
    EXPECT_EQ(info.samplerate, kRate);
    EXPECT_EQ(info.channels, channels);
    EXPECT_EQ(info.format, SF_FORMAT_WAV | subtype);
    Numbers read(tone.size() + 8); // room for more than there should be
    const sf_count_t count = sf_readf_int(file, read.data(), kPeerFrames + 4) * channels;
    read.resize(static_cast<std::size_t>(count));
    sf_close(file);
    EXPECT_EQ(read, Widened(tone, bits));
}

TEST_P(WavePeers, WeReadWhatLibsndfileWrites)
{
    const Numbers tone = Tone(channels, bits);
    SF_INFO info = {};
    info.samplerate = kRate;
    info.channels = channels;
    info.format = SF_FORMAT_WAV | subtype;
    SNDFILE* const file = sf_open(name.c_str(), SFM_WRITE, &info);
    ASSERT_NE(file, nullptr) << sf_strerror(nullptr);
    const Numbers wide = Widened(tone, bits);
    sf_write_int(file, wide.data(), static_cast<sf_count_t>(wide.size()));
    sf_close(file);

    const WavreadResult result = wavread(name);
    ASSERT_TRUE(result.Samples);
    EXPECT_EQ(result.Bits, bits);
    EXPECT_EQ(result.Rate, kRate);
    ASSERT_EQ(ShapeOf(*result.Samples), Sized(kPeerFrames, channels));
    for (int frame = 0; frame < kPeerFrames; ++frame)
        for (int c = 0; c < channels; ++c)
            ASSERT_EQ(result.Samples->Real(frame + 1, c + 1),
                      std::ldexp(tone[static_cast<std::size_t>(frame * channels + c)], 1 - bits));
}

TEST_P(WavePeers, SoxReadsWhatWeWrite)
{
    const Numbers tone = Tone(channels, bits);
    ASSERT_TRUE(wavwrite(MatrixOf(tone, channels, bits), kRate, std::int16_t(bits), name));
    const std::string raw = folder / "f.raw";
    const std::string errors = folder / "errors";
    const std::string command =
        "sox -V2 '" + name + "' -t raw -e signed-integer -b 32 -L '" + raw + "' 2>'" + errors + "'";
    ASSERT_EQ(std::system(command.c_str()), 0) << BytesOf(errors);
    EXPECT_EQ(BytesOf(errors), ""); // no warning either
    const std::string bytes = BytesOf(raw);
    Numbers read(bytes.size() / sizeof(std::int32_t));
    std::memcpy(read.data(), bytes.data(), read.size() * sizeof(std::int32_t));
    EXPECT_EQ(read, Widened(tone, bits));

    const std::string told = "soxi '" + name + "' >'" + raw + "'";
    ASSERT_EQ(std::system(told.c_str()), 0);
    const std::string facts = BytesOf(raw);
    EXPECT_NE(facts.find(": " + std::to_string(channels) + "\n"), std::string::npos) << facts;
    EXPECT_NE(facts.find(": " + std::to_string(kRate) + "\n"), std::string::npos) << facts;
    EXPECT_NE(facts.find(": " + std::to_string(bits) + "-bit\n"), std::string::npos) << facts;
}

} // namespace
} // namespace lumora
