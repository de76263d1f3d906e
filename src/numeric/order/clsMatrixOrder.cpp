#include "numeric/clsMatrix.h"

#include "numeric/TableNames.h"
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
    return MinmaxOf<clsMatrix>(*this);
}

Ref<clsMatrix> clsMatrix::MinmaxIndex() const
{
    return Minmax();
}

// clang-format off
double     Reals::Min     ()                         const { return SmallestOf(*this); }
double     Reals::Max     ()                         const { return LargestOf(*this); }
Ref<Reals> Reals::MinDim  (const Variant& dimention) const { return SmallestAlong(*this, dimention); }
Ref<Reals> Reals::MaxDim  (const Variant& dimention) const { return LargestAlong(*this, dimention); }
Ref<Longs> Reals::MinIndex(const Variant& dimention) const { return SmallestPlaces(*this, dimention); }
Ref<Longs> Reals::MaxIndex(const Variant& dimention) const { return LargestPlaces(*this, dimention); }

Ref<Reals>   Reals::MinRR        (const Reals& a)  const { return SmallerOf<Reals>(*this, a); }
Ref<Reals>   Reals::MaxRR        (const Reals& a)  const { return LargerOf<Reals>(*this, a); }
Ref<Reals>   Reals::MinRL        (const Longs& a)  const { return SmallerOf<Reals>(*this, a); }
Ref<Reals>   Reals::MaxRL        (const Longs& a)  const { return LargerOf<Reals>(*this, a); }
Ref<Reals>   Reals::MinNum       (double x)        const { return SmallerOf<Reals>(*this, x); }
Ref<Reals>   Reals::MaxRNum      (double x)        const { return LargerOf<Reals>(*this, x); }
Ref<Complex> Reals::MinComplexNum(const Scalar& z) const { return SmallerOf<Complex>(*this, z, 0.0); }
Ref<Complex> Reals::MaxComplexNum(const Scalar& z) const { return LargerOf<Complex>(*this, z, 0.0); }

Ref<Longs> Reals::All   (const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::All); }
Ref<Longs> Reals::AnyObj(const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::Any); }
bool       Reals::AllAll()                         const { return Asked(*this, Quantifier::All); }
bool       Reals::AnyAny()                         const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
