#include "numeric/clsMatrix.h"

#include "numeric/elementwise/Arithmetic.h"
#include "numeric/linear/Dispatch.h"
#include "numeric/linear/Product.h"

namespace lumora {

// Result class, operand, rule: a line a member. PassedOnAs marks the members that stop.
// clang-format off
Ref<clsMatrix>        clsMatrix::MtimesR         (const clsMatrix& b)              const { return Product<clsMatrix>(*this, b); }
Ref<clsMatrix>        clsMatrix::MtimesL         (const clsLong& b)                const { return Product<clsMatrix>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::MtimesC         (const clsComplexMatrix& b)       const { return Product<clsComplexMatrix>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::MtimesMC        (const clsMatrixComplex& b)       const { return MtimesC(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::MtimesNum       (double b)                        const { return Arith<clsMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::MtimesComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::MtimesCArray    (const Array<Ref<clsComplex>>& b) const { return MtimesC(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::MtimesRArray    (const Array<double>& b)          const { return MtimesR(*Wrapped(b)); }
Ref<clsLong>          clsMatrix::MtimesLArray    (const Array<std::int32_t>& b)    const { return PassedOnAs<clsLong>(MtimesL(*Wrapped(b))); }
Variant               clsMatrix::MTimes          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrix::MtimesComplexNum, &clsMatrix::MtimesR, &clsMatrix::MtimesL, &clsMatrix::MtimesC, &clsMatrix::MtimesMC, &clsMatrix::MtimesLArray, &clsMatrix::MtimesRArray, &clsMatrix::MtimesCArray, &clsMatrix::MtimesNum); }

Ref<clsComplexMatrix> clsMatrix::TimesC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::TimesR         (const clsMatrix& b)              const { return Arith<clsMatrix, TimesRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::TimesL         (const clsLong& b)                const { return Arith<clsMatrix, TimesRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::TimesNum       (double b)                        const { return Arith<clsMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::TimesComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::TimesMC        (const clsMatrixComplex& b)       const { return TimesC(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::TimesRArray    (const Array<double>& b)          const { return TimesR(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::TimesLArray    (const Array<std::int32_t>& b)    const { return TimesL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsMatrix::TimesCArray    (const Array<Ref<clsComplex>>& b) const { return TimesC(*Wrapped(b)); }
Variant               clsMatrix::Times          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrix::TimesComplexNum, &clsMatrix::TimesR, &clsMatrix::TimesL, &clsMatrix::TimesC, &clsMatrix::TimesMC, &clsMatrix::TimesLArray, &clsMatrix::TimesRArray, &clsMatrix::TimesCArray, &clsMatrix::TimesNum); }

Ref<clsComplexMatrix> clsMatrix::PlusC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::PlusR         (const clsMatrix& b)              const { return Arith<clsMatrix, PlusRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::PlusL         (const clsLong& b)                const { return PassedOnAs<clsMatrix>(Arith<clsMatrix, PlusRule>(*this, b)); }
Ref<clsMatrix>        clsMatrix::PlusNum       (double b)                        const { return PassedOnAs<clsMatrix>(Arith<clsMatrix, PlusRule>(*this, b)); }
Ref<clsComplexMatrix> clsMatrix::PlusComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::PlusMC        (const clsMatrixComplex& b)       const { return PlusC(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::PlusRArray    (const Array<double>& b)          const { return PlusR(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::PlusLArray    (const Array<std::int32_t>& b)    const { return PlusL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsMatrix::PlusCArray    (const Array<Ref<clsComplex>>& b) const { return PlusC(*Wrapped(b)); }
Variant               clsMatrix::Plus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrix::PlusComplexNum, &clsMatrix::PlusR, &clsMatrix::PlusL, &clsMatrix::PlusC, &clsMatrix::PlusMC, &clsMatrix::PlusLArray, &clsMatrix::PlusRArray, &clsMatrix::PlusCArray, &clsMatrix::PlusNum); }

Ref<clsComplexMatrix> clsMatrix::MinusC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::MinusR         (const clsMatrix& b)              const { return Arith<clsMatrix, MinusRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::MinusL         (const clsLong& b)                const { return Arith<clsMatrix, MinusRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::MinusNum       (double b)                        const { return Arith<clsMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::MinusComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::MinusMC        (const clsMatrixComplex& b)       const { return MinusC(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::MinusRArray    (const Array<double>& b)          const { return MinusR(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::MinusLArray    (const Array<std::int32_t>& b)    const { return MinusL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsMatrix::MinusCArray    (const Array<Ref<clsComplex>>& b) const { return MinusC(*Wrapped(b)); }
Variant               clsMatrix::Minus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrix::MinusComplexNum, &clsMatrix::MinusR, &clsMatrix::MinusL, &clsMatrix::MinusC, &clsMatrix::MinusMC, &clsMatrix::MinusLArray, &clsMatrix::MinusRArray, &clsMatrix::MinusCArray, &clsMatrix::MinusNum); }

Ref<clsComplexMatrix> clsMatrix::RdivideC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::RdivideR         (const clsMatrix& b)              const { return Arith<clsMatrix, RdivideRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::RdivideL         (const clsLong& b)                const { return Arith<clsMatrix, RdivideRule>(*this, b); }
Ref<clsMatrix>        clsMatrix::RdivideNum       (double b)                        const { return Arith<clsMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::RdivideComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsMatrix::RdivideMC        (const clsMatrixComplex& b)       const { return RdivideC(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::RdivideRArray    (const Array<double>& b)          const { return RdivideR(*Wrapped(b)); }
Ref<clsMatrix>        clsMatrix::RdivideLArray    (const Array<std::int32_t>& b)    const { return RdivideL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsMatrix::RdivideCArray    (const Array<Ref<clsComplex>>& b) const { return RdivideC(*Wrapped(b)); }
Variant               clsMatrix::Rdivide          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrix::RdivideComplexNum, &clsMatrix::RdivideR, &clsMatrix::RdivideL, &clsMatrix::RdivideC, &clsMatrix::RdivideMC, &clsMatrix::RdivideLArray, &clsMatrix::RdivideRArray, &clsMatrix::RdivideCArray, &clsMatrix::RdivideNum); }
// clang-format on

} // namespace lumora
