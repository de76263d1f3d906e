#include "numeric/clsLong.h"

#include "numeric/TableNames.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/order/Extremes.h"
#include "numeric/order/Pairwise.h"
#include "numeric/order/Quantifiers.h"

// Order statistics: result, member, what it does.

namespace lumora {

// clang-format off
std::int32_t Longs::Min     ()                         const { return SmallestOf(*this); }
std::int32_t Longs::Max     ()                         const { return LargestOf(*this); }
Ref<Reals>   Longs::Minmax  ()                         const { return MinmaxOf<Reals>(*this); }
Ref<Longs>   Longs::MinDim  (const Variant& dimention) const { return SmallestAlong(*this, dimention); }
Ref<Longs>   Longs::MaxDim  (const Variant& dimention) const { return LargestAlong(*this, dimention); }
Ref<Longs>   Longs::MinIndex(const Variant& dimention) const { return SmallestPlaces(*this, dimention); }
Ref<Longs>   Longs::MaxIndex(const Variant& dimention) const { return LargestPlaces(*this, dimention); }

Ref<Longs>   Longs::MinLL        (const Longs& a)  const { return SmallerOf<Longs>(*this, a); }
Ref<Longs>   Longs::MaxLL        (const Longs& a)  const { return LargerOf<Longs>(*this, a); }
Ref<Longs>   Longs::MinNum       (double x)        const { return SmallerOf<Longs>(*this, x); }
Ref<Longs>   Longs::MaxRNum      (double x)        const { return LargerOf<Longs>(*this, x); }
Ref<Complex> Longs::MinComplexNum(const Scalar& z) const { return SmallerOf<Complex>(*this, z, 0.0); }
Ref<Complex> Longs::MaxComplexNum(const Scalar& z) const { return LargerOf<Complex>(*this, z, 0.0); }

Ref<Longs> Longs::All   (const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::All); }
Ref<Longs> Longs::AnyObj(const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::Any); }
bool       Longs::AllAll()                         const { return Asked(*this, Quantifier::All); }
bool       Longs::AnyAny()                         const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
