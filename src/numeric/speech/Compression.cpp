#include "base/Numbers.h"
#include "numeric/Computed.h"
#include "numeric/Lines.h"
#include "numeric/NumericMessages.h"
#include "numeric/Sentinel.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsMatrix.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lumora {

namespace {

struct Messages {
    const char* zero;
    const char* small;
};
constexpr Messages kLinear = {kKoefZero, kKoefSmall};
constexpr Messages kWhole = {kKoefMatrixZero, kKoefMatrixSmall};

Ref<clsMatrix> Refused(const char* message)
{
    ShowPlainMessage(message);
    return ErrorSentinel();
}

/// A row along itself, anything else column by column. length(N) is the new length of a line of N;
/// sample(line, i) is its new sample i, from 1.
template <class Length, class Sample>
Ref<clsMatrix> Resampled(const clsMatrix& m, double koef, const Messages& messages, Length length,
                         Sample sample)
{
    const Sheet<double> sheet = SheetOf(m);
    if (koef == 0.0) return Refused(messages.zero);
    if (sheet.Size() == 0) Raise(ErrorNumber::Subscript);
    const bool row = sheet.rows == 1;
    const double wanted = length(row ? sheet.columns : sheet.rows);
    if (wanted < 1.0) return Refused(messages.small);
    const std::int32_t count = CLng(wanted);
    const Sizes sizes = row ? Sizes{1, count} : Sizes{count, sheet.columns};
    const LineLayout from = LayoutOf(row ? Lines::Rows : Lines::Columns, SizesOf(m));
    Array<double> result = UnwrittenStore<double>(sizes);
    auto out = result.Span().begin();
    for (std::size_t line = 0; line < from.count; ++line)
        for (std::int32_t i = 1; i <= count; ++i)
            *out++ = sample(sheet.values.subspan(line * from.length, from.length), i);
    return NewMatrix<clsMatrix>(std::move(result));
}

/// Sample i of a line whose neighbours stand `step` apart.
double Between(std::span<const double> x, std::int32_t i, double step)
{
    if (i == 1) return x[0];
    const double pos = (i - 1) * step + 1.0;
    const double p = Int(pos);
    const auto next = static_cast<std::size_t>(p);
    const double here = x[next - 1];
    if (next >= x.size()) return here;
    return Computed((x[next] - here) * (pos - p) + here, here, x[next]);
}

/// The nearest sample at or before position i*step of a longer line, at or after it of a shorter or
/// equal one. Error 9 where rounding puts it behind the last.
double Nearby(std::span<const double> x, std::int32_t i, double step, double koef)
{
    const double pos = i * step;
    const double index = koef < 1.0 ? Int(pos) : std::ceil(pos);
    if (index > static_cast<double>(x.size())) Raise(ErrorNumber::Subscript);
    return x[static_cast<std::size_t>(index) - 1];
}

template <class Length> Ref<clsMatrix> Linear(const clsMatrix& m, double koef, Length length)
{
    const double step = 1.0 / std::abs(koef);
    return Resampled(m, koef, kLinear, length, [step](std::span<const double> x, std::int32_t i) {
        return Between(x, i, step);
    });
}

} // namespace

Ref<clsMatrix> clsMatrix::Compression_Expansion(double koef) const
{
    return Linear(*this, koef, [koef](double n) { return Int(std::abs(koef) * (n - 1.0) + 1.0); });
}

Ref<clsMatrix> clsMatrix::Compression_ExpansionPrec(double koef) const
{
    return Linear(*this, koef, [koef](double n) { return Round(std::abs(koef) * n); });
}

Ref<clsMatrix> clsMatrix::Compression_Expansion_Matrix(double koef) const
{
    const double step = 1.0 / std::abs(koef);
    return Resampled(
        *this, koef, kWhole, [koef](double n) { return Int(n * koef); },
        [=](std::span<const double> x, std::int32_t i) { return Nearby(x, i, step, koef); });
}

} // namespace lumora
