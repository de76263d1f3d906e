#include "numeric/AllZero.h"
#include "numeric/ElementKinds.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsString.h"
#include "numeric/shaping/CellFormat.h"
#include "numeric/shaping/ShapedStores.h"

#include <algorithm>

// The cells of a matrix as texts of one width; a matrix of nothing but zeros is " 0" all over.

namespace lumora {

namespace {

constexpr const char* kZeroCell = " 0";

/// A matrix of texts of which the k-th in column-major order is `cell(k)`.
template <class Cell> Ref<clsString> Cells(Sizes sizes, Cell cell)
{
    Array<std::string> texts = UnwrittenStore<std::string>(sizes);
    std::size_t k = 0;
    for (std::string& text : texts.Span())
        text = cell(k++);
    return NewMatrix<clsString>(std::move(texts));
}

Ref<clsString> RealCells(Sizes sizes, std::span<const double> values)
{
    if (AllZero(values)) return Cells(sizes, [](std::size_t) { return kZeroCell; });
    const CellDigits digits = DigitsFor({values});
    return Cells(sizes, [&](std::size_t k) { return FormatRealCell(values[k], digits); });
}

Ref<clsString> ComplexCells(Sizes sizes, std::span<const double> re, std::span<const double> im)
{
    if (AllZero(re) && AllZero(im)) return Cells(sizes, [](std::size_t) { return kZeroCell; });
    const CellDigits digits = DigitsFor({re, im});
    return Cells(sizes, [&](std::size_t k) { return FormatComplexCell(re[k], im[k], digits); });
}

} // namespace

Ref<clsString> clsMatrix::MatrixToString(const Variant&) const
{
    return RealCells(SizesOf(*this), SheetOf(*this).values);
}

Ref<clsString> clsLong::MatrixToString(const Variant&) const
{
    SheetOf(*this);
    return RealCells(SizesOf(*this), Widened(elements_).Span());
}

Ref<clsString> clsComplexMatrix::MatrixToString(const Variant&) const
{
    const ComplexSheet parts = SheetOf(*this);
    return ComplexCells(SizesOf(*this), parts.re, parts.im);
}

Ref<clsString> clsComplex::MatrixToString(const Variant&) const
{
    return ComplexCells({1, 1}, {&Real, 1}, {&Image, 1});
}

} // namespace lumora
