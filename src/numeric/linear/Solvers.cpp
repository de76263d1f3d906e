#include "base/OrOutOfMemory.h"
#include "numeric/Draft.h"
#include "numeric/NumericMessages.h"
#include "numeric/clsMatrix.h"
#include "numeric/linear/Elimination.h"

#include <cstddef>
#include <utility>

// Linear systems on clsMatrix.

namespace lumora {

namespace {

/// Error 9 without elements; false after `message` for a matrix that is not square.
bool IsSquare(const Sheet<double>& sheet, const char* message)
{
    if (sheet.Size() == 0) Raise(ErrorNumber::Subscript);
    if (sheet.rows == sheet.columns) return true;
    ShowPlainMessage(message);
    return false;
}

/// What is left above the diagonal, from the last row to the first; x stands in the right-hand
/// column in the end.
void SubstituteBack(Elimination& work, std::size_t n)
{
    for (std::size_t j = n; j-- > 0;) {
        work.At(j, n) /= work.At(j, j);
        for (std::size_t i = 0; i < j; ++i)
            work.At(i, n) -= work.At(i, j) * work.At(j, n);
    }
}

} // namespace

Ref<clsMatrix> clsMatrix::SolutionOfSistem(const clsMatrix& a) const
{
    const Sheet<double> square = SheetOf(*this);
    const Sheet<double> right = SheetOf(a);
    if (!IsSquare(square, kSolutionSquare)) return {};
    if (right.rows != square.rows || right.columns != 1) Raise(ErrorNumber::Subscript);
    const std::size_t n = right.Size();
    Elimination work = OrOutOfMemory([&] { return Elimination(square, 1); });
    for (std::size_t i = 0; i < n; ++i)
        work.At(i, n) = right[i];
    if (!work.Run(Elimination::Reach::Below)) {
        ShowPlainMessage(kSingular);
        return {};
    }
    SubstituteBack(work, n);
    Draft<clsMatrix> x({right.rows, 1});
    const bool finite = x.Fill(0, n, [&](std::size_t i) { return work.At(i, n); });
    if (!finite && AllFinite(square.values) && AllFinite(right.values))
        Raise(ErrorNumber::Overflow);
    return x.Take();
}

Ref<clsMatrix> clsMatrix::Inv() const
{
    const Sheet<double> square = SheetOf(*this);
    if (!IsSquare(square, kInvSquare)) return {};
    const auto n = static_cast<std::size_t>(square.rows);
    Elimination work = OrOutOfMemory([&] { return Elimination(square, n); });
    for (std::size_t i = 0; i < n; ++i)
        work.At(i, n + i) = 1.0;
    if (!work.Run(Elimination::Reach::Others)) {
        ShowPlainMessage(kSingular);
        return {};
    }
    Draft<clsMatrix> inverse({square.rows, square.rows});
    const auto element = [&](std::size_t k) {
        return work.At(k % n, n + k / n) / work.At(k % n, k % n);
    };
    if (!inverse.Fill(0, n * n, element) && AllFinite(square.values)) Raise(ErrorNumber::Overflow);
    return inverse.Take();
}

Ref<clsMatrix> clsMatrix::LeastSqures(const clsMatrix& a) const
{
    if (size1 == 1 && size2 > 1) return Transpose()->LeastSqures(*a.Transpose());
    const Ref<clsMatrix> t = Transpose();
    const Ref<clsMatrix> b = t->MtimesR(*this);
    const Ref<clsMatrix> c = t->MtimesR(a);
    return c ? b->SolutionOfSistem(*c) : Ref<clsMatrix>();
}

} // namespace lumora
