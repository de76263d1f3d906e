#include "numeric/clsComplex.h"

#include "numeric/TableNames.h"
#include "numeric/elementwise/Arithmetic.h"
#include "numeric/linear/Dispatch.h"
#include "numeric/linear/OperatorMembers.h"

namespace lumora {

// Result class, operand, rule: a line a member. Times is Mtimes: a scalar has one kind of product.
// clang-format off
Ref<Scalar>  Scalar::MtimesComplexNum(const Scalar& b)    const { return ArithScalar<TimesRule>(*this, b); }
Ref<Scalar>  Scalar::MtimesNum       (double b)           const { return ArithScalar<TimesRule>(*this, b); }
Ref<Complex> Scalar::MtimesR         (const Reals& b)     const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Scalar::MtimesL         (const Longs& b)     const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Scalar::MtimesC         (const Complex& b)   const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Scalar::MtimesMC        (const Objects& b)   const { return MtimesC(*Wrapped(b)); }
Ref<Complex> Scalar::MtimesLArray    (const Integers& b)  const { return MtimesL(*Wrapped(b)); }
Ref<Complex> Scalar::MtimesRArray    (const Doubles& b)   const { return MtimesR(*Wrapped(b)); }
Ref<Complex> Scalar::MtimesCArray    (const Scalars& b)   const { return MtimesC(*Wrapped(b)); }
Variant      Scalar::MTimes          (const Variant& Obj) const { return Dispatch<MtimesMembers>(*this, Obj); }

Ref<Scalar>  Scalar::TimesComplexNum(const Scalar& b)    const { return MtimesComplexNum(b); }
Ref<Scalar>  Scalar::TimesNum       (double b)           const { return MtimesNum(b); }
Ref<Complex> Scalar::TimesR         (const Reals& b)     const { return MtimesR(b); }
Ref<Complex> Scalar::TimesL         (const Longs& b)     const { return MtimesL(b); }
Ref<Complex> Scalar::TimesC         (const Complex& b)   const { return MtimesC(b); }
Ref<Complex> Scalar::TimesMC        (const Objects& b)   const { return MtimesMC(b); }
Ref<Complex> Scalar::TimesLArray    (const Integers& b)  const { return MtimesLArray(b); }
Ref<Complex> Scalar::TimesRArray    (const Doubles& b)   const { return MtimesRArray(b); }
Ref<Complex> Scalar::TimesCArray    (const Scalars& b)   const { return MtimesCArray(b); }
Variant      Scalar::Times          (const Variant& Obj) const { return Dispatch<TimesMembers>(*this, Obj); }

Ref<Scalar>  Scalar::PlusComplexNum(const Scalar& b)    const { return ArithScalar<PlusRule>(*this, b); }
Ref<Scalar>  Scalar::PlusNum       (double b)           const { return ArithScalar<PlusRule>(*this, b); }
Ref<Complex> Scalar::PlusR         (const Reals& b)     const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Scalar::PlusL         (const Longs& b)     const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Scalar::PlusC         (const Complex& b)   const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Scalar::PlusMC        (const Objects& b)   const { return PlusC(*Wrapped(b)); }
Ref<Complex> Scalar::PlusLArray    (const Integers& b)  const { return PlusL(*Wrapped(b)); }
Ref<Complex> Scalar::PlusRArray    (const Doubles& b)   const { return PlusR(*Wrapped(b)); }
Ref<Complex> Scalar::PlusCArray    (const Scalars& b)   const { return PlusC(*Wrapped(b)); }
Variant      Scalar::Plus          (const Variant& Obj) const { return Dispatch<PlusMembers>(*this, Obj); }

Ref<Scalar>  Scalar::MinusComplexNum(const Scalar& b)    const { return ArithScalar<MinusRule>(*this, b); }
Ref<Scalar>  Scalar::MinusNum       (double b)           const { return ArithScalar<MinusRule>(*this, b); }
Ref<Complex> Scalar::MinusR         (const Reals& b)     const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Scalar::MinusL         (const Longs& b)     const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Scalar::MinusC         (const Complex& b)   const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Scalar::MinusMC        (const Objects& b)   const { return MinusC(*Wrapped(b)); }
Ref<Complex> Scalar::MinusLArray    (const Integers& b)  const { return MinusL(*Wrapped(b)); }
Ref<Complex> Scalar::MinusRArray    (const Doubles& b)   const { return MinusR(*Wrapped(b)); }
Ref<Complex> Scalar::MinusCArray    (const Scalars& b)   const { return MinusC(*Wrapped(b)); }
Variant      Scalar::Minus          (const Variant& Obj) const { return Dispatch<MinusMembers>(*this, Obj); }

Ref<Scalar>  Scalar::RdivideComplexNum(const Scalar& b)    const { return ArithScalar<RdivideRule>(*this, b); }
Ref<Scalar>  Scalar::RdivideNum       (double b)           const { return ArithScalar<RdivideRule>(*this, b); }
Ref<Complex> Scalar::RdivideR         (const Reals& b)     const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Scalar::RdivideL         (const Longs& b)     const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Scalar::RdivideC         (const Complex& b)   const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Scalar::RdivideMC        (const Objects& b)   const { return RdivideC(*Wrapped(b)); }
Ref<Complex> Scalar::RdivideLArray    (const Integers& b)  const { return RdivideL(*Wrapped(b)); }
Ref<Complex> Scalar::RdivideRArray    (const Doubles& b)   const { return RdivideR(*Wrapped(b)); }
Ref<Complex> Scalar::RdivideCArray    (const Scalars& b)   const { return RdivideC(*Wrapped(b)); }
Variant      Scalar::Rdivide          (const Variant& Obj) const { return Dispatch<RdivideMembers>(*this, Obj); }
// clang-format on

} // namespace lumora
