#include "numeric/Draft.h"
#include "numeric/Finite.h"
#include "numeric/clsMatrix.h"
#include "numeric/order/LineFold.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <numeric>
#include <optional>
#include <string>
#include <utility>

// Sum, Reverse, Cumsum and FillObject of clsMatrix.

namespace lumora {

namespace {

/// The one start that leaves every first element as it is, zeros of either sign included.
constexpr double kNoSum = -0.0;

/// Error 6 if the running sum of a line stops being finite at a finite element.
void RefuseOverflow(const Sheet<double>& sheet, Lines lines, std::size_t line)
{
    const LineLayout layout = LayoutOf(lines, {sheet.rows, sheet.columns});
    double sum = kNoSum;
    for (std::size_t k = 0; k < layout.length; ++k) {
        const double x = sheet[layout.At(line, k)];
        sum += x;
        if (Finite(sum)) continue;
        if (Finite(x)) Raise(ErrorNumber::Overflow);
        return;
    }
}

/// The running sum of a line, and where its next value goes.
struct Running {
    double sum;
    double* next;
};

/// A matrix that is done, under its name.
Variant Named(const Ref<clsMatrix>& m, const std::string& name)
{
    m->Name = name;
    return m;
}

Variant Summed(const Sheet<double>& sheet, Lines lines, const std::string& name)
{
    const auto sums = FoldLines<double>(
        lines, sheet, [](std::size_t) { return kNoSum; },
        [](double& sum, double x, std::size_t) { sum += x; });
    for (std::size_t line = 0; line < sums.size(); ++line)
        if (!Finite(sums[line])) RefuseOverflow(sheet, lines, line);
    if (sums.size() == 1) return sums.front();
    return Named(OneOfEachLine<clsMatrix>(lines, sums, std::identity()), name);
}

Variant RunningSums(const Sheet<double>& sheet, Lines lines, const std::string& name)
{
    const LineLayout layout = LayoutOf(lines, {sheet.rows, sheet.columns});
    Draft<clsMatrix> result({sheet.rows, sheet.columns});
    double* const out = result.Elements().data();
    const auto ends = FoldLines<Running>(
        lines, sheet,
        [&](std::size_t line) {
            return Running{kNoSum, out + layout.At(line, 0)};
        },
        [&](Running& running, double x, std::size_t) {
            running.sum += x;
            *running.next = running.sum;
            running.next += layout.next_element;
        });
    for (std::size_t line = 0; line < ends.size(); ++line)
        if (!Finite(ends[line].sum)) RefuseOverflow(sheet, lines, line);
    return Named(result.Take(), name);
}

Variant Reversed(const Sheet<double>& sheet, Lines lines, const std::string& name)
{
    Draft<clsMatrix> result({sheet.rows, sheet.columns});
    // Columns lie one after the other, and so do the elements of each.
    const auto rows = static_cast<std::ptrdiff_t>(sheet.rows);
    const auto from = sheet.values.begin();
    const auto to = result.Elements().begin();
    for (std::ptrdiff_t j = 0; j < sheet.columns; ++j) {
        const auto column = from + j * rows;
        if (lines == Lines::Columns)
            std::reverse_copy(column, column + rows, to + j * rows);
        else
            std::copy_n(column, rows, to + (sheet.columns - 1 - j) * rows);
    }
    return Named(result.Take(), name);
}

/// `operation` along the lines that are asked for; empty for another dimention.
template <class Operation>
Variant Along(const clsMatrix& m, const Variant& dimention, const std::string& name,
              Operation operation)
{
    const Sheet<double> sheet = SheetOf(m);
    const std::optional<Lines> lines = LinesAlong(dimention, sheet.rows);
    if (!lines) return {};
    if (sheet.Size() == 0) Raise(ErrorNumber::Subscript);
    return operation(sheet, *lines, name);
}

} // namespace

// clang-format off
Variant clsMatrix::Sum    (const Variant& dim, const std::string& s) const { return Along(*this, dim, s, Summed); }
Variant clsMatrix::Reverse(const Variant& dim, const std::string& s) const { return Along(*this, dim, s, Reversed); }
Variant clsMatrix::Cumsum (const Variant& dim, const std::string& s) const { return Along(*this, dim, s, RunningSums); }
// clang-format on

void clsMatrix::FillObject(std::int32_t length1)
{
    Array<double> numbers(length1);
    const auto out = numbers.Span();
    std::iota(out.begin(), out.end(), 1.0);
    Adopt(*this, elements_, std::move(numbers), Name);
}

} // namespace lumora
