#include "base/Numbers.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace lumora {

namespace {

/// A sample that a table can show.
struct Maximum {
    double value;
    std::int32_t place; ///< from 1
};

/// The first samples of all hills that fall off on both sides, in their order.
std::vector<Maximum> MaximaOf(const clsMatrix& m, const Variant& level)
{
    const Sheet<double> x = SheetOf(m);
    const double least =
        level.IsEmpty() ? -std::numeric_limits<double>::infinity() : level.Number();
    std::vector<Maximum> maxima;
    if (x.rows != 1 && x.columns != 1) return maxima;
    std::size_t j = 1;
    while (j + 1 < x.Size()) {
        std::size_t k = j + 1;
        if (x[j] > x[j - 1]) {
            while (x[k] == x[j] && k + 1 < x.Size())
                ++k;
            if (x[j] > x[k] && x[j] >= least) maxima.push_back({x[j], CLng(j + 1)});
        }
        j = k;
    }
    return maxima;
}

/// One row for each; a row of zeros for none.
Ref<clsMatrix> TableOf(std::span<const Maximum> maxima)
{
    const std::size_t rows = std::max<std::size_t>(maxima.size(), 1);
    Array<double> table = ZeroStore<double>({CLng(rows), 2});
    for (std::size_t k = 0; k < maxima.size(); ++k) {
        table.Span()[k] = maxima[k].value;
        table.Span()[rows + k] = maxima[k].place;
    }
    return NewMatrix<clsMatrix>(std::move(table));
}

bool StandsBefore(const Maximum& a, const Maximum& b)
{
    return a.value > b.value || (a.value == b.value && a.place < b.place);
}

} // namespace

Ref<clsLong> clsMatrix::FoundIndexesExstremumInVector_Max(const Variant& Level) const
{
    const std::vector<Maximum> maxima = MaximaOf(*this, Level);
    Array<std::int32_t> places(std::max<std::int64_t>(CLng(maxima.size()), 1));
    std::transform(maxima.begin(), maxima.end(), places.Span().begin(),
                   [](const Maximum& maximum) { return maximum.place; });
    return NewMatrix<clsLong>(std::move(places));
}

Ref<clsMatrix> clsMatrix::ExstremumValueAndIndexMax(const Variant& Level) const
{
    return TableOf(MaximaOf(*this, Level));
}

Ref<clsMatrix> clsMatrix::SortExstremumMax(std::int32_t& Quantity, const Variant& Level) const
{
    Quantity = std::max(Quantity, 1);
    std::vector<Maximum> maxima = MaximaOf(*this, Level);
    const std::size_t shown = std::min(static_cast<std::size_t>(Quantity), maxima.size());
    // No two stand in the same place, so the order is one whatever the method.
    std::partial_sort(maxima.begin(), maxima.begin() + static_cast<std::ptrdiff_t>(shown),
                      maxima.end(), StandsBefore);
    return TableOf(std::span(maxima).first(shown));
}

} // namespace lumora
