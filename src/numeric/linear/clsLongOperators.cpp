#include "numeric/clsLong.h"

#include "numeric/TableNames.h"
#include "numeric/elementwise/Arithmetic.h"
#include "numeric/linear/Dispatch.h"
#include "numeric/linear/OperatorMembers.h"
#include "numeric/linear/Product.h"

namespace lumora {

// Result class, operand, rule: a line a member. Stops marks the members that stop.
// clang-format off
Ref<Longs>   Longs::MtimesL         (const Longs& b)     const { return Product<Longs>(*this, b); }
Ref<Reals>   Longs::MtimesR         (const Reals& b)     const { return Product<Reals>(*this, b); }
Ref<Complex> Longs::MtimesC         (const Complex& b)   const { return Product<Complex>(*this, b); }
Ref<Complex> Longs::MtimesMC        (const Objects& b)   const { return MtimesC(*Wrapped(b)); }
Ref<Longs>   Longs::MtimesLongNum   (std::int32_t b)     const { return Arith<Longs, TimesRule>(*this, b); }
Ref<Reals>   Longs::MtimesNum       (double b)           const { return Arith<Reals, TimesRule>(*this, b); }
Ref<Complex> Longs::MtimesComplexNum(const Scalar& b)    const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Longs::MtimesCArray    (const Scalars& b)   const { return MtimesC(*Wrapped(b)); }
Ref<Reals>   Longs::MtimesRArray    (const Doubles& b)   const { return MtimesR(*Wrapped(b)); }
Ref<Longs>   Longs::MtimesLArray    (const Integers& b)  const { return MtimesL(*Wrapped(b)); }
Variant      Longs::MTimes          (const Variant& Obj) const { return Dispatch<MtimesMembers>(*this, Obj); }

Ref<Complex> Longs::TimesC         (const Complex& b)   const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Reals>   Longs::TimesR         (const Reals& b)     const { return Arith<Reals, TimesRule>(*this, b); }
Ref<Longs>   Longs::TimesL         (const Longs& b)     const { return Arith<Longs, TimesRule>(*this, b); }
Ref<Reals>   Longs::TimesNum       (double b)           const { return Arith<Reals, TimesRule>(*this, b); }
Ref<Complex> Longs::TimesComplexNum(const Scalar& b)    const { return Arith<Complex, TimesRule>(*this, b); }
Ref<Complex> Longs::TimesMC        (const Objects& b)   const { return TimesC(*Wrapped(b)); }
Ref<Reals>   Longs::TimesRArray    (const Doubles& b)   const { return TimesR(*Wrapped(b)); }
Ref<Reals>   Longs::TimesLArray    (const Integers& b)  const { return Stops<Reals>(TimesL(*Wrapped(b))); }
Ref<Complex> Longs::TimesCArray    (const Scalars& b)   const { return TimesC(*Wrapped(b)); }
Variant      Longs::Times          (const Variant& Obj) const { return Dispatch<TimesMembers>(*this, Obj); }

Ref<Complex> Longs::PlusC         (const Complex& b)   const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Reals>   Longs::PlusR         (const Reals& b)     const { return Arith<Reals, PlusRule>(*this, b); }
Ref<Longs>   Longs::PlusL         (const Longs& b)     const { return Arith<Longs, PlusRule>(*this, b); }
Ref<Reals>   Longs::PlusNum       (double b)           const { return Stops<Reals>(Arith<Reals, PlusRule>(*this, b)); }
Ref<Complex> Longs::PlusComplexNum(const Scalar& b)    const { return Arith<Complex, PlusRule>(*this, b); }
Ref<Complex> Longs::PlusMC        (const Objects& b)   const { return PlusC(*Wrapped(b)); }
Ref<Reals>   Longs::PlusRArray    (const Doubles& b)   const { return PlusR(*Wrapped(b)); }
Ref<Longs>   Longs::PlusLArray    (const Integers& b)  const { return PlusL(*Wrapped(b)); }
Ref<Complex> Longs::PlusCArray    (const Scalars& b)   const { return PlusC(*Wrapped(b)); }
Variant      Longs::Plus          (const Variant& Obj) const { return Dispatch<PlusMembers>(*this, Obj); }

Ref<Complex> Longs::MinusC         (const Complex& b)   const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Reals>   Longs::MinusR         (const Reals& b)     const { return Arith<Reals, MinusRule>(*this, b); }
Ref<Longs>   Longs::MinusL         (const Longs& b)     const { return Arith<Longs, MinusRule>(*this, b); }
Ref<Reals>   Longs::MinusNum       (double b)           const { return Arith<Reals, MinusRule>(*this, b); }
Ref<Complex> Longs::MinusComplexNum(const Scalar& b)    const { return Arith<Complex, MinusRule>(*this, b); }
Ref<Complex> Longs::MinusMC        (const Objects& b)   const { return MinusC(*Wrapped(b)); }
Ref<Reals>   Longs::MinusRArray    (const Doubles& b)   const { return MinusR(*Wrapped(b)); }
Ref<Longs>   Longs::MinusLArray    (const Integers& b)  const { return MinusL(*Wrapped(b)); }
Ref<Complex> Longs::MinusCArray    (const Scalars& b)   const { return MinusC(*Wrapped(b)); }
Variant      Longs::Minus          (const Variant& Obj) const { return Dispatch<MinusMembers>(*this, Obj); }

Ref<Complex> Longs::RdivideC         (const Complex& b)   const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Reals>   Longs::RdivideR         (const Reals& b)     const { return Arith<Reals, RdivideRule>(*this, b); }
Ref<Reals>   Longs::RdivideL         (const Longs& b)     const { return Arith<Reals, RdivideRule>(*this, b); }
Ref<Reals>   Longs::RdivideNum       (double b)           const { return Arith<Reals, RdivideRule>(*this, b); }
Ref<Complex> Longs::RdivideComplexNum(const Scalar& b)    const { return Arith<Complex, RdivideRule>(*this, b); }
Ref<Complex> Longs::RdivideMC        (const Objects& b)   const { return RdivideC(*Wrapped(b)); }
Ref<Reals>   Longs::RdivideRArray    (const Doubles& b)   const { return RdivideR(*Wrapped(b)); }
Ref<Reals>   Longs::RdivideLArray    (const Integers& b)  const { return RdivideL(*Wrapped(b)); }
Ref<Complex> Longs::RdivideCArray    (const Scalars& b)   const { return RdivideC(*Wrapped(b)); }
Variant      Longs::Rdivide          (const Variant& Obj) const { return Dispatch<RdivideMembers>(*this, Obj); }
// clang-format on

} // namespace lumora
