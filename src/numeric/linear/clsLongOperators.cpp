#include "numeric/clsLong.h"

#include "numeric/elementwise/Arithmetic.h"
#include "numeric/linear/Dispatch.h"
#include "numeric/linear/Product.h"

namespace lumora {

// Result class, operand, rule: a line a member. PassedOnAs marks the members that stop.
// clang-format off
Ref<clsLong>          clsLong::MtimesL         (const clsLong& b)                const { return Product<clsLong>(*this, b); }
Ref<clsMatrix>        clsLong::MtimesR         (const clsMatrix& b)              const { return Product<clsMatrix>(*this, b); }
Ref<clsComplexMatrix> clsLong::MtimesC         (const clsComplexMatrix& b)       const { return Product<clsComplexMatrix>(*this, b); }
Ref<clsComplexMatrix> clsLong::MtimesMC        (const clsMatrixComplex& b)       const { return MtimesC(*Wrapped(b)); }
Ref<clsLong>          clsLong::MtimesLongNum   (std::int32_t b)                  const { return Arith<clsLong, TimesRule>(*this, b); }
Ref<clsMatrix>        clsLong::MtimesNum       (double b)                        const { return Arith<clsMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsLong::MtimesComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsLong::MtimesCArray    (const Array<Ref<clsComplex>>& b) const { return MtimesC(*Wrapped(b)); }
Ref<clsMatrix>        clsLong::MtimesRArray    (const Array<double>& b)          const { return MtimesR(*Wrapped(b)); }
Ref<clsLong>          clsLong::MtimesLArray    (const Array<std::int32_t>& b)    const { return MtimesL(*Wrapped(b)); }
Variant               clsLong::MTimes          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsLong::MtimesComplexNum, &clsLong::MtimesR, &clsLong::MtimesL, &clsLong::MtimesC, &clsLong::MtimesMC, &clsLong::MtimesLArray, &clsLong::MtimesRArray, &clsLong::MtimesCArray, &clsLong::MtimesNum); }

Ref<clsComplexMatrix> clsLong::TimesC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsMatrix>        clsLong::TimesR         (const clsMatrix& b)              const { return Arith<clsMatrix, TimesRule>(*this, b); }
Ref<clsLong>          clsLong::TimesL         (const clsLong& b)                const { return Arith<clsLong, TimesRule>(*this, b); }
Ref<clsMatrix>        clsLong::TimesNum       (double b)                        const { return Arith<clsMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsLong::TimesComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsLong::TimesMC        (const clsMatrixComplex& b)       const { return TimesC(*Wrapped(b)); }
Ref<clsMatrix>        clsLong::TimesRArray    (const Array<double>& b)          const { return TimesR(*Wrapped(b)); }
Ref<clsMatrix>        clsLong::TimesLArray    (const Array<std::int32_t>& b)    const { return PassedOnAs<clsMatrix>(TimesL(*Wrapped(b))); }
Ref<clsComplexMatrix> clsLong::TimesCArray    (const Array<Ref<clsComplex>>& b) const { return TimesC(*Wrapped(b)); }
Variant               clsLong::Times          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsLong::TimesComplexNum, &clsLong::TimesR, &clsLong::TimesL, &clsLong::TimesC, &clsLong::TimesMC, &clsLong::TimesLArray, &clsLong::TimesRArray, &clsLong::TimesCArray, &clsLong::TimesNum); }

Ref<clsComplexMatrix> clsLong::PlusC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsMatrix>        clsLong::PlusR         (const clsMatrix& b)              const { return Arith<clsMatrix, PlusRule>(*this, b); }
Ref<clsLong>          clsLong::PlusL         (const clsLong& b)                const { return Arith<clsLong, PlusRule>(*this, b); }
Ref<clsMatrix>        clsLong::PlusNum       (double b)                        const { return PassedOnAs<clsMatrix>(Arith<clsMatrix, PlusRule>(*this, b)); }
Ref<clsComplexMatrix> clsLong::PlusComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsLong::PlusMC        (const clsMatrixComplex& b)       const { return PlusC(*Wrapped(b)); }
Ref<clsMatrix>        clsLong::PlusRArray    (const Array<double>& b)          const { return PlusR(*Wrapped(b)); }
Ref<clsLong>          clsLong::PlusLArray    (const Array<std::int32_t>& b)    const { return PlusL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsLong::PlusCArray    (const Array<Ref<clsComplex>>& b) const { return PlusC(*Wrapped(b)); }
Variant               clsLong::Plus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsLong::PlusComplexNum, &clsLong::PlusR, &clsLong::PlusL, &clsLong::PlusC, &clsLong::PlusMC, &clsLong::PlusLArray, &clsLong::PlusRArray, &clsLong::PlusCArray, &clsLong::PlusNum); }

Ref<clsComplexMatrix> clsLong::MinusC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsMatrix>        clsLong::MinusR         (const clsMatrix& b)              const { return Arith<clsMatrix, MinusRule>(*this, b); }
Ref<clsLong>          clsLong::MinusL         (const clsLong& b)                const { return Arith<clsLong, MinusRule>(*this, b); }
Ref<clsMatrix>        clsLong::MinusNum       (double b)                        const { return Arith<clsMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsLong::MinusComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsLong::MinusMC        (const clsMatrixComplex& b)       const { return MinusC(*Wrapped(b)); }
Ref<clsMatrix>        clsLong::MinusRArray    (const Array<double>& b)          const { return MinusR(*Wrapped(b)); }
Ref<clsLong>          clsLong::MinusLArray    (const Array<std::int32_t>& b)    const { return MinusL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsLong::MinusCArray    (const Array<Ref<clsComplex>>& b) const { return MinusC(*Wrapped(b)); }
Variant               clsLong::Minus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsLong::MinusComplexNum, &clsLong::MinusR, &clsLong::MinusL, &clsLong::MinusC, &clsLong::MinusMC, &clsLong::MinusLArray, &clsLong::MinusRArray, &clsLong::MinusCArray, &clsLong::MinusNum); }

Ref<clsComplexMatrix> clsLong::RdivideC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsMatrix>        clsLong::RdivideR         (const clsMatrix& b)              const { return Arith<clsMatrix, RdivideRule>(*this, b); }
Ref<clsMatrix>        clsLong::RdivideL         (const clsLong& b)                const { return Arith<clsMatrix, RdivideRule>(*this, b); }
Ref<clsMatrix>        clsLong::RdivideNum       (double b)                        const { return Arith<clsMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsLong::RdivideComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsLong::RdivideMC        (const clsMatrixComplex& b)       const { return RdivideC(*Wrapped(b)); }
Ref<clsMatrix>        clsLong::RdivideRArray    (const Array<double>& b)          const { return RdivideR(*Wrapped(b)); }
Ref<clsMatrix>        clsLong::RdivideLArray    (const Array<std::int32_t>& b)    const { return RdivideL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsLong::RdivideCArray    (const Array<Ref<clsComplex>>& b) const { return RdivideC(*Wrapped(b)); }
Variant               clsLong::Rdivide          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsLong::RdivideComplexNum, &clsLong::RdivideR, &clsLong::RdivideL, &clsLong::RdivideC, &clsLong::RdivideMC, &clsLong::RdivideLArray, &clsLong::RdivideRArray, &clsLong::RdivideCArray, &clsLong::RdivideNum); }
// clang-format on

} // namespace lumora
