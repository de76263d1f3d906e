#include "numeric/speech/Fourier.h"
#include "base/Numbers.h"
#include "numeric/Matrices.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"
#include "support/ReferenceCosine.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <numbers>
#include <random>

namespace lumora {
namespace {

using namespace test;

/// Comparable to the last bit, the signs of zeros included.
std::vector<std::uint64_t> Bits(const std::vector<double>& values)
{
    std::vector<std::uint64_t> bits;
    for (const double value : values)
        bits.push_back(std::bit_cast<std::uint64_t>(value));
    return bits;
}

std::vector<double> Real(const Variant& transform)
{
    return Elements(transform.As<Ref<clsComplexMatrix>>()->RealPart());
}
std::vector<double> Image(const Variant& transform)
{
    return Elements(transform.As<Ref<clsComplexMatrix>>()->ImagePart());
}

/// What the plain steps raise where one of them would never end.
struct Endless {};

void PlainCopy(const Array<double>& x, std::int64_t n_fft, Array<double>& to)
{
    to(1) = x(1);
    to(n_fft) = x(n_fft);
    const auto half = [](std::int64_t k) { return CLng(static_cast<double>(k) / 2.0); };
    const std::int64_t n2 = half(n_fft);
    const std::int64_t n4 = CLng(static_cast<double>(n_fft) / 4.0);
    std::int64_t j = 1;
    for (std::int64_t i = 1; i <= n_fft - 2; i += 2) {
        to(j) = x(i);
        to(j + n2) = x(i + 1);
        std::int64_t k = n4;
        while (k < j) {
            if (k == 0) throw Endless();
            j = j - k;
            k = half(k);
        }
        j = j + k;
    }
    if (n_fft >= 2) to(n2) = x(n_fft - 1);
}

void PlainButterfly(Array<double>& re, Array<double>& im, std::int64_t i, std::int64_t ip,
                    double tr, double ti)
{
    re(ip) = re(i) - tr;
    im(ip) = im(i) - ti;
    re(i) = re(i) + tr;
    im(i) = im(i) + ti;
}

void PlainStages(Array<double>& re, Array<double>& im, std::int64_t n_fft)
{
    const double two_pi = 8.0 * std::atan(1.0);
    const auto n = static_cast<double>(n_fft);
    const auto stages = static_cast<int>(Int(std::log(n) / std::log(2.0)));
    std::int64_t le = 1;
    for (int s = 1; s <= stages; ++s) {
        const std::int64_t le2 = 2 * le;
        const double angle = -two_pi / static_cast<double>(le2);
        const double c = test::ReferenceCosine(angle);
        const double d = test::ReferenceSine(angle);
        for (std::int64_t i = 1; i <= n_fft; i += le2)
            PlainButterfly(re, im, i, i + le, re(i + le), im(i + le));
        double wr = c;
        double wi = d;
        for (std::int64_t j = 2; j <= le; ++j) {
            for (std::int64_t i = j; i <= n_fft; i += le2) {
                const std::int64_t ip = i + le;
                const double tr = wr * re(ip) - wi * im(ip);
                const double ti = wr * im(ip) + wi * re(ip);
                PlainButterfly(re, im, i, ip, tr, ti);
            }
            const double old_wr = wr;
            wr = old_wr * c - wi * d;
            wi = old_wr * d + c * wi;
        }
        le = le2;
    }
}

/// The transform step by step on checked arrays: error 9 where an index leaves them.
struct PlainTransform {
    Array<double> re;
    Array<double> im;

    PlainTransform(Array<double> x_re, Array<double> x_im, std::int64_t n_fft)
        : re(n_fft), im(n_fft)
    {
        x_re.ReDimPreserve(n_fft);
        x_im.ReDimPreserve(n_fft);
        PlainCopy(x_re, n_fft, re);
        PlainCopy(x_im, n_fft, im);
        PlainStages(re, im, n_fft);
    }
};

/// A row of noise.
Array<double> NoiseRow(std::int32_t length, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> value(-1.0, 1.0);
    Array<double> row(length);
    for (double& x : row.Span())
        x = value(generator);
    return row;
}

Ref<clsMatrix> AsMatrix(const Array<double>& row)
{
    const Ref<clsMatrix> m = MakeRef<clsMatrix>();
    m->SetRealAll(row);
    return m;
}

Ref<clsComplexMatrix> AsMatrix(const Array<double>& re, const Array<double>& im)
{
    const Ref<clsComplexMatrix> m = MakeRef<clsComplexMatrix>();
    m->SetComplexAll(re, im);
    return m;
}

TEST(Fftm, OfAnImpulseIsOneEverywhere)
{
    const Variant transform = RealMatrix({{1, 0, 0, 0}})->fftm(4);
    EXPECT_EQ(ShapeOf(*transform.As<Ref<clsComplexMatrix>>()), Sized(1, 4));
    EXPECT_EQ(Real(transform), (std::vector<double>{1, 1, 1, 1}));
    EXPECT_EQ(Image(transform), (std::vector<double>{0, 0, 0, 0}));
}

TEST(Fftm, OfNothingButZerosIsARealRow)
{
    for (const std::int32_t n_fft : {1, 3, 4, 7, 1000}) {
        const std::vector<double> zeros(static_cast<std::size_t>(n_fft));
        for (const Variant& result :
             {RealMatrix({{0, 0, 0}})->fftm(n_fft), RealMatrix({{0}, {-0.0}})->ifftm(n_fft),
              ComplexMatrix({{0, 0}})->fftm(n_fft), ComplexMatrix({{0}})->ifftm(n_fft)}) {
            EXPECT_EQ(ShapeOf(*result.As<Ref<clsMatrix>>()), Sized(1, n_fft));
            EXPECT_EQ(Values(*result.As<Ref<clsMatrix>>()), zeros);
        }
    }
}

TEST(Fftm, FollowsThePlainStepsToTheLastBit)
{
    for (std::int32_t n_fft = 1; n_fft <= 4096; n_fft *= 2)
        for (const std::int32_t length : {n_fft, n_fft / 2 + 1, n_fft + 3}) {
            SCOPED_TRACE(testing::Message() << length << " samples, n_fft " << n_fft);
            const Array<double> x = NoiseRow(length, static_cast<std::uint32_t>(n_fft));
            const PlainTransform plain(x, Array<double>(length), n_fft);
            const Variant forward = AsMatrix(x)->fftm(n_fft);
            EXPECT_EQ(Bits(Real(forward)), Bits(Elements(plain.re)));
            EXPECT_EQ(Bits(Image(forward)), Bits(Elements(plain.im)));
        }
}

TEST(Fftm, OfComplexElementsFollowsThePlainStepsToTheLastBit)
{
    for (std::int32_t n_fft = 1; n_fft <= 4096; n_fft *= 2)
        for (const std::int32_t length : {n_fft, n_fft / 2 + 1, n_fft + 3}) {
            SCOPED_TRACE(testing::Message() << length << " samples, n_fft " << n_fft);
            const Array<double> re = NoiseRow(length, static_cast<std::uint32_t>(n_fft));
            const Array<double> im = NoiseRow(length, static_cast<std::uint32_t>(length) + 7777);
            const PlainTransform plain(re, im, n_fft);
            const Variant forward = AsMatrix(re, im)->fftm(n_fft);
            EXPECT_EQ(Bits(Real(forward)), Bits(Elements(plain.re)));
            EXPECT_EQ(Bits(Image(forward)), Bits(Elements(plain.im)));
        }
}

TEST(Fftm, KeepsTheSignsOfZerosOfThePlainSteps)
{
    Array<double> re = NoiseRow(64, 5);
    Array<double> im(64);
    for (std::int64_t k = 1; k <= 64; ++k) {
        if (k % 3 != 0) re(k) = k % 2 == 0 ? 0.0 : -0.0;
        im(k) = k % 5 < 3 ? 0.0 : -0.0;
    }
    const PlainTransform plain(re, im, 64);
    const Variant forward = AsMatrix(re, im)->fftm(64);
    EXPECT_EQ(Bits(Real(forward)), Bits(Elements(plain.re)));
    EXPECT_EQ(Bits(Image(forward)), Bits(Elements(plain.im)));
}

TEST(Fftm, HasTheSameBitsInEveryVectorWidth)
{
    for (std::int32_t size = 1; size <= 1024; size *= 2) {
        const Array<double> x_re = NoiseRow(size, 11);
        const Array<double> x_im = NoiseRow(size, 12);
        const PlainTransform plain(x_re, x_im, size);
        for (const VectorWidth width : VectorWidths()) {
            Array<double> re(size);
            Array<double> im(size);
            Fourier(x_re.Span(), x_im.Span(), re.Span(), im.Span(), width);
            EXPECT_EQ(Bits(Elements(re)), Bits(Elements(plain.re))) << size;
            EXPECT_EQ(Bits(Elements(im)), Bits(Elements(plain.im))) << size;
        }
    }
}

TEST(Fftm, IsTheDiscreteFourierTransform)
{
    for (const std::int32_t n : {1, 2, 4, 8, 32, 256, 1024}) {
        const std::vector<Complex> x = Values(*AsMatrix(NoiseRow(n, 1), NoiseRow(n, 2)));
        double total = 0.0;
        for (const Complex& z : x)
            total += std::abs(z);
        // Each factor may be an epsilon or two further off than the one before it.
        const double bound = 4.0 * kEpsilon * n * total;
        const Variant transform = AsMatrix(NoiseRow(n, 1), NoiseRow(n, 2))->fftm(n);
        const auto result = Values(*transform.As<Ref<clsComplexMatrix>>());
        for (std::int64_t k = 0; k < n; ++k) {
            Complex sum;
            for (std::int64_t m = 0; m < n; ++m)
                sum +=
                    x[static_cast<std::size_t>(m)] *
                    std::polar(1.0, -2.0 * std::numbers::pi * static_cast<double>(k * m % n) / n);
            EXPECT_LE(std::abs(result[static_cast<std::size_t>(k)] - sum), bound)
                << k << " of " << n;
        }
    }
}

TEST(Fftm, CutsAndPads)
{
    const Ref<clsMatrix> x = RealMatrix({{1, 2, 3, 4, 5}});
    EXPECT_EQ(Real(x->fftm(2)), (std::vector<double>{3, -1}));
    EXPECT_EQ(Real(x->fftm(1)), std::vector<double>{1});
    // 1 + 3 + 5 and 2 + 4 are the sums of the even and odd places.
    EXPECT_EQ(Real(x->fftm(8))[0], 15.0);
    EXPECT_EQ(Real(x->fftm(8))[4], 3.0);
    EXPECT_EQ(Values(*x), (std::vector<double>{1, 2, 3, 4, 5}));
}

TEST(Fftm, LooksForTheFirstNonZeroBeforeItCuts)
{
    const Variant transform = RealMatrix({{0, 0, 5}})->fftm(2);
    EXPECT_EQ(Real(transform), (std::vector<double>{0, 0}));
    EXPECT_EQ(Image(transform), (std::vector<double>{0, 0}));
}

TEST(Fftm, TakesAColumnAsARow)
{
    const Variant of_column = RealMatrix({{1}, {-2}, {4}, {7}})->fftm(4);
    EXPECT_EQ(ShapeOf(*of_column.As<Ref<clsComplexMatrix>>()), Sized(1, 4));
    EXPECT_EQ(Real(of_column), Real(RealMatrix({{1, -2, 4, 7}})->fftm(4)));
    EXPECT_EQ(Image(of_column), Image(RealMatrix({{1, -2, 4, 7}})->fftm(4)));
    const Variant complex = ComplexMatrix({{{1, 2}}, {{3, -4}}})->fftm(2);
    EXPECT_EQ(Values(*complex.As<Ref<clsComplexMatrix>>()),
              (std::vector<Complex>{{4, -2}, {-2, 6}}));
}

TEST(Fftm, OfOnePartThatIsZeroIsComplex)
{
    EXPECT_EQ(Image(ComplexMatrix({{{0, 1}, {0, 2}}})->fftm(2)), (std::vector<double>{3, -1}));
    EXPECT_EQ(Real(ComplexMatrix({{1, 2}})->fftm(2)), (std::vector<double>{3, -1}));
}

TEST(Ifftm, IsTheForwardTransformDividedByItsLength)
{
    const Ref<clsMatrix> x = AsMatrix(NoiseRow(64, 3));
    const Variant forward = x->fftm(64);
    const Variant back = x->ifftm(64);
    for (std::size_t k = 0; k < 64; ++k) {
        EXPECT_EQ(Real(back)[k], Real(forward)[k] / 64.0);
        EXPECT_EQ(Image(back)[k], Image(forward)[k] / 64.0);
    }
}

TEST(Ifftm, DoesNotUndoFftm)
{
    // The spectrum of 1, 2, 3, 4 is 10, -2+2i, -2, -2-2i; its real part alone goes back.
    const Ref<clsComplexMatrix> spectrum =
        RealMatrix({{1, 2, 3, 4}})->fftm(4).As<Ref<clsComplexMatrix>>();
    const Variant back = spectrum->ifftm(4);
    EXPECT_EQ(Real(back), (std::vector<double>{1, 3, 3, 3}));
    for (const double im : Image(back))
        EXPECT_NEAR(im, 0.0, kEpsilon);
}

TEST(Ifftm, IgnoresTheImaginaryPart)
{
    const Variant of_real = RealMatrix({{1, 5, -2, 3}})->ifftm(4);
    const Variant of_complex = ComplexMatrix({{{1, 9}, {5, 8}, {-2, 7}, {3, 6}}})->ifftm(4);
    EXPECT_EQ(Real(of_complex), Real(of_real));
    EXPECT_EQ(Image(of_complex), Image(of_real));
    const Variant of_imaginary = ComplexMatrix({{{0, 1}, {0, 2}}})->ifftm(4);
    EXPECT_EQ(Values(*of_imaginary.As<Ref<clsMatrix>>()), (std::vector<double>{0, 0, 0, 0}));
}

TEST(Fftm, OfAMatrixOfObjectsIsEmpty)
{
    EXPECT_TRUE(ObjectMatrix({{1, 2}})->fftm(2).IsEmpty());
    EXPECT_TRUE(ObjectMatrix({{1, 2}})->ifftm(2).IsEmpty());
}

TEST(Fftm, NeedsAPowerOfTwo)
{
    // Of every other length the plain steps leave the arrays, or never end.
    const Array<double> x = NoiseRow(10, 9);
    const Ref<clsMatrix> m = AsMatrix(x);
    for (std::int32_t n_fft = 1; n_fft <= 600; ++n_fft) {
        int plain = 0;
        try {
            plain = Raised([&] { PlainTransform(x, Array<double>(10), n_fft); });
        } catch (const Endless&) {
            plain = 9;
        }
        EXPECT_EQ(plain, std::has_single_bit(static_cast<unsigned>(n_fft)) ? 0 : 9) << n_fft;
        EXPECT_EQ(Raised([&] { m->fftm(n_fft); }), plain) << n_fft;
        EXPECT_EQ(Raised([&] { m->ifftm(n_fft); }), plain) << n_fft;
    }
}

TEST(Fftm, StopsAtALengthBelowOne)
{
    for (const std::int32_t n_fft : {0, -1, -4, kLeast32}) {
        EXPECT_EQ(Raised([&] { RealMatrix({{1, 2}})->fftm(n_fft); }), 9);
        EXPECT_EQ(Raised([&] { RealMatrix({{0, 0}})->ifftm(n_fft); }), 9);
        EXPECT_EQ(Raised([&] { ComplexMatrix({{1, 2}})->fftm(n_fft); }), 9);
    }
}

TEST(Fftm, StopsAtWhatIsNoVector)
{
    MessageRecorder recorder;
    for (const double x : {0.0, 1.0}) {
        EXPECT_EQ(Raised([&] { RealMatrix({{x, 0}, {0, 0}})->fftm(4); }), 9);
        EXPECT_EQ(Raised([&] { RealMatrix({{x, 0}, {0, 0}})->ifftm(4); }), 9);
        EXPECT_EQ(Raised([&] { ComplexMatrix({{x, 0}, {0, 0}})->fftm(4); }), 9);
        EXPECT_EQ(Raised([&] { ComplexMatrix({{x, 0}, {0, 0}})->ifftm(4); }), 9);
    }
    EXPECT_EQ(Raised([] { clsMatrix().fftm(4); }), 9);
    EXPECT_EQ(Raised([] { clsComplexMatrix().fftm(4); }), 9);
    const Ref<clsMatrix> belied = RealMatrix({{1, 2, 3}});
    belied->size2 = 5;
    EXPECT_EQ(Raised([&] { belied->fftm(4); }), 9);
    EXPECT_TRUE(recorder.shown.empty());
}

TEST(Fftm, RaisesError6WhereFiniteElementsOverflow)
{
    EXPECT_EQ(Raised([] { RealMatrix({{1e308, 1e308}})->fftm(2); }), 6);
    EXPECT_EQ(Raised([] { RealMatrix({{1e308, 1e308}})->ifftm(2); }), 6);
    EXPECT_EQ(Raised([] { ComplexMatrix({{{0, 1e308}, {0, 1e308}}})->fftm(2); }), 6);
    // What is cut off has no part in it.
    EXPECT_EQ(Raised([] { RealMatrix({{1e308, 1e308, kInfinity}})->fftm(2); }), 6);
    EXPECT_EQ(Real(RealMatrix({{1, 2, kInfinity}})->fftm(2)), (std::vector<double>{3, -1}));
}

TEST(Fftm, LetsInfinitiesPass)
{
    const Variant transform = RealMatrix({{kInfinity, 1}})->fftm(2);
    EXPECT_EQ(Real(transform), (std::vector<double>{kInfinity, kInfinity}));
    EXPECT_TRUE(std::isnan(Real(RealMatrix({{NAN, 1}})->fftm(2))[1]));
}

} // namespace
} // namespace lumora
