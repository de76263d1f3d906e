#include "numeric/clsMatrix.h"

#include "numeric/clsComplexMatrix.h"
#include "numeric/order/Extremes.h"
#include "numeric/order/PairScan.h"
#include "numeric/order/Pairwise.h"
#include "numeric/order/Quantifiers.h"

// Order statistics: result, member, what it does.

namespace lumora {

namespace {

/// Element k of a vector, from 0.
Found<double> FoundAt(const Sheet<double>& sheet, std::size_t k)
{
    if (sheet.rows == 1) return {sheet[k], 0, k};
    return {sheet[k], k, 0};
}

} // namespace

Ref<clsMatrix> clsMatrix::Minmax() const
{
    const Sheet<double> sheet = SheetOf(*this);
    if (sheet.Size() > 1 && (sheet.rows == 1 || sheet.columns == 1)) {
        const PairScan places = ScanInPairs(sheet.values, Smaller());
        return MinmaxRow<clsMatrix>(FoundAt(sheet, places.smallest),
                                    FoundAt(sheet, places.largest));
    }
    return MinmaxRow<clsMatrix>(FirstExtreme(sheet, Smaller()), FirstExtreme(sheet, Larger()));
}

Ref<clsMatrix> clsMatrix::MinmaxIndex() const
{
    return Minmax();
}

// clang-format off
double                clsMatrix::Min          ()                         const { return FirstExtreme(SheetOf(*this), Smaller()).value; }
double                clsMatrix::Max          ()                         const { return FirstExtreme(SheetOf(*this), Larger()).value; }
Ref<clsMatrix>        clsMatrix::MinDim       (const Variant& dimention) const { return ExtremesAlong(*this, dimention, Smaller()); }
Ref<clsMatrix>        clsMatrix::MaxDim       (const Variant& dimention) const { return ExtremesAlong(*this, dimention, Larger()); }
Ref<clsLong>          clsMatrix::MinIndex     (const Variant& dimention) const { return PlacesAlong(*this, dimention, Smaller()); }
Ref<clsLong>          clsMatrix::MaxIndex     (const Variant& dimention) const { return PlacesAlong(*this, dimention, Larger()); }

Ref<clsMatrix>        clsMatrix::MinRR        (const clsMatrix& a)       const { return Pairwise<clsMatrix>(SheetOf(*this), SheetOf(a), Smaller()); }
Ref<clsMatrix>        clsMatrix::MaxRR        (const clsMatrix& a)       const { return Pairwise<clsMatrix>(SheetOf(*this), SheetOf(a), Larger()); }
Ref<clsMatrix>        clsMatrix::MinRL        (const clsLong& a)         const { return Pairwise<clsMatrix>(SheetOf(*this), SheetOf(a), Smaller()); }
Ref<clsMatrix>        clsMatrix::MaxRL        (const clsLong& a)         const { return Pairwise<clsMatrix>(SheetOf(*this), SheetOf(a), Larger()); }
Ref<clsMatrix>        clsMatrix::MinNum       (double x)                 const { return Pairwise<clsMatrix>(SheetOf(*this), Single{x}, Smaller()); }
Ref<clsMatrix>        clsMatrix::MaxRNum      (double x)                 const { return Pairwise<clsMatrix>(SheetOf(*this), Single{x}, Larger()); }
Ref<clsComplexMatrix> clsMatrix::MinComplexNum(const clsComplex& z)      const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(z), SmallerComplex()); }
Ref<clsComplexMatrix> clsMatrix::MaxComplexNum(const clsComplex& z)      const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(z), LargerComplex()); }

Ref<clsLong>          clsMatrix::All          (const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::All); }
Ref<clsLong>          clsMatrix::AnyObj       (const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::Any); }
bool                  clsMatrix::AllAll       ()                         const { return Asked(*this, Quantifier::All); }
bool                  clsMatrix::AnyAny       ()                         const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
