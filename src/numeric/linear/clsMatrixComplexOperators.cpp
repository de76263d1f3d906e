#include "numeric/clsMatrixComplex.h"

#include "numeric/TableNames.h"
#include "numeric/linear/Dispatch.h"
#include "numeric/linear/OperatorMembers.h"

namespace lumora {

namespace {

/// The result of a computation as element objects; empty stays empty.
Ref<clsMatrixComplex> AsObjects(const Ref<clsComplexMatrix>& computed)
{
    if (!computed) return {};
    return NewMatrix<clsMatrixComplex>(computed->RealPart(), computed->ImagePart());
}

} // namespace

// No arithmetic of its own: the receiver becomes a clsComplexMatrix, whose member does the work.
// Only the MC members turn the result into element objects again.
// clang-format off
Ref<Objects> Objects::MtimesMC        (const Objects& b)   const { return AsObjects(Wrapped(*this)->MtimesMC(b)); }
Ref<Complex> Objects::MtimesC         (const Complex& b)   const { return Wrapped(*this)->MtimesC(b); }
Ref<Complex> Objects::MtimesR         (const Reals& b)     const { return Wrapped(*this)->MtimesR(b); }
Ref<Complex> Objects::MtimesL         (const Longs& b)     const { return Wrapped(*this)->MtimesL(b); }
Ref<Complex> Objects::MtimesNum       (double b)           const { return Wrapped(*this)->MtimesNum(b); }
Ref<Complex> Objects::MtimesComplexNum(const Scalar& b)    const { return Wrapped(*this)->MtimesComplexNum(b); }
Ref<Complex> Objects::MtimesCArray    (const Scalars& b)   const { return Wrapped(*this)->MtimesCArray(b); }
Ref<Complex> Objects::MtimesRArray    (const Doubles& b)   const { return Wrapped(*this)->MtimesRArray(b); }
Ref<Complex> Objects::MtimesLArray    (const Integers& b)  const { return Wrapped(*this)->MtimesLArray(b); }
Variant      Objects::MTimes          (const Variant& Obj) const { return Dispatch<MtimesMembers>(*this, Obj); }

Ref<Objects> Objects::TimesMC        (const Objects& b)   const { return AsObjects(Wrapped(*this)->TimesMC(b)); }
Ref<Complex> Objects::TimesC         (const Complex& b)   const { return Wrapped(*this)->TimesC(b); }
Ref<Complex> Objects::TimesR         (const Reals& b)     const { return Wrapped(*this)->TimesR(b); }
Ref<Complex> Objects::TimesL         (const Longs& b)     const { return Wrapped(*this)->TimesL(b); }
Ref<Complex> Objects::TimesNum       (double b)           const { return Wrapped(*this)->TimesNum(b); }
Ref<Complex> Objects::TimesComplexNum(const Scalar& b)    const { return Wrapped(*this)->TimesComplexNum(b); }
Ref<Complex> Objects::TimesCArray    (const Scalars& b)   const { return Wrapped(*this)->TimesCArray(b); }
Ref<Complex> Objects::TimesRArray    (const Doubles& b)   const { return Wrapped(*this)->TimesRArray(b); }
Ref<Complex> Objects::TimesLArray    (const Integers& b)  const { return Wrapped(*this)->TimesLArray(b); }
Variant      Objects::Times          (const Variant& Obj) const { return Dispatch<TimesMembers>(*this, Obj); }

Ref<Objects> Objects::PlusMC        (const Objects& b)   const { return AsObjects(Wrapped(*this)->PlusMC(b)); }
Ref<Complex> Objects::PlusC         (const Complex& b)   const { return Wrapped(*this)->PlusC(b); }
Ref<Complex> Objects::PlusR         (const Reals& b)     const { return Wrapped(*this)->PlusR(b); }
Ref<Complex> Objects::PlusL         (const Longs& b)     const { return Wrapped(*this)->PlusL(b); }
Ref<Complex> Objects::PlusNum       (double b)           const { return Wrapped(*this)->PlusNum(b); }
Ref<Complex> Objects::PlusComplexNum(const Scalar& b)    const { return Wrapped(*this)->PlusComplexNum(b); }
Ref<Complex> Objects::PlusCArray    (const Scalars& b)   const { return Wrapped(*this)->PlusCArray(b); }
Ref<Complex> Objects::PlusRArray    (const Doubles& b)   const { return Wrapped(*this)->PlusRArray(b); }
Ref<Complex> Objects::PlusLArray    (const Integers& b)  const { return Wrapped(*this)->PlusLArray(b); }
Variant      Objects::Plus          (const Variant& Obj) const { return Dispatch<PlusMembers>(*this, Obj); }

Ref<Objects> Objects::MinusMC        (const Objects& b)   const { return AsObjects(Wrapped(*this)->MinusMC(b)); }
Ref<Complex> Objects::MinusC         (const Complex& b)   const { return Wrapped(*this)->MinusC(b); }
Ref<Complex> Objects::MinusR         (const Reals& b)     const { return Wrapped(*this)->MinusR(b); }
Ref<Complex> Objects::MinusL         (const Longs& b)     const { return Wrapped(*this)->MinusL(b); }
Ref<Complex> Objects::MinusNum       (double b)           const { return Wrapped(*this)->MinusNum(b); }
Ref<Complex> Objects::MinusComplexNum(const Scalar& b)    const { return Wrapped(*this)->MinusComplexNum(b); }
Ref<Complex> Objects::MinusCArray    (const Scalars& b)   const { return Wrapped(*this)->MinusCArray(b); }
Ref<Complex> Objects::MinusRArray    (const Doubles& b)   const { return Wrapped(*this)->MinusRArray(b); }
Ref<Complex> Objects::MinusLArray    (const Integers& b)  const { return Wrapped(*this)->MinusLArray(b); }
Variant      Objects::Minus          (const Variant& Obj) const { return Dispatch<MinusMembers>(*this, Obj); }

Ref<Objects> Objects::RdivideMC        (const Objects& b)   const { return AsObjects(Wrapped(*this)->RdivideMC(b)); }
Ref<Complex> Objects::RdivideC         (const Complex& b)   const { return Wrapped(*this)->RdivideC(b); }
Ref<Complex> Objects::RdivideR         (const Reals& b)     const { return Wrapped(*this)->RdivideR(b); }
Ref<Complex> Objects::RdivideL         (const Longs& b)     const { return Wrapped(*this)->RdivideL(b); }
Ref<Complex> Objects::RdivideNum       (double b)           const { return Wrapped(*this)->RdivideNum(b); }
Ref<Complex> Objects::RdivideComplexNum(const Scalar& b)    const { return Wrapped(*this)->RdivideComplexNum(b); }
Ref<Complex> Objects::RdivideCArray    (const Scalars& b)   const { return Wrapped(*this)->RdivideCArray(b); }
Ref<Complex> Objects::RdivideRArray    (const Doubles& b)   const { return Wrapped(*this)->RdivideRArray(b); }
Ref<Complex> Objects::RdivideLArray    (const Integers& b)  const { return Wrapped(*this)->RdivideLArray(b); }
Variant      Objects::Rdivide          (const Variant& Obj) const { return Dispatch<RdivideMembers>(*this, Obj); }
// clang-format on

} // namespace lumora
