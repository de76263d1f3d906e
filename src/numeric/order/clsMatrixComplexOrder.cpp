#include "numeric/clsMatrixComplex.h"

#include "numeric/TableNames.h"
#include "numeric/order/Extremes.h"
#include "numeric/order/Pairwise.h"
#include "numeric/order/Quantifiers.h"

// Order statistics by the complex rule: result, member, what it does.

namespace lumora {

// clang-format off
Ref<Scalar>  Objects::Min     (double tol)                     const { return AsObject(SmallestOf(*this, tol)); }
Ref<Scalar>  Objects::Max     (double tol)                     const { return AsObject(LargestOf(*this, tol)); }
Ref<Objects> Objects::Minmax  (double tol)                     const { return MinmaxOf<Objects>(*this, tol); }
Variant      Objects::MinDim  (const Variant& dim, double tol) const { return SmallestAlong(*this, dim, tol); }
Variant      Objects::MaxDim  (const Variant& dim, double tol) const { return LargestAlong(*this, dim, tol); }
Ref<Longs>   Objects::MinIndex(const Variant& dim, double tol) const { return SmallestPlaces(*this, dim, tol); }
Ref<Longs>   Objects::MaxIndex(const Variant& dim, double tol) const { return LargestPlaces(*this, dim, tol); }

Ref<Objects> Objects::MinMCMC   (const Objects& a, double tol) const { return SmallerOf<Objects>(*this, a, tol); }
Ref<Objects> Objects::MaxMCMC   (const Objects& a, double tol) const { return LargerOf<Objects>(*this, a, tol); }
Ref<Objects> Objects::MinMCD    (const Reals& a, double tol)   const { return SmallerOf<Objects>(*this, a, tol); }
Ref<Objects> Objects::MaxMCD    (const Reals& a, double tol)   const { return LargerOf<Objects>(*this, a, tol); }
Ref<Objects> Objects::MinMCL    (const Longs& a, double tol)   const { return SmallerOf<Objects>(*this, a, tol); }
Ref<Objects> Objects::MaxMCL    (const Longs& a, double tol)   const { return LargerOf<Objects>(*this, a, tol); }
Ref<Objects> Objects::MinComplex(const Scalar& z, double tol)  const { return SmallerOf<Objects>(*this, z, tol); }
Ref<Objects> Objects::MaxComplex(const Scalar& z, double tol)  const { return LargerOf<Objects>(*this, z, tol); }
Ref<Objects> Objects::MinNum    (double x, double tol)         const { return SmallerOf<Objects>(*this, x, tol); }
Ref<Objects> Objects::MaxNum    (double x, double tol)         const { return LargerOf<Objects>(*this, x, tol); }

Ref<Longs> Objects::All   (const Variant& dim) const { return AskedAlong(*this, dim, Quantifier::All); }
Ref<Longs> Objects::AnyObj(const Variant& dim) const { return AskedAlong(*this, dim, Quantifier::Any); }
bool       Objects::AllAll()                   const { return Asked(*this, Quantifier::All); }
bool       Objects::AnyAny()                   const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
