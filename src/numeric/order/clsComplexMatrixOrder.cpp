#include "numeric/clsComplexMatrix.h"

#include "numeric/order/Extremes.h"
#include "numeric/order/Pairwise.h"
#include "numeric/order/Quantifiers.h"

// Order statistics by the complex rule: result, member, what it does.

namespace lumora {

// clang-format off
Ref<clsComplex>       clsComplexMatrix::Min             (double Tolerance)                            const { return AsObject(FirstExtreme(SheetOf(*this), SmallerComplex{Tolerance}).value); }
Ref<clsComplex>       clsComplexMatrix::Max             (double Tolerance)                            const { return AsObject(FirstExtreme(SheetOf(*this), LargerComplex{Tolerance}).value); }
Ref<clsComplexMatrix> clsComplexMatrix::Minmax          (double Tolerance)                            const { return MinmaxRow<clsComplexMatrix>(FirstExtreme(SheetOf(*this), SmallerComplex{Tolerance}), FirstExtreme(SheetOf(*this), LargerComplex{Tolerance})); }
Variant               clsComplexMatrix::MinDim          (const Variant& dimention, double Tolerance)  const { return ComplexExtremesAlong(*this, dimention, SmallerComplex{Tolerance}); }
Variant               clsComplexMatrix::MaxDim          (const Variant& dimention, double Tolerance)  const { return ComplexExtremesAlong(*this, dimention, LargerComplex{Tolerance}); }
Ref<clsLong>          clsComplexMatrix::MinIndex        (const Variant& dimention, double Tolerance)  const { return PlacesAlong(*this, dimention, SmallerComplex{Tolerance}); }
Ref<clsLong>          clsComplexMatrix::MaxIndex        (const Variant& dimention, double Tolerance)  const { return PlacesAlong(*this, dimention, LargerComplex{Tolerance}); }

Ref<clsComplexMatrix> clsComplexMatrix::MinCC           (const clsComplexMatrix& a, double Tolerance) const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(a), SmallerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MaxCC           (const clsComplexMatrix& a, double Tolerance) const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(a), LargerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MinCD           (const clsMatrix& a, double Tolerance)        const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(a), SmallerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MaxCD           (const clsMatrix& a, double Tolerance)        const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(a), LargerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MinCL           (const clsLong& a, double Tolerance)          const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(a), SmallerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MaxCL           (const clsLong& a, double Tolerance)          const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(a), LargerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MinNum          (double x, double Tolerance)                  const { return Pairwise<clsComplexMatrix>(SheetOf(*this), Single{x}, SmallerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MaxNum          (double x, double Tolerance)                  const { return Pairwise<clsComplexMatrix>(SheetOf(*this), Single{x}, LargerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MinComplex      (const clsComplex& z, double Tolerance)       const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(z), SmallerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MaxComplex      (const clsComplex& z, double Tolerance)       const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(z), LargerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MinMatrixComplex(const clsMatrixComplex& a, double Tolerance) const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(a), SmallerComplex{Tolerance}); }
Ref<clsComplexMatrix> clsComplexMatrix::MaxMatrixComplex(const clsMatrixComplex& a, double Tolerance) const { return Pairwise<clsComplexMatrix>(SheetOf(*this), SheetOf(a), LargerComplex{Tolerance}); }

Ref<clsLong>          clsComplexMatrix::All             (const Variant& dimention)                    const { return AskedAlong(*this, dimention, Quantifier::All); }
Ref<clsLong>          clsComplexMatrix::AnyObj          (const Variant& dimention)                    const { return AskedAlong(*this, dimention, Quantifier::Any); }
bool                  clsComplexMatrix::AllAll          ()                                            const { return Asked(*this, Quantifier::All); }
bool                  clsComplexMatrix::AnyAny          ()                                            const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
