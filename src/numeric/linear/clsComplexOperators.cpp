#include "numeric/clsComplex.h"

#include "numeric/elementwise/Arithmetic.h"
#include "numeric/linear/Dispatch.h"

namespace lumora {

// Result class, operand, rule: a line a member. Times is Mtimes: a scalar has one kind of product.
// clang-format off
Ref<clsComplex>       clsComplex::MtimesComplexNum(const clsComplex& b)             const { return ArithScalar<TimesRule>(*this, b); }
Ref<clsComplex>       clsComplex::MtimesNum       (double b)                        const { return ArithScalar<TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::MtimesR         (const clsMatrix& b)              const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::MtimesL         (const clsLong& b)                const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::MtimesC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::MtimesMC        (const clsMatrixComplex& b)       const { return MtimesC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::MtimesLArray    (const Array<std::int32_t>& b)    const { return MtimesL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::MtimesRArray    (const Array<double>& b)          const { return MtimesR(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::MtimesCArray    (const Array<Ref<clsComplex>>& b) const { return MtimesC(*Wrapped(b)); }
Variant               clsComplex::MTimes          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplex::MtimesComplexNum, &clsComplex::MtimesR, &clsComplex::MtimesL, &clsComplex::MtimesC, &clsComplex::MtimesMC, &clsComplex::MtimesLArray, &clsComplex::MtimesRArray, &clsComplex::MtimesCArray, &clsComplex::MtimesNum); }

Ref<clsComplex>       clsComplex::TimesComplexNum(const clsComplex& b)             const { return MtimesComplexNum(b); }
Ref<clsComplex>       clsComplex::TimesNum       (double b)                        const { return MtimesNum(b); }
Ref<clsComplexMatrix> clsComplex::TimesR         (const clsMatrix& b)              const { return MtimesR(b); }
Ref<clsComplexMatrix> clsComplex::TimesL         (const clsLong& b)                const { return MtimesL(b); }
Ref<clsComplexMatrix> clsComplex::TimesC         (const clsComplexMatrix& b)       const { return MtimesC(b); }
Ref<clsComplexMatrix> clsComplex::TimesMC        (const clsMatrixComplex& b)       const { return MtimesMC(b); }
Ref<clsComplexMatrix> clsComplex::TimesLArray    (const Array<std::int32_t>& b)    const { return MtimesLArray(b); }
Ref<clsComplexMatrix> clsComplex::TimesRArray    (const Array<double>& b)          const { return MtimesRArray(b); }
Ref<clsComplexMatrix> clsComplex::TimesCArray    (const Array<Ref<clsComplex>>& b) const { return MtimesCArray(b); }
Variant               clsComplex::Times          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplex::TimesComplexNum, &clsComplex::TimesR, &clsComplex::TimesL, &clsComplex::TimesC, &clsComplex::TimesMC, &clsComplex::TimesLArray, &clsComplex::TimesRArray, &clsComplex::TimesCArray, &clsComplex::TimesNum); }

Ref<clsComplex>       clsComplex::PlusComplexNum(const clsComplex& b)             const { return ArithScalar<PlusRule>(*this, b); }
Ref<clsComplex>       clsComplex::PlusNum       (double b)                        const { return ArithScalar<PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::PlusR         (const clsMatrix& b)              const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::PlusL         (const clsLong& b)                const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::PlusC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::PlusMC        (const clsMatrixComplex& b)       const { return PlusC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::PlusLArray    (const Array<std::int32_t>& b)    const { return PlusL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::PlusRArray    (const Array<double>& b)          const { return PlusR(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::PlusCArray    (const Array<Ref<clsComplex>>& b) const { return PlusC(*Wrapped(b)); }
Variant               clsComplex::Plus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplex::PlusComplexNum, &clsComplex::PlusR, &clsComplex::PlusL, &clsComplex::PlusC, &clsComplex::PlusMC, &clsComplex::PlusLArray, &clsComplex::PlusRArray, &clsComplex::PlusCArray, &clsComplex::PlusNum); }

Ref<clsComplex>       clsComplex::MinusComplexNum(const clsComplex& b)             const { return ArithScalar<MinusRule>(*this, b); }
Ref<clsComplex>       clsComplex::MinusNum       (double b)                        const { return ArithScalar<MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::MinusR         (const clsMatrix& b)              const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::MinusL         (const clsLong& b)                const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::MinusC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::MinusMC        (const clsMatrixComplex& b)       const { return MinusC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::MinusLArray    (const Array<std::int32_t>& b)    const { return MinusL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::MinusRArray    (const Array<double>& b)          const { return MinusR(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::MinusCArray    (const Array<Ref<clsComplex>>& b) const { return MinusC(*Wrapped(b)); }
Variant               clsComplex::Minus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplex::MinusComplexNum, &clsComplex::MinusR, &clsComplex::MinusL, &clsComplex::MinusC, &clsComplex::MinusMC, &clsComplex::MinusLArray, &clsComplex::MinusRArray, &clsComplex::MinusCArray, &clsComplex::MinusNum); }

Ref<clsComplex>       clsComplex::RdivideComplexNum(const clsComplex& b)             const { return ArithScalar<RdivideRule>(*this, b); }
Ref<clsComplex>       clsComplex::RdivideNum       (double b)                        const { return ArithScalar<RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::RdivideR         (const clsMatrix& b)              const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::RdivideL         (const clsLong& b)                const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::RdivideC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsComplex::RdivideMC        (const clsMatrixComplex& b)       const { return RdivideC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::RdivideLArray    (const Array<std::int32_t>& b)    const { return RdivideL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::RdivideRArray    (const Array<double>& b)          const { return RdivideR(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplex::RdivideCArray    (const Array<Ref<clsComplex>>& b) const { return RdivideC(*Wrapped(b)); }
Variant               clsComplex::Rdivide          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplex::RdivideComplexNum, &clsComplex::RdivideR, &clsComplex::RdivideL, &clsComplex::RdivideC, &clsComplex::RdivideMC, &clsComplex::RdivideLArray, &clsComplex::RdivideRArray, &clsComplex::RdivideCArray, &clsComplex::RdivideNum); }
// clang-format on

} // namespace lumora
