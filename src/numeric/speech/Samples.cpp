#include "numeric/speech/Samples.h"

#include "base/Numbers.h"
#include "numeric/Computed.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"

#include <algorithm>
#include <cstddef>

namespace lumora {

namespace {

/// `count` samples from number `first` on. Error 9 outside the vector.
std::span<const double> Stretch(std::span<const double> samples, std::int32_t first,
                                std::int32_t count)
{
    const std::int64_t size = CLng(samples.size());
    if (first < 1 || std::int64_t{first} - 1 + count > size) Raise(ErrorNumber::Subscript);
    return samples.subspan(static_cast<std::size_t>(first - 1), static_cast<std::size_t>(count));
}

/// Of no samples it is zero. Error 11 for a count of 0.
double Average(std::span<const double> samples, std::int32_t count)
{
    double sum = 0.0;
    for (const double x : Stretch(samples, 1, std::max(count, 0)))
        sum = Computed(sum + x, sum, x);
    return Divide(sum, count);
}

} // namespace

std::span<const double> SamplesOf(const clsMatrix& vector)
{
    const Sheet<double> sheet = SheetOf(vector);
    if (sheet.rows != 1 && sheet.columns != 1) Raise(ErrorNumber::Subscript);
    return sheet.values;
}

double clsMatrix::ScallProd(std::int32_t IndexFirst, std::int32_t IndexSecond,
                            const Variant& length1) const
{
    const Sheet<double> sheet = SheetOf(*this);
    if (sheet.rows != 1) return 0.0;
    const std::int32_t count = CLng(length1.Number());
    if (count < 1) return 0.0;
    if (sheet.IsScalar()) Raise(ErrorNumber::Subscript);
    const std::span<const double> x = Stretch(sheet.values, IndexFirst, count);
    const std::span<const double> y = Stretch(sheet.values, IndexSecond, count);
    double sum = 0.0;
    for (std::size_t k = 0; k < x.size(); ++k)
        sum = Computed(sum + x[k] * y[k], sum, x[k], y[k]);
    return sum;
}

Ref<clsMatrix> clsMatrix::SoundMinusAverage1(const Variant& Num) const
{
    const std::span<const double> x = SamplesOf(*this);
    const double average = Average(x, CLng(Num.Number()));
    Array<double> result = ZeroStore<double>(SizesOf(*this));
    // A row loses its average everywhere, a column in its first sample alone.
    for (std::size_t k = 0; k < static_cast<std::size_t>(size2); ++k)
        result.Span()[k] = Computed(x[k] - average, x[k], average);
    return NewMatrix<clsMatrix>(std::move(result));
}

} // namespace lumora
