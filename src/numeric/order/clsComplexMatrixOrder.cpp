#include "numeric/clsComplexMatrix.h"

#include "numeric/TableNames.h"
#include "numeric/order/Extremes.h"
#include "numeric/order/Pairwise.h"
#include "numeric/order/Quantifiers.h"

// Order statistics by the complex rule: result, member, what it does.

namespace lumora {

// clang-format off
Ref<Scalar>  Complex::Min     (double tol)                     const { return AsObject(SmallestOf(*this, tol)); }
Ref<Scalar>  Complex::Max     (double tol)                     const { return AsObject(LargestOf(*this, tol)); }
Ref<Complex> Complex::Minmax  (double tol)                     const { return MinmaxOf<Complex>(*this, tol); }
Variant      Complex::MinDim  (const Variant& dim, double tol) const { return SmallestAlong(*this, dim, tol); }
Variant      Complex::MaxDim  (const Variant& dim, double tol) const { return LargestAlong(*this, dim, tol); }
Ref<Longs>   Complex::MinIndex(const Variant& dim, double tol) const { return SmallestPlaces(*this, dim, tol); }
Ref<Longs>   Complex::MaxIndex(const Variant& dim, double tol) const { return LargestPlaces(*this, dim, tol); }

Ref<Complex> Complex::MinCC           (const Complex& a, double tol) const { return SmallerOf<Complex>(*this, a, tol); }
Ref<Complex> Complex::MaxCC           (const Complex& a, double tol) const { return LargerOf<Complex>(*this, a, tol); }
Ref<Complex> Complex::MinCD           (const Reals& a, double tol)   const { return SmallerOf<Complex>(*this, a, tol); }
Ref<Complex> Complex::MaxCD           (const Reals& a, double tol)   const { return LargerOf<Complex>(*this, a, tol); }
Ref<Complex> Complex::MinCL           (const Longs& a, double tol)   const { return SmallerOf<Complex>(*this, a, tol); }
Ref<Complex> Complex::MaxCL           (const Longs& a, double tol)   const { return LargerOf<Complex>(*this, a, tol); }
Ref<Complex> Complex::MinNum          (double x, double tol)         const { return SmallerOf<Complex>(*this, x, tol); }
Ref<Complex> Complex::MaxNum          (double x, double tol)         const { return LargerOf<Complex>(*this, x, tol); }
Ref<Complex> Complex::MinComplex      (const Scalar& z, double tol)  const { return SmallerOf<Complex>(*this, z, tol); }
Ref<Complex> Complex::MaxComplex      (const Scalar& z, double tol)  const { return LargerOf<Complex>(*this, z, tol); }
Ref<Complex> Complex::MinMatrixComplex(const Objects& a, double tol) const { return SmallerOf<Complex>(*this, a, tol); }
Ref<Complex> Complex::MaxMatrixComplex(const Objects& a, double tol) const { return LargerOf<Complex>(*this, a, tol); }

Ref<Longs> Complex::All   (const Variant& dim) const { return AskedAlong(*this, dim, Quantifier::All); }
Ref<Longs> Complex::AnyObj(const Variant& dim) const { return AskedAlong(*this, dim, Quantifier::Any); }
bool       Complex::AllAll()                   const { return Asked(*this, Quantifier::All); }
bool       Complex::AnyAny()                   const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
