#include "base/Numbers.h"
#include "numeric/Computed.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsMatrix.h"
#include "numeric/speech/Samples.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lumora {

namespace {

/// a(1)*x(n-1) + a(2)*x(n-2) + ..., summed in this order; `now` points to x(n).
double Predicted(std::span<const double> a, const double* now)
{
    double sum = 0.0;
    for (const double weight : a)
        sum += weight * *--now;
    return sum;
}

/// How a filter goes through a vector: frames of one length, of which the last one runs on to the
/// end.
struct Frames {
    std::size_t samples;
    std::size_t length;
    std::size_t count;

    std::size_t End(std::size_t t) const { return t + 1 == count ? samples : (t + 1) * length; }
};

/// Errors 11 for frames of no length and 5 for a negative one.
Frames FramesOf(std::span<const double> samples, std::int32_t length)
{
    if (length < 0) Raise(ErrorNumber::InvalidCall);
    const std::int64_t count = DivideWhole(CLng(samples.size()), length);
    return {samples.size(), static_cast<std::size_t>(length), static_cast<std::size_t>(count)};
}

/// A predictor that changes from frame to frame. `x` is what it predicts from: predictor(t) gives
/// the coefficients of frame t, from 0, and take(n, prediction) may still change x(n), on which
/// only later predictions depend. The last samples of `start` are those before the first. Error 9
/// for an order below 1, and if they, the vector, or a frame before the last are shorter than it.
template <class Predictor, class Take>
void Predict(const Frames& frames, std::int32_t order, const double* x,
             std::span<const double> start, Predictor predictor, Take take)
{
    if (frames.count == 0) return;
    if (order < 1) Raise(ErrorNumber::Subscript);
    const auto past = static_cast<std::size_t>(order);
    if (start.size() < past || frames.End(0) < past) Raise(ErrorNumber::Subscript);
    // The first samples once more, behind what stood before them.
    Array<double> first = ZeroStore<double>({1, CLng(2 * past)});
    const auto head = first.Span();
    std::copy(start.end() - order, start.end(), head.begin());

    std::size_t n = 0;
    for (std::size_t t = 0; t < frames.count; ++t) {
        const Ref<clsMatrix> coefficients = predictor(t);
        const std::span<const double> a = coefficients->Elements().Span();
        for (; n < std::min(past, frames.End(t)); ++n) {
            take(n, Predicted(a, &head[past + n]));
            head[past + n] = x[n];
        }
        for (; n < frames.End(t); ++n)
            take(n, Predicted(a, x + n));
    }
}

/// A filtered vector as a row. Error 6 if it is not finite although all it came from is.
template <class... Operands>
Ref<clsMatrix> Filtered(Array<double> result, const Operands&... operands)
{
    if (!AllFinite(result.Span()) && (AllFinite(operands) && ...)) Raise(ErrorNumber::Overflow);
    return NewMatrix<clsMatrix>(std::move(result));
}

/// The coefficients of frame t, from 0.
Ref<clsMatrix> ReflectionsOf(const clsMatrix& parcor, std::size_t t)
{
    const std::int32_t column = CLng(t + 1);
    return parcor.OutMatrix(1, column, parcor.size1, column);
}

/// Areas of the tubes that reflect so, the first being 1. Errors 11 where a tube would have no end,
/// 6 where it is too wide.
Ref<clsMatrix> AreasOf(std::span<const double> k)
{
    Array<double> areas(static_cast<std::int64_t>(k.size()) + 1);
    const auto area = areas.Span();
    area[0] = 1.0;
    for (std::size_t m = 0; m < k.size(); ++m)
        area[m + 1] = Computed(Divide((1.0 - k[m]) * area[m], 1.0 + k[m]), area[m], k[m]);
    return NewMatrix<clsMatrix>(std::move(areas));
}

/// `order` coefficients, with which those tubes reflect; the last are 0 where there are fewer.
Ref<clsMatrix> ReflectionsBetween(std::span<const double> area, std::int32_t order)
{
    Array<double> reflections(order);
    for (std::size_t m = 0; m + 1 < area.size(); ++m) {
        if (area[m] <= 0.0) continue;
        const double ratio = Computed(area[m + 1] / area[m], area[m], area[m + 1]);
        reflections.Span()[m] = Divide(1.0 - ratio, 1.0 + ratio);
    }
    return NewMatrix<clsMatrix>(std::move(reflections));
}

} // namespace

Ref<clsMatrix> clsMatrix::Pred_Lat() const
{
    const std::span<const double> k = SamplesOf(*this);
    Array<double> predictor = UnwrittenStore<double>({1, CLng(k.size())});
    Array<double> before = predictor;
    const auto a = predictor.Span();
    const auto shorter = before.Span();
    for (std::size_t m = 0; m < k.size(); ++m) {
        std::copy_n(a.begin(), m, shorter.begin());
        for (std::size_t i = 0; i < m; ++i)
            a[i] = shorter[i] - k[m] * shorter[m - 1 - i];
        a[m] = k[m];
    }
    return Filtered(std::move(predictor), k);
}

Ref<clsMatrix> clsMatrix::Parcor_Resid(const clsMatrix& parcor, const clsMatrix& start,
                                       std::int32_t frame) const
{
    const std::span<const double> x = SamplesOf(*this);
    const Sheet<double> table = SheetOf(parcor);
    const std::span<const double> before = SamplesOf(start);
    Array<double> error = ZeroStore<double>({1, CLng(x.size())});
    const auto e = error.Span();
    Predict(
        FramesOf(x, frame), table.rows, x.data(), before,
        [&](std::size_t t) { return ReflectionsOf(parcor, t)->Pred_Lat(); },
        [&](std::size_t n, double prediction) { e[n] = x[n] - prediction; });
    return Filtered(std::move(error), x, table.values, before);
}

Ref<clsMatrix> clsMatrix::Parcor_Direct(const clsMatrix& parcor, const clsMatrix& start,
                                        double tract, std::int32_t frame) const
{
    // A table with one frame in each row is told by the number of its rows.
    const bool by_rows = frame / 10.0 + 2.0 != parcor.size1;
    const Ref<clsMatrix> turned = by_rows ? parcor.Transpose() : Ref<clsMatrix>();
    const clsMatrix& table = by_rows ? *turned : parcor;
    const std::int32_t order = CLng(table.size1 * tract + 1.0);

    const std::span<const double> x = SamplesOf(*this);
    const std::span<const double> before = SamplesOf(start);
    Array<double> output = UnwrittenStore<double>({1, CLng(x.size())});
    const auto y = output.Span();
    std::copy(x.begin(), x.end(), y.begin());
    Predict(
        FramesOf(x, frame), order, y.data(), before,
        [&](std::size_t t) {
            const Ref<clsMatrix> k = ReflectionsOf(table, t);
            const Ref<clsMatrix> areas = AreasOf(k->Elements().Span());
            const Ref<clsMatrix> scaled = areas->Compression_Expansion(tract);
            return ReflectionsBetween(scaled->Elements().Span(), order)->Pred_Lat();
        },
        [&](std::size_t n, double prediction) { y[n] += prediction; });
    return Filtered(std::move(output), x, SheetOf(table).values, before);
}

} // namespace lumora
