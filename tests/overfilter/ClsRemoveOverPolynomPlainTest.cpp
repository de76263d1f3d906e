#include "overfilter/ClsRemoveOverPolynom.h"

#include "overfilter/OverSounds.h"
#include "overfilter/PlainRemoveOver.h"
#include "support/MessageRecorder.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>

namespace lumora {
namespace {

using namespace test;

void SetUpAs(ClsRemoveOverPolynom& filter, const PlainSetUp& s)
{
    filter.SetUp(static_cast<std::int16_t>(s.guard), static_cast<std::int16_t>(s.train),
                 s.decay_seconds, s.attack_seconds, static_cast<std::int16_t>(s.order), s.rate,
                 s.first_excess, s.excess_max);
}

bool SameBits(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

/// The fast class beside the plain one, at every vector width and in blocks of odd lengths.
class AgainstPlain : public testing::TestWithParam<VectorWidth> {
protected:
    /// Answers the plain filter as it stood at the end, for a look at what the sound has brought
    /// up.
    PlainRemoveOver Expect(const PlainSetUp& sizes, const Stream& in, std::size_t block = 997)
    {
        PlainRemoveOver plain(sizes);
        Stream expected;
        std::vector<double> gains;
        for (const double x : in) {
            expected.push_back(plain.Operation(x));
            gains.push_back(plain.Gain());
        }
        ClsRemoveOverPolynom filter(GetParam());
        SetUpAs(filter, sizes);
        Stream out(in.size());
        for (std::size_t from = 0; from < in.size(); from += block) {
            const std::size_t n = std::min(block, in.size() - from);
            filter.Process(std::span(in).subspan(from, n), std::span(out).subspan(from, n));
            EXPECT_TRUE(SameBits(filter.Gain(), gains[from + n - 1])) << from + n - 1;
        }
        ExpectSame(out, expected);
        EXPECT_EQ(filter.QualityGood(), plain.QualityGood());
        const OverFilterFigures& figures = filter.Figures();
        EXPECT_EQ(figures.rebuilt, plain.rebuilt);
        EXPECT_EQ(figures.left_too_long, plain.too_long);
        EXPECT_EQ(figures.left_unpredicted, plain.failed);
        EXPECT_EQ(figures.crowded, plain.crowded);
        EXPECT_EQ(figures.longest_region, plain.longest);
        EXPECT_EQ(figures.largest_gain, std::max(1.0, *std::ranges::max_element(gains)));
        EXPECT_EQ(messages.Take().size(), static_cast<std::size_t>(plain.singular));
        return plain;
    }

    static void ExpectSame(const Stream& out, const Stream& expected)
    {
        ASSERT_EQ(out.size(), expected.size());
        for (std::size_t k = 0; k < out.size(); ++k)
            ASSERT_TRUE(SameBits(out[k], expected[k]))
                << k << ": " << out[k] << " for " << expected[k];
    }

    Noise noise{2026};
    MessageRecorder messages;
};
constexpr const char* kWidthNames[] = {"Baseline", "Avx2", "Avx512"};
INSTANTIATE_TEST_SUITE_P(, AgainstPlain,
                         testing::ValuesIn(VectorWidths().begin(), VectorWidths().end()),
                         [](const auto& one) {
                             return kWidthNames[static_cast<std::size_t>(one.param)];
                         });

TEST_P(AgainstPlain, SoundsOfEveryRateAndDrive)
{
    int rebuilt = 0;
    for (const int rate : {8000, 11025, 22050, 44100, 48000, 96000})
        for (const std::size_t channels : {1U, 2U})
            for (const double drive : {0.9, 1.5, 3.2}) {
                SCOPED_TRACE(std::to_string(rate) + " Hz, drive " + std::to_string(drive));
                Stream in = Driven(noise, 6000, rate, channels, drive);
                if (channels == 2) Quantise(in);
                rebuilt += Expect(PlainForRate(rate), in).rebuilt;
            }
    EXPECT_GT(rebuilt, 500);
}

} // namespace
} // namespace lumora
