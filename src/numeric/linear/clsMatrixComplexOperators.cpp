#include "numeric/clsMatrixComplex.h"

#include "numeric/linear/Dispatch.h"

namespace lumora {

namespace {

/// The result of a computation as element objects; empty stays empty.
Ref<clsMatrixComplex> Objects(const Ref<clsComplexMatrix>& computed)
{
    if (!computed) return {};
    return NewMatrix<clsMatrixComplex>(computed->RealPart(), computed->ImagePart());
}

} // namespace

// No arithmetic of its own: the receiver becomes a clsComplexMatrix, whose member does the work.
// Only the MC members turn the result into element objects again.
// clang-format off
Ref<clsMatrixComplex> clsMatrixComplex::MtimesMC        (const clsMatrixComplex& b)       const { return Objects(Wrapped(*this)->MtimesMC(b)); }
Ref<clsComplexMatrix> clsMatrixComplex::MtimesC         (const clsComplexMatrix& b)       const { return Wrapped(*this)->MtimesC(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MtimesR         (const clsMatrix& b)              const { return Wrapped(*this)->MtimesR(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MtimesL         (const clsLong& b)                const { return Wrapped(*this)->MtimesL(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MtimesNum       (double b)                        const { return Wrapped(*this)->MtimesNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MtimesComplexNum(const clsComplex& b)             const { return Wrapped(*this)->MtimesComplexNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MtimesCArray    (const Array<Ref<clsComplex>>& b) const { return Wrapped(*this)->MtimesCArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MtimesRArray    (const Array<double>& b)          const { return Wrapped(*this)->MtimesRArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MtimesLArray    (const Array<std::int32_t>& b)    const { return Wrapped(*this)->MtimesLArray(b); }
Variant               clsMatrixComplex::MTimes          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrixComplex::MtimesComplexNum, &clsMatrixComplex::MtimesR, &clsMatrixComplex::MtimesL, &clsMatrixComplex::MtimesC, &clsMatrixComplex::MtimesMC, &clsMatrixComplex::MtimesLArray, &clsMatrixComplex::MtimesRArray, &clsMatrixComplex::MtimesCArray, &clsMatrixComplex::MtimesNum); }

Ref<clsMatrixComplex> clsMatrixComplex::TimesMC        (const clsMatrixComplex& b)       const { return Objects(Wrapped(*this)->TimesMC(b)); }
Ref<clsComplexMatrix> clsMatrixComplex::TimesC         (const clsComplexMatrix& b)       const { return Wrapped(*this)->TimesC(b); }
Ref<clsComplexMatrix> clsMatrixComplex::TimesR         (const clsMatrix& b)              const { return Wrapped(*this)->TimesR(b); }
Ref<clsComplexMatrix> clsMatrixComplex::TimesL         (const clsLong& b)                const { return Wrapped(*this)->TimesL(b); }
Ref<clsComplexMatrix> clsMatrixComplex::TimesNum       (double b)                        const { return Wrapped(*this)->TimesNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::TimesComplexNum(const clsComplex& b)             const { return Wrapped(*this)->TimesComplexNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::TimesCArray    (const Array<Ref<clsComplex>>& b) const { return Wrapped(*this)->TimesCArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::TimesRArray    (const Array<double>& b)          const { return Wrapped(*this)->TimesRArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::TimesLArray    (const Array<std::int32_t>& b)    const { return Wrapped(*this)->TimesLArray(b); }
Variant               clsMatrixComplex::Times          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrixComplex::TimesComplexNum, &clsMatrixComplex::TimesR, &clsMatrixComplex::TimesL, &clsMatrixComplex::TimesC, &clsMatrixComplex::TimesMC, &clsMatrixComplex::TimesLArray, &clsMatrixComplex::TimesRArray, &clsMatrixComplex::TimesCArray, &clsMatrixComplex::TimesNum); }

Ref<clsMatrixComplex> clsMatrixComplex::PlusMC        (const clsMatrixComplex& b)       const { return Objects(Wrapped(*this)->PlusMC(b)); }
Ref<clsComplexMatrix> clsMatrixComplex::PlusC         (const clsComplexMatrix& b)       const { return Wrapped(*this)->PlusC(b); }
Ref<clsComplexMatrix> clsMatrixComplex::PlusR         (const clsMatrix& b)              const { return Wrapped(*this)->PlusR(b); }
Ref<clsComplexMatrix> clsMatrixComplex::PlusL         (const clsLong& b)                const { return Wrapped(*this)->PlusL(b); }
Ref<clsComplexMatrix> clsMatrixComplex::PlusNum       (double b)                        const { return Wrapped(*this)->PlusNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::PlusComplexNum(const clsComplex& b)             const { return Wrapped(*this)->PlusComplexNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::PlusCArray    (const Array<Ref<clsComplex>>& b) const { return Wrapped(*this)->PlusCArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::PlusRArray    (const Array<double>& b)          const { return Wrapped(*this)->PlusRArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::PlusLArray    (const Array<std::int32_t>& b)    const { return Wrapped(*this)->PlusLArray(b); }
Variant               clsMatrixComplex::Plus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrixComplex::PlusComplexNum, &clsMatrixComplex::PlusR, &clsMatrixComplex::PlusL, &clsMatrixComplex::PlusC, &clsMatrixComplex::PlusMC, &clsMatrixComplex::PlusLArray, &clsMatrixComplex::PlusRArray, &clsMatrixComplex::PlusCArray, &clsMatrixComplex::PlusNum); }

Ref<clsMatrixComplex> clsMatrixComplex::MinusMC        (const clsMatrixComplex& b)       const { return Objects(Wrapped(*this)->MinusMC(b)); }
Ref<clsComplexMatrix> clsMatrixComplex::MinusC         (const clsComplexMatrix& b)       const { return Wrapped(*this)->MinusC(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MinusR         (const clsMatrix& b)              const { return Wrapped(*this)->MinusR(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MinusL         (const clsLong& b)                const { return Wrapped(*this)->MinusL(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MinusNum       (double b)                        const { return Wrapped(*this)->MinusNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MinusComplexNum(const clsComplex& b)             const { return Wrapped(*this)->MinusComplexNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MinusCArray    (const Array<Ref<clsComplex>>& b) const { return Wrapped(*this)->MinusCArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MinusRArray    (const Array<double>& b)          const { return Wrapped(*this)->MinusRArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::MinusLArray    (const Array<std::int32_t>& b)    const { return Wrapped(*this)->MinusLArray(b); }
Variant               clsMatrixComplex::Minus          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrixComplex::MinusComplexNum, &clsMatrixComplex::MinusR, &clsMatrixComplex::MinusL, &clsMatrixComplex::MinusC, &clsMatrixComplex::MinusMC, &clsMatrixComplex::MinusLArray, &clsMatrixComplex::MinusRArray, &clsMatrixComplex::MinusCArray, &clsMatrixComplex::MinusNum); }

Ref<clsMatrixComplex> clsMatrixComplex::RdivideMC        (const clsMatrixComplex& b)       const { return Objects(Wrapped(*this)->RdivideMC(b)); }
Ref<clsComplexMatrix> clsMatrixComplex::RdivideC         (const clsComplexMatrix& b)       const { return Wrapped(*this)->RdivideC(b); }
Ref<clsComplexMatrix> clsMatrixComplex::RdivideR         (const clsMatrix& b)              const { return Wrapped(*this)->RdivideR(b); }
Ref<clsComplexMatrix> clsMatrixComplex::RdivideL         (const clsLong& b)                const { return Wrapped(*this)->RdivideL(b); }
Ref<clsComplexMatrix> clsMatrixComplex::RdivideNum       (double b)                        const { return Wrapped(*this)->RdivideNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::RdivideComplexNum(const clsComplex& b)             const { return Wrapped(*this)->RdivideComplexNum(b); }
Ref<clsComplexMatrix> clsMatrixComplex::RdivideCArray    (const Array<Ref<clsComplex>>& b) const { return Wrapped(*this)->RdivideCArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::RdivideRArray    (const Array<double>& b)          const { return Wrapped(*this)->RdivideRArray(b); }
Ref<clsComplexMatrix> clsMatrixComplex::RdivideLArray    (const Array<std::int32_t>& b)    const { return Wrapped(*this)->RdivideLArray(b); }
Variant               clsMatrixComplex::Rdivide          (const Variant& Obj) const { return Dispatch(*this, Obj, &clsMatrixComplex::RdivideComplexNum, &clsMatrixComplex::RdivideR, &clsMatrixComplex::RdivideL, &clsMatrixComplex::RdivideC, &clsMatrixComplex::RdivideMC, &clsMatrixComplex::RdivideLArray, &clsMatrixComplex::RdivideRArray, &clsMatrixComplex::RdivideCArray, &clsMatrixComplex::RdivideNum); }
// clang-format on

} // namespace lumora
