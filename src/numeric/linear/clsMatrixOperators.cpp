#include "numeric/clsMatrix.h"

#include "numeric/TableNames.h"
#include "numeric/elementwise/Arithmetic.h"
#include "numeric/linear/Dispatch.h"
#include "numeric/linear/OperatorMembers.h"
#include "numeric/linear/Product.h"

namespace lumora {

// Result class, operand, rule: a line a member. Stops marks the members that stop.
// clang-format off
Ref<Reals>   Reals::MtimesR         (const Reals& b)     const { return Product<Reals>(*this, b); }
Ref<Reals>   Reals::MtimesL         (const Longs& b)     const { return Product<Reals>(*this, b); }
Ref<Complex> Reals::MtimesC         (const Complex& b)   const { return Product<Complex>(*this, b); }
Ref<Complex> Reals::MtimesMC        (const Objects& b)   const { return MtimesC(*Wrapped(b)); }
Ref<Reals>   Reals::MtimesNum       (double b)           const { return Arith<Reals, TimesRule>(*this, b); }
Ref<Complex> Reals::MtimesComplexNum(const Scalar& b)    const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Reals::MtimesCArray    (const Scalars& b)   const { return MtimesC(*Wrapped(b)); }
Ref<Reals>   Reals::MtimesRArray    (const Doubles& b)   const { return MtimesR(*Wrapped(b)); }
Ref<Longs>   Reals::MtimesLArray    (const Integers& b)  const { return Stops<Longs>(MtimesL(*Wrapped(b))); }
Variant      Reals::MTimes          (const Variant& Obj) const { return Dispatch<MtimesMembers>(*this, Obj); }

Ref<Complex> Reals::TimesC         (const Complex& b)   const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Reals>   Reals::TimesR         (const Reals& b)     const { return Arith<Reals, TimesRule>(*this, b); }
Ref<Reals>   Reals::TimesL         (const Longs& b)     const { return Arith<Reals, TimesRule>(*this, b); }
Ref<Reals>   Reals::TimesNum       (double b)           const { return Arith<Reals, TimesRule>(*this, b); }
Ref<Complex> Reals::TimesComplexNum(const Scalar& b)    const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Reals::TimesMC        (const Objects& b)   const { return TimesC(*Wrapped(b)); }
Ref<Reals>   Reals::TimesRArray    (const Doubles& b)   const { return TimesR(*Wrapped(b)); }
Ref<Reals>   Reals::TimesLArray    (const Integers& b)  const { return TimesL(*Wrapped(b)); }
Ref<Complex> Reals::TimesCArray    (const Scalars& b)   const { return TimesC(*Wrapped(b)); }
Variant      Reals::Times          (const Variant& Obj) const { return Dispatch<TimesMembers>(*this, Obj); }

Ref<Complex> Reals::PlusC         (const Complex& b)   const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Reals>   Reals::PlusR         (const Reals& b)     const { return Arith<Reals, PlusRule>(*this, b); }
Ref<Reals>   Reals::PlusL         (const Longs& b)     const { return Stops<Reals>(Arith<Reals, PlusRule>(*this, b)); }
Ref<Reals>   Reals::PlusNum       (double b)           const { return Stops<Reals>(Arith<Reals, PlusRule>(*this, b)); }
Ref<Complex> Reals::PlusComplexNum(const Scalar& b)    const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Reals::PlusMC        (const Objects& b)   const { return PlusC(*Wrapped(b)); }
Ref<Reals>   Reals::PlusRArray    (const Doubles& b)   const { return PlusR(*Wrapped(b)); }
Ref<Reals>   Reals::PlusLArray    (const Integers& b)  const { return PlusL(*Wrapped(b)); }
Ref<Complex> Reals::PlusCArray    (const Scalars& b)   const { return PlusC(*Wrapped(b)); }
Variant      Reals::Plus          (const Variant& Obj) const { return Dispatch<PlusMembers>(*this, Obj); }

Ref<Complex> Reals::MinusC         (const Complex& b)   const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Reals>   Reals::MinusR         (const Reals& b)     const { return Arith<Reals, MinusRule>(*this, b); }
Ref<Reals>   Reals::MinusL         (const Longs& b)     const { return Arith<Reals, MinusRule>(*this, b); }
Ref<Reals>   Reals::MinusNum       (double b)           const { return Arith<Reals, MinusRule>(*this, b); }
Ref<Complex> Reals::MinusComplexNum(const Scalar& b)    const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Reals::MinusMC        (const Objects& b)   const { return MinusC(*Wrapped(b)); }
Ref<Reals>   Reals::MinusRArray    (const Doubles& b)   const { return MinusR(*Wrapped(b)); }
Ref<Reals>   Reals::MinusLArray    (const Integers& b)  const { return MinusL(*Wrapped(b)); }
Ref<Complex> Reals::MinusCArray    (const Scalars& b)   const { return MinusC(*Wrapped(b)); }
Variant      Reals::Minus          (const Variant& Obj) const { return Dispatch<MinusMembers>(*this, Obj); }

Ref<Complex> Reals::RdivideC         (const Complex& b)   const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Reals>   Reals::RdivideR         (const Reals& b)     const { return Arith<Reals, RdivideRule>(*this, b); }
Ref<Reals>   Reals::RdivideL         (const Longs& b)     const { return Arith<Reals, RdivideRule>(*this, b); }
Ref<Reals>   Reals::RdivideNum       (double b)           const { return Arith<Reals, RdivideRule>(*this, b); }
Ref<Complex> Reals::RdivideComplexNum(const Scalar& b)    const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Reals::RdivideMC        (const Objects& b)   const { return RdivideC(*Wrapped(b)); }
Ref<Reals>   Reals::RdivideRArray    (const Doubles& b)   const { return RdivideR(*Wrapped(b)); }
Ref<Reals>   Reals::RdivideLArray    (const Integers& b)  const { return RdivideL(*Wrapped(b)); }
Ref<Complex> Reals::RdivideCArray    (const Scalars& b)   const { return RdivideC(*Wrapped(b)); }
Variant      Reals::Rdivide          (const Variant& Obj) const { return Dispatch<RdivideMembers>(*this, Obj); }
// clang-format on

} // namespace lumora
