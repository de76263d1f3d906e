#include "numeric/clsComplexMatrix.h"

#include "numeric/TableNames.h"
#include "numeric/elementwise/Arithmetic.h"
#include "numeric/linear/Dispatch.h"
#include "numeric/linear/OperatorMembers.h"
#include "numeric/linear/Product.h"

namespace lumora {

// Result class, operand, rule: a line a member. Every result is complex.
// clang-format off
Ref<Complex> Complex::MtimesC         (const Complex& b)   const { return Product<Complex>(*this, b); }
Ref<Complex> Complex::MtimesR         (const Reals& b)     const { return Product<Complex>(*this, b); }
Ref<Complex> Complex::MtimesL         (const Longs& b)     const { return Product<Complex>(*this, b); }
Ref<Complex> Complex::MtimesMC        (const Objects& b)   const { return MtimesC(*Wrapped(b)); }
Ref<Complex> Complex::MtimesCArray    (const Scalars& b)   const { return MtimesC(*Wrapped(b)); }
Ref<Complex> Complex::MtimesRArray    (const Doubles& b)   const { return MtimesR(*Wrapped(b)); }
Ref<Complex> Complex::MtimesLArray    (const Integers& b)  const { return MtimesL(*Wrapped(b)); }
Ref<Complex> Complex::MtimesNum       (double b)           const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Complex::MtimesComplexNum(const Scalar& b)    const { return Arith<Complex, TimesRule>(*this, b); }
Variant      Complex::MTimes          (const Variant& Obj) const { return Dispatch<MtimesMembers>(*this, Obj); }

Ref<Complex> Complex::TimesC         (const Complex& b)   const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Complex::TimesR         (const Reals& b)     const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Complex::TimesL         (const Longs& b)     const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Complex::TimesNum       (double b)           const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Complex::TimesComplexNum(const Scalar& b)    const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Complex::TimesMC        (const Objects& b)   const { return TimesC(*Wrapped(b)); }
Ref<Complex> Complex::TimesRArray    (const Doubles& b)   const { return TimesR(*Wrapped(b)); }
Ref<Complex> Complex::TimesLArray    (const Integers& b)  const { return TimesL(*Wrapped(b)); }
Ref<Complex> Complex::TimesCArray    (const Scalars& b)   const { return TimesC(*Wrapped(b)); }
Variant      Complex::Times          (const Variant& Obj) const { return Dispatch<TimesMembers>(*this, Obj); }

Ref<Complex> Complex::PlusC         (const Complex& b)   const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Complex::PlusR         (const Reals& b)     const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Complex::PlusL         (const Longs& b)     const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Complex::PlusNum       (double b)           const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Complex::PlusComplexNum(const Scalar& b)    const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Complex::PlusMC        (const Objects& b)   const { return PlusC(*Wrapped(b)); }
Ref<Complex> Complex::PlusRArray    (const Doubles& b)   const { return PlusR(*Wrapped(b)); }
Ref<Complex> Complex::PlusLArray    (const Integers& b)  const { return PlusL(*Wrapped(b)); }
Ref<Complex> Complex::PlusCArray    (const Scalars& b)   const { return PlusC(*Wrapped(b)); }
Variant      Complex::Plus          (const Variant& Obj) const { return Dispatch<PlusMembers>(*this, Obj); }

Ref<Complex> Complex::MinusC         (const Complex& b)   const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Complex::MinusR         (const Reals& b)     const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Complex::MinusL         (const Longs& b)     const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Complex::MinusNum       (double b)           const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Complex::MinusComplexNum(const Scalar& b)    const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Complex::MinusMC        (const Objects& b)   const { return MinusC(*Wrapped(b)); }
Ref<Complex> Complex::MinusRArray    (const Doubles& b)   const { return MinusR(*Wrapped(b)); }
Ref<Complex> Complex::MinusLArray    (const Integers& b)  const { return MinusL(*Wrapped(b)); }
Ref<Complex> Complex::MinusCArray    (const Scalars& b)   const { return MinusC(*Wrapped(b)); }
Variant      Complex::Minus          (const Variant& Obj) const { return Dispatch<MinusMembers>(*this, Obj); }

Ref<Complex> Complex::RdivideC         (const Complex& b)   const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Complex::RdivideR         (const Reals& b)     const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Complex::RdivideL         (const Longs& b)     const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Complex::RdivideNum       (double b)           const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Complex::RdivideComplexNum(const Scalar& b)    const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Complex::RdivideMC        (const Objects& b)   const { return RdivideC(*Wrapped(b)); }
Ref<Complex> Complex::RdivideRArray    (const Doubles& b)   const { return RdivideR(*Wrapped(b)); }
Ref<Complex> Complex::RdivideLArray    (const Integers& b)  const { return RdivideL(*Wrapped(b)); }
Ref<Complex> Complex::RdivideCArray    (const Scalars& b)   const { return RdivideC(*Wrapped(b)); }
Variant      Complex::Rdivide          (const Variant& Obj) const { return Dispatch<RdivideMembers>(*this, Obj); }
// clang-format on

} // namespace lumora
