#include "numeric/clsLong.h"

#include "numeric/clsComplexMatrix.h"
#include "numeric/order/Extremes.h"
#include "numeric/order/Pairwise.h"
#include "numeric/order/Quantifiers.h"

// Order statistics: result, member, what it does.

namespace lumora {

// clang-format off
std::int32_t          clsLong::Min          ()                         const { return FirstExtreme(SheetOf(*this), Smaller()).value; }
std::int32_t          clsLong::Max          ()                         const { return FirstExtreme(SheetOf(*this), Larger()).value; }
Ref<clsMatrix>        clsLong::Minmax       ()                         const { return MinmaxRow<clsMatrix>(FirstExtreme(SheetOf(*this), Smaller()), FirstExtreme(SheetOf(*this), Larger())); }
Ref<clsLong>          clsLong::MinDim       (const Variant& dimention) const { return ExtremesAlong(*this, dimention, Smaller()); }
Ref<clsLong>          clsLong::MaxDim       (const Variant& dimention) const { return ExtremesAlong(*this, dimention, Larger()); }
Ref<clsLong>          clsLong::MinIndex     (const Variant& dimention) const { return PlacesAlong(*this, dimention, Smaller()); }
Ref<clsLong>          clsLong::MaxIndex     (const Variant& dimention) const { return PlacesAlong(*this, dimention, Larger()); }

Ref<clsLong>          clsLong::MinLL        (const clsLong& a)         const { return Pairwise<clsLong>(SheetOf(*this), SheetOf(a), Smaller()); }
Ref<clsLong>          clsLong::MaxLL        (const clsLong& a)         const { return Pairwise<clsLong>(SheetOf(*this), SheetOf(a), Larger()); }
Ref<clsLong>          clsLong::MinNum       (double x)                 const { return Pairwise<clsLong>(SheetOf(*this), Single{x}, Smaller()); }
Ref<clsLong>          clsLong::MaxRNum      (double x)                 const { return Pairwise<clsLong>(SheetOf(*this), Single{x}, Larger()); }
Ref<clsComplexMatrix> clsLong::MinComplexNum(const clsComplex& z)      const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(z), SmallerComplex()); }
Ref<clsComplexMatrix> clsLong::MaxComplexNum(const clsComplex& z)      const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(z), LargerComplex()); }

Ref<clsLong>          clsLong::All          (const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::All); }
Ref<clsLong>          clsLong::AnyObj       (const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::Any); }
bool                  clsLong::AllAll       ()                         const { return Asked(*this, Quantifier::All); }
bool                  clsLong::AnyAny       ()                         const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
