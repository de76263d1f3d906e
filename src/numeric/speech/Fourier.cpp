#include "numeric/speech/Fourier.h"

#include "base/Cosine.h"
#include "base/Numbers.h"
#include "base/PerWidth.h"
#include "base/Vectors.h"
#include "numeric/AllZero.h"
#include "numeric/Draft.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <utility>

namespace lumora {

namespace {

/// Both parts of a row of complex numbers.
struct Parts {
    double* re;
    double* im;

    Parts From(std::size_t k) const { return {re + k, im + k}; }
};

template <class V> [[gnu::always_inline]] inline void Store(double* to, V values)
{
    std::memcpy(to, &values, sizeof values);
}

/// As many butterflies as V has lanes; low and high are half a block apart. The first of a block
/// has no factor: a product with one would still change the sign of some zeros.
template <class V, bool kFirst>
[[gnu::always_inline]] inline void Butterfly(Parts low, Parts high, Parts factor)
{
    const V re = Load<V>(high.re);
    const V im = Load<V>(high.im);
    const V wr = Load<V>(factor.re);
    const V wi = Load<V>(factor.im);
    V tr = wr * re - wi * im;
    V ti = wr * im + wi * re;
    if constexpr (kFirst) {
        tr[0] = re[0];
        ti[0] = im[0];
    }
    const V low_re = Load<V>(low.re);
    const V low_im = Load<V>(low.im);
    Store(high.re, low_re - tr);
    Store(high.im, low_im - ti);
    Store(low.re, low_re + tr);
    Store(low.im, low_im + ti);
}

/// One stage: blocks of 2*half elements, half of them at least the lanes of V.
struct Stage {
    template <class V>
    [[gnu::always_inline]] static void Run(Parts x, std::size_t size, std::size_t half,
                                           Parts factors)
    {
        constexpr std::size_t kLanes = sizeof(V) / sizeof(double);
        for (std::size_t block = 0; block < size; block += 2 * half) {
            const Parts low = x.From(block);
            const Parts high = low.From(half);
            Butterfly<V, true>(low, high, factors);
            for (std::size_t j = kLanes; j < half; j += kLanes)
                Butterfly<V, false>(low.From(j), high.From(j), factors.From(j));
        }
    }
};

/// Early stages are shorter than a wide vector.
VectorWidth WidthFor(std::size_t half, VectorWidth most)
{
    const VectorWidth fits = half < 4   ? VectorWidth::Baseline
                             : half < 8 ? VectorWidth::Avx2
                                        : VectorWidth::Avx512;
    return std::min(fits, most);
}

constexpr double kTurn = 6.283185307179586;

/// The factors of one stage, each from the one before it.
class Chain {
public:
    Chain(Parts factors, std::size_t half) : at_(factors.From(half))
    {
        const double angle = kTurn / static_cast<double>(2 * half);
        wr_ = c_ = Cosine(angle);
        wi_ = d_ = -Sine(angle); // the angle is negative, whichever way the transform goes
        *at_.re = 1.0;
        *at_.im = 0.0;
    }
    [[gnu::always_inline]] void Step()
    {
        at_ = at_.From(1);
        *at_.re = wr_;
        *at_.im = wi_;
        const double next = wr_ * c_ - wi_ * d_;
        wi_ = wr_ * d_ + c_ * wi_;
        wr_ = next;
    }

private:
    Parts at_;
    double c_;
    double d_;
    double wr_;
    double wi_;
};

/// The factors of the stages that follow the first, those of a stage from place `half` on. Each
/// waits for the one before it, so two stages go on side by side.
void Factors(Parts factors, std::size_t size)
{
    std::size_t half = size / 2;
    for (; half > 2; half /= 4) {
        Chain longer(factors, half);
        Chain shorter(factors, half / 2);
        for (std::size_t j = 1; j < half / 2; ++j) {
            longer.Step();
            shorter.Step();
        }
        for (std::size_t j = half / 2; j < half; ++j)
            longer.Step();
    }
    if (half == 2) Chain(factors, half).Step();
}

/// The bit-reversed copy of x, cut or padded with zeros, and the first stage on it: that has no
/// factors, and elements half a row apart come to be neighbours.
void FirstStage(std::span<const double> x, double* to, std::size_t size)
{
    if (x.empty()) return static_cast<void>(std::fill_n(to, size, 0.0));
    if (x.size() < size) {
        auto padded = ZeroStore<double>({1, CLng(size)});
        std::copy(x.begin(), x.end(), padded.Span().begin());
        return FirstStage(padded.Span(), to, size);
    }
    if (size == 1) *to = x[0];
    const std::size_t half = size / 2;
    std::size_t place = 0;
    for (std::size_t k = 0; k < half; ++k) {
        to[place] = x[k] + x[k + half];
        to[place + 1] = x[k] - x[k + half];
        // Counting up in reversed bits: the ones that a carry clears lead the number.
        place ^= size - (size >> (std::countr_zero(k + 1) + 1));
    }
}

bool FiniteUpTo(std::span<const double> x, std::size_t size)
{
    return AllFinite(x.first(std::min(x.size(), size)));
}

Ref<clsMatrix> PaddedZeros(std::span<const double> zeros, std::int32_t n_fft)
{
    Array<double> row(n_fft);
    const auto out = row.Span();
    std::copy_n(zeros.begin(), std::min(zeros.size(), out.size()), out.begin());
    return NewMatrix<clsMatrix>(std::move(row));
}

/// Whether a transform is divided by its length.
enum class Scale { None, ByLength };

/// What the members do: x may lack either part, which is zero then.
Variant Transformed(const ComplexSheet& x, std::int32_t n_fft, Scale scale)
{
    if (n_fft < 1 || x.Size() == 0 || (x.rows != 1 && x.columns != 1))
        Raise(ErrorNumber::Subscript);
    if (AllZero(x.re) && AllZero(x.im)) return PaddedZeros(x.re, n_fft);
    const auto size = static_cast<std::size_t>(n_fft);
    if (!std::has_single_bit(size)) Raise(ErrorNumber::Subscript);

    Draft<clsComplexMatrix> result({1, n_fft});
    const std::span<double> re = result.Real();
    const std::span<double> im = result.Image();
    Fourier(x.re, x.im, re, im, WidestVectors());
    if (scale == Scale::ByLength)
        for (const auto part : {re, im})
            for (double& value : part)
                value /= n_fft;
    if (!result.Finite() && FiniteUpTo(x.re, size) && FiniteUpTo(x.im, size))
        Raise(ErrorNumber::Overflow);
    return result.Take();
}

/// A matrix as such an x, without its imaginary part.
ComplexSheet RealOf(const clsMatrix& m)
{
    const Sheet<double> sheet = SheetOf(m);
    return {sheet.rows, sheet.columns, sheet.values, {}};
}

ComplexSheet RealOf(const clsComplexMatrix& m)
{
    const ComplexSheet sheet = SheetOf(m);
    return {sheet.rows, sheet.columns, sheet.re, {}};
}

} // namespace

void Fourier(std::span<const double> x_re, std::span<const double> x_im, std::span<double> re,
             std::span<double> im, VectorWidth width)
{
    const std::size_t size = re.size();
    FirstStage(x_re, re.data(), size);
    FirstStage(x_im, im.data(), size);
    auto memory = UnwrittenStore<double>({CLng(size), 2});
    const Parts factors{memory.Span().data(), memory.Span().data() + size};
    Factors(factors, size);
    for (std::size_t half = 2; half < size; half *= 2)
        PerWidth<Stage>::For(WidthFor(half, width))({re.data(), im.data()}, size, half,
                                                    factors.From(half));
}

// clang-format off
Variant clsMatrix::fftm         (std::int32_t n) const { return Transformed(RealOf(*this), n, Scale::None); }
Variant clsMatrix::ifftm        (std::int32_t n) const { return Transformed(RealOf(*this), n, Scale::ByLength); }
Variant clsComplexMatrix::fftm  (std::int32_t n) const { return Transformed(SheetOf(*this), n, Scale::None); }
Variant clsComplexMatrix::ifftm (std::int32_t n) const { return Transformed(RealOf(*this), n, Scale::ByLength); }
Variant clsMatrixComplex::fftm  (std::int32_t) const   { return {}; }
Variant clsMatrixComplex::ifftm (std::int32_t) const   { return {}; }
// clang-format on

} // namespace lumora
