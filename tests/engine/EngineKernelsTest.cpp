#include "engine/EngineKernels.h"
#include "engine/ShortKernels.h"

#include "engine/SoundKinds.h"
#include "support/VectorWidths.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

namespace lumora {
namespace {

using namespace test;
using Numbers = std::vector<double>;

constexpr double kUntouched = 12345.0;

/// Once for each width of vectors that this machine has; each kernel against the loop it stands
/// for.
class Kernel : public testing::TestWithParam<VectorWidth> {
protected:
    const EngineKernels& kernels = EngineKernelsFor(GetParam());
    Generator generator{11};

    /// Numbers of widely different sizes: another order of summing gives other bits.
    Numbers Some(std::size_t count)
    {
        std::uniform_real_distribution<double> uniform(-1.0, 1.0);
        Numbers numbers(count);
        for (double& number : numbers)
            number = std::ldexp(uniform(generator), -Between(generator, 0, 40));
        return numbers;
    }
};
INSTANTIATE_TEST_SUITE_P(, Kernel, EveryWidth(), WidthName);

void ExpectSameBits(double value, double expected)
{
    ASSERT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected))
        << value << " for " << expected;
}

template <class T> double PlainCross(const T* x, const std::vector<double>& y, double unit)
{
    double sum = 0;
    for (std::size_t i = 0; i < y.size(); ++i)
        sum += y[i] * (x[i] * unit);
    return sum;
}

template <class T>
void ExpectPlainSums(const WindowSums& sums, const T* x, const std::vector<double>& y, double unit)
{
    WindowSums plain;
    for (std::size_t i = 0; i < y.size(); ++i) {
        const double sample = x[i] * unit;
        plain.x += sample;
        plain.y += y[i];
        plain.xx += sample * sample;
        plain.yy += y[i] * y[i];
    }
    ExpectSameBits(sums.x, plain.x);
    ExpectSameBits(sums.y, plain.y);
    ExpectSameBits(sums.xx, plain.xx);
    ExpectSameBits(sums.yy, plain.yy);
}

TEST_P(Kernel, CorrelateGivesThePlainSums)
{
    for (std::size_t count = 1; count <= 200; ++count) {
        const auto shifts = static_cast<std::size_t>(Between(generator, 1, 60));
        SCOPED_TRACE(testing::Message() << count << " points, " << shifts << " shifts");
        // As long as allowed and no longer: a memory checker sees what is read beyond.
        const Numbers x = Some(count + PaddedShifts(shifts) - 1);
        const Numbers y = Some(count);
        Numbers cross(PaddedShifts(shifts));
        WindowSums sums;
        kernels.correlate(x.data(), y.data(), count, shifts, cross.data(), sums);
        ExpectPlainSums(sums, x.data(), y, 1.0);
        for (std::size_t k = 0; k < shifts; ++k)
            ExpectSameBits(cross[k], PlainCross(x.data() + k, y, 1.0));
        if (HasFatalFailure()) return;
    }
}

TEST_P(Kernel, CorrelateOfShortsGivesThePlainSums)
{
    const ShortKernels* shorts = ShortKernelsFor(GetParam());
    if (!shorts) {
        EXPECT_EQ(GetParam(), VectorWidth::Baseline);
        return;
    }
    constexpr double kUnit = 1.0 / 32768.0;
    for (std::size_t round = 0; round < 400; ++round) {
        const std::size_t count = round % 200 + 1;
        const auto shifts = static_cast<std::size_t>(Between(generator, 1, 60));
        SCOPED_TRACE(testing::Message() << count << " points, " << shifts << " shifts");
        const std::size_t padded =
            (count + ShortKernels::kGroup - 1) / ShortKernels::kGroup * ShortKernels::kGroup;
        const std::size_t readable = PaddedShifts(shifts) + padded - 1;
        const bool clipped = round >= 200;
        const test::Shorts16 x =
            clipped ? test::ClippedRuns(generator, readable, 40) : test::Noise(generator, readable);
        // The target keeps clear of the lowest value: two products of it overflow.
        test::Shorts16 y = clipped ? test::ClippedRuns(generator, count, 40)
                                   : test::Noise(generator, count, -32767);
        for (std::int16_t& value : y)
            value = std::max<std::int16_t>(value, -32767);
        Numbers samples;
        for (std::int16_t value : y)
            samples.push_back(value * kUnit);
        y.resize(padded);
        Numbers cross(PaddedShifts(shifts));
        WindowSums sums;
        shorts->correlate(x.data(), y.data(), count, shifts, cross.data(), sums);
        ExpectPlainSums(sums, x.data(), samples, kUnit);
        for (std::size_t k = 0; k < shifts; ++k)
            ExpectSameBits(cross[k], PlainCross(x.data() + k, samples, kUnit));
        if (HasFatalFailure()) return;
    }
}

TEST_P(Kernel, CorrelateOfShortsHoldsTheLargestSums)
{
    const ShortKernels* shorts = ShortKernelsFor(GetParam());
    if (!shorts) {
        EXPECT_EQ(GetParam(), VectorWidth::Baseline);
        return;
    }
    // The longest target there is (N = 8186), at full scale throughout: 2^44 in all.
    constexpr std::size_t kCount = 2 * 8186 + 1;
    for (int y_value : {-32767, 32767}) {
        const test::Shorts16 x(kCount + 40, -32768);
        test::Shorts16 y(kCount, static_cast<std::int16_t>(y_value));
        y.resize(kCount + ShortKernels::kGroup);
        Numbers cross(kShiftGroup);
        WindowSums sums;
        shorts->correlate(x.data(), y.data(), kCount, 1, cross.data(), sums);
        const double count = static_cast<double>(kCount);
        EXPECT_EQ(cross[0], count * -32768.0 * y_value / (32768.0 * 32768.0));
        EXPECT_EQ(sums.x, -count);
        EXPECT_EQ(sums.xx, count);
        EXPECT_EQ(sums.y, count * y_value / 32768.0);
        EXPECT_EQ(sums.yy, count * 32767.0 * 32767.0 / (32768.0 * 32768.0));
    }
}

TEST_P(Kernel, CoefficientsArePearsonsByTheStatedFormula)
{
    for (std::size_t shifts = 1; shifts <= 200; ++shifts) {
        Numbers sum_xx(shifts), mean_x(shifts), cross(shifts);
        const TargetMoments target{89.0, 0.01, 3.25};
        for (std::size_t k = 0; k < shifts; ++k) {
            mean_x[k] = Between(generator, -100, 100) / 300.0;
            // Variances from clearly positive over the bound of silence to below zero.
            const double variance =
                std::ldexp(Between(generator, -1, 9), -Between(generator, 0, 60));
            sum_xx[k] = 89.0 * (mean_x[k] * mean_x[k]) + variance;
            cross[k] = Between(generator, -1000, 1000) / 700.0;
        }
        Numbers expected;
        for (std::size_t k = 0; k < shifts; ++k) {
            const double product = (sum_xx[k] - 89.0 * (mean_x[k] * mean_x[k])) * 3.25;
            expected.push_back(
                product <= 1e-16 ? 0.0 : (cross[k] - 89.0 * mean_x[k] * 0.01) / std::sqrt(product));
        }
        kernels.coefficients(sum_xx.data(), mean_x.data(), cross.data(), shifts, target);
        for (std::size_t k = 0; k < shifts; ++k)
            ExpectSameBits(cross[k], expected[k]);
        if (HasFatalFailure()) return;
    }
}

TEST_P(Kernel, CoefficientsTurnToZeroAtTheBoundItself)
{
    const double bound = 1e-16;
    const double sum_xx[] = {std::nextafter(bound, 0.0), bound, std::nextafter(bound, 1.0)};
    const double mean_x[] = {0, 0, 0};
    double cross[] = {1e-9, 1e-9, 1e-9};
    kernels.coefficients(sum_xx, mean_x, cross, 3, {1.0, 0.0, 1.0});
    EXPECT_EQ(cross[0], 0.0);
    EXPECT_EQ(cross[1], 0.0);
    EXPECT_NEAR(cross[2], 0.1, 1e-15);
}

TEST_P(Kernel, OverlapAddAddsTheWindowedFrameAndNothingElse)
{
    for (std::size_t count = 1; count <= 200; ++count) {
        const Numbers in = Some(count), window = Some(count);
        Numbers out = Some(count);
        Numbers expected = out;
        for (std::size_t i = 0; i < count; ++i)
            expected[i] += in[i] * window[i];
        out.push_back(kUntouched);
        expected.push_back(kUntouched);
        kernels.overlap_add(out.data(), in.data(), window.data(), count);
        for (std::size_t i = 0; i < expected.size(); ++i)
            ExpectSameBits(out[i], expected[i]);
        if (HasFatalFailure()) return;
    }
}

TEST_P(Kernel, InterpolateGoesFromNeighbourToNeighbour)
{
    for (std::size_t count = 1; count <= 200; ++count) {
        const Numbers source = Some(count + 1);
        Numbers fraction(count);
        std::vector<std::int32_t> index(count);
        for (std::size_t j = 0; j < count; ++j) {
            fraction[j] = std::uniform_real_distribution<double>(0.0, 1.0)(generator);
            index[j] = Between(generator, 0, static_cast<int>(count) - 1);
        }
        Numbers out(count + 1, kUntouched);
        kernels.interpolate(source.data(), index.data(), fraction.data(), count, out.data());
        for (std::size_t j = 0; j < count; ++j) {
            const auto k = static_cast<std::size_t>(index[j]);
            ExpectSameBits(out[j], (source[k + 1] - source[k]) * fraction[j] + source[k]);
        }
        ExpectSameBits(out[count], kUntouched);
        if (HasFatalFailure()) return;
    }
}

TEST_P(Kernel, TakeEveryOtherKeepsOneChannelOfTwo)
{
    for (std::size_t count = 1; count <= 200; ++count) {
        const test::Shorts16 interleaved = test::Noise(generator, 2 * count);
        for (std::size_t channel : {0U, 1U}) {
            test::Shorts16 frame(count + 1, 77);
            // The last frame ends with the array: channel 2 has one value less behind its first.
            kernels.take_every_other(interleaved.data() + channel, count, frame.data());
            for (std::size_t i = 0; i < count; ++i)
                ASSERT_EQ(frame[i], interleaved[2 * i + channel]);
            ASSERT_EQ(frame[count], 77);
        }
    }
}

} // namespace
} // namespace lumora
