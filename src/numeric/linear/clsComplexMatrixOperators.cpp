#include "numeric/clsComplexMatrix.h"

#include "numeric/elementwise/Arithmetic.h"
#include "numeric/linear/Dispatch.h"
#include "numeric/linear/Product.h"

namespace lumora {

// Result class, operand, rule: a line a member. Every result is complex.
// clang-format off
Ref<clsComplexMatrix> clsComplexMatrix::MtimesC         (const clsComplexMatrix& b)       const { return Product<clsComplexMatrix>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::MtimesR         (const clsMatrix& b)              const { return Product<clsComplexMatrix>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::MtimesL         (const clsLong& b)                const { return Product<clsComplexMatrix>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::MtimesMC        (const clsMatrixComplex& b)       const { return MtimesC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::MtimesCArray    (const Array<Ref<clsComplex>>& b) const { return MtimesC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::MtimesRArray    (const Array<double>& b)          const { return MtimesR(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::MtimesLArray    (const Array<std::int32_t>& b)    const { return MtimesL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::MtimesNum       (double b)                        const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::MtimesComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Variant               clsComplexMatrix::MTimes          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplexMatrix::MtimesComplexNum, &clsComplexMatrix::MtimesR, &clsComplexMatrix::MtimesL, &clsComplexMatrix::MtimesC, &clsComplexMatrix::MtimesMC, &clsComplexMatrix::MtimesLArray, &clsComplexMatrix::MtimesRArray, &clsComplexMatrix::MtimesCArray, &clsComplexMatrix::MtimesNum); }

Ref<clsComplexMatrix> clsComplexMatrix::TimesC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::TimesR         (const clsMatrix& b)              const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::TimesL         (const clsLong& b)                const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::TimesNum       (double b)                        const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::TimesComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, TimesRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::TimesMC        (const clsMatrixComplex& b)       const { return TimesC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::TimesRArray    (const Array<double>& b)          const { return TimesR(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::TimesLArray    (const Array<std::int32_t>& b)    const { return TimesL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::TimesCArray    (const Array<Ref<clsComplex>>& b) const { return TimesC(*Wrapped(b)); }
Variant               clsComplexMatrix::Times          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplexMatrix::TimesComplexNum, &clsComplexMatrix::TimesR, &clsComplexMatrix::TimesL, &clsComplexMatrix::TimesC, &clsComplexMatrix::TimesMC, &clsComplexMatrix::TimesLArray, &clsComplexMatrix::TimesRArray, &clsComplexMatrix::TimesCArray, &clsComplexMatrix::TimesNum); }

Ref<clsComplexMatrix> clsComplexMatrix::PlusC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::PlusR         (const clsMatrix& b)              const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::PlusL         (const clsLong& b)                const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::PlusNum       (double b)                        const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::PlusComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, PlusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::PlusMC        (const clsMatrixComplex& b)       const { return PlusC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::PlusRArray    (const Array<double>& b)          const { return PlusR(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::PlusLArray    (const Array<std::int32_t>& b)    const { return PlusL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::PlusCArray    (const Array<Ref<clsComplex>>& b) const { return PlusC(*Wrapped(b)); }
Variant               clsComplexMatrix::Plus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplexMatrix::PlusComplexNum, &clsComplexMatrix::PlusR, &clsComplexMatrix::PlusL, &clsComplexMatrix::PlusC, &clsComplexMatrix::PlusMC, &clsComplexMatrix::PlusLArray, &clsComplexMatrix::PlusRArray, &clsComplexMatrix::PlusCArray, &clsComplexMatrix::PlusNum); }

Ref<clsComplexMatrix> clsComplexMatrix::MinusC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::MinusR         (const clsMatrix& b)              const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::MinusL         (const clsLong& b)                const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::MinusNum       (double b)                        const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::MinusComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, MinusRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::MinusMC        (const clsMatrixComplex& b)       const { return MinusC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::MinusRArray    (const Array<double>& b)          const { return MinusR(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::MinusLArray    (const Array<std::int32_t>& b)    const { return MinusL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::MinusCArray    (const Array<Ref<clsComplex>>& b) const { return MinusC(*Wrapped(b)); }
Variant               clsComplexMatrix::Minus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplexMatrix::MinusComplexNum, &clsComplexMatrix::MinusR, &clsComplexMatrix::MinusL, &clsComplexMatrix::MinusC, &clsComplexMatrix::MinusMC, &clsComplexMatrix::MinusLArray, &clsComplexMatrix::MinusRArray, &clsComplexMatrix::MinusCArray, &clsComplexMatrix::MinusNum); }

Ref<clsComplexMatrix> clsComplexMatrix::RdivideC         (const clsComplexMatrix& b)       const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::RdivideR         (const clsMatrix& b)              const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::RdivideL         (const clsLong& b)                const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::RdivideNum       (double b)                        const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::RdivideComplexNum(const clsComplex& b)             const { return Arith<clsComplexMatrix, RdivideRule>(*this, b); }
Ref<clsComplexMatrix> clsComplexMatrix::RdivideMC        (const clsMatrixComplex& b)       const { return RdivideC(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::RdivideRArray    (const Array<double>& b)          const { return RdivideR(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::RdivideLArray    (const Array<std::int32_t>& b)    const { return RdivideL(*Wrapped(b)); }
Ref<clsComplexMatrix> clsComplexMatrix::RdivideCArray    (const Array<Ref<clsComplex>>& b) const { return RdivideC(*Wrapped(b)); }
Variant               clsComplexMatrix::Rdivide          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsComplexMatrix::RdivideComplexNum, &clsComplexMatrix::RdivideR, &clsComplexMatrix::RdivideL, &clsComplexMatrix::RdivideC, &clsComplexMatrix::RdivideMC, &clsComplexMatrix::RdivideLArray, &clsComplexMatrix::RdivideRArray, &clsComplexMatrix::RdivideCArray, &clsComplexMatrix::RdivideNum); }
// clang-format on

} // namespace lumora
