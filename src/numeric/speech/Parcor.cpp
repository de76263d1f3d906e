#include "base/Numbers.h"
#include "numeric/Finite.h"
#include "numeric/NumericMessages.h"
#include "numeric/Stores.h"
#include "numeric/clsMatrix.h"
#include "numeric/speech/Samples.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lumora {

namespace {

constexpr std::int32_t kShortestSound = 10;

/// A frame with less energy has no reflections.
constexpr double kSilence = 1e-10;

/// The reflection coefficients of one frame after another, by the method of Burg: each is the one
/// that leaves least energy in both prediction errors behind it. Set up once for all frames.
class BurgLattice {
public:
    explicit BurgLattice(std::size_t window) : forward_(Long(window)), backward_(Long(window)) {}

    /// `frame` has the length of the window. Error 6 if a sum of finite samples overflows.
    void Analyse(std::span<const double> frame, std::span<double> k)
    {
        std::fill(k.begin(), k.end(), 0.0);
        if (k.size() >= frame.size()) return; // no sample has so many before it
        finite_ = AllFinite(frame);
        std::copy(frame.begin(), frame.end(), forward_.Span().begin());
        std::copy(frame.begin(), frame.end(), backward_.Span().begin());
        for (std::size_t m = 1; m <= k.size(); ++m) {
            // The backward errors stay where they are and the forward errors come to meet them:
            // sample n of the one stands beside sample n - 1 of the other, which is at n - m.
            const auto f = forward_.Span().subspan(m);
            const auto b = backward_.Span().first(f.size());
            k[m - 1] = Reflection(f, b, k.size() - m);
            Pass(f, b, k[m - 1]);
        }
    }

private:
    static std::int64_t Long(std::size_t window) { return static_cast<std::int64_t>(window); }

    /// Sums from `from` on: at every stage they begin with the sample after the last coefficient.
    double Reflection(std::span<const double> f, std::span<const double> b, std::size_t from) const
    {
        double product = 0.0;
        double forward = 0.0;
        double backward = 0.0;
        for (std::size_t n = from; n < f.size(); ++n) {
            product += f[n] * b[n];
            forward += f[n] * f[n];
            backward += b[n] * b[n];
        }
        const double energy = forward + backward;
        const double k = energy <= kSilence ? 0.0 : 2.0 * product / energy;
        if (finite_ && !(std::isfinite(energy) && std::isfinite(k))) Raise(ErrorNumber::Overflow);
        return k;
    }

    static void Pass(std::span<double> f, std::span<double> b, double k)
    {
        for (std::size_t n = 0; n < f.size(); ++n) {
            const double forward = f[n];
            f[n] = forward - k * b[n];
            b[n] = b[n] - k * forward;
        }
    }

    Array<double> forward_;
    Array<double> backward_;
    bool finite_ = true; ///< the frame at hand
};

Array<double> TableOfOne(std::span<const double> sound, std::int32_t order)
{
    Array<double> table = UnwrittenStore<double>({order, 1});
    BurgLattice(sound.size()).Analyse(sound, table.Span());
    return table;
}

/// Frames of `window` samples, a shift apart, over the sound with silence around it.
Array<double> TableOfFrames(std::span<const double> sound, std::int32_t order, std::int32_t window,
                            std::int32_t& shift)
{
    shift = std::min(shift, window);
    const double half = (static_cast<double>(window) - shift) / 2.0;
    // Deliberate: the silence before the sound is that of the shift before it is made even.
    const double before = Int(half);
    if (half != before) shift = CLng(std::int64_t{shift} - 1);
    const auto frames = CLng(std::ceil(Divide(static_cast<double>(sound.size()), shift)));
    Array<double> table = UnwrittenStore<double>({order, frames});

    Array<double> padded(std::int64_t{frames - 1} * shift + window);
    std::copy(sound.begin(), sound.end(),
              padded.Span().begin() + static_cast<std::ptrdiff_t>(before));
    const auto length = static_cast<std::size_t>(window);
    const auto rows = static_cast<std::size_t>(order);
    BurgLattice lattice(length);
    for (std::size_t t = 0; t < static_cast<std::size_t>(frames); ++t)
        lattice.Analyse(padded.Span().subspan(t * static_cast<std::size_t>(shift), length),
                        table.Span().subspan(t * rows, rows));
    return table;
}

/// What may be analysed as one frame without framing.
enum class LoneFrame { Row, RowOrColumn };

Variant ParcorTable(const clsMatrix& sound, std::int32_t Npred, std::int32_t& Window,
                    std::int32_t& Shift, LoneFrame lone)
{
    const bool row = sound.size1 == 1;
    const std::int32_t length = row ? sound.size2 : sound.size1;
    if (length < kShortestSound) {
        ShowPlainMessage(kSoundTooShort);
        return {};
    }
    if (Window == 0 || Window > length) Window = length;
    if (Shift == 0) Shift = CLng(Int(Window / 3.0));
    const std::span<const double> samples = SamplesOf(sound);
    if (Window < length) return NewMatrix<clsMatrix>(TableOfFrames(samples, Npred, Window, Shift));
    if (!row && lone == LoneFrame::Row) Raise(ErrorNumber::Subscript);
    return NewMatrix<clsMatrix>(TableOfOne(samples, Npred));
}

} // namespace

Variant clsMatrix::Parcor_Burg(std::int32_t Npred, std::int32_t& Window, std::int32_t& Shift) const
{
    return ParcorTable(*this, Npred, Window, Shift, LoneFrame::Row);
}

Variant clsMatrix::Parcor_Burg1(std::int32_t Npred, std::int32_t& Window, std::int32_t& Shift) const
{
    return ParcorTable(*this, Npred, Window, Shift, LoneFrame::RowOrColumn);
}

} // namespace lumora
