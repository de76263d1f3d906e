#include "numeric/clsMatrixComplex.h"

#include "numeric/order/Extremes.h"
#include "numeric/order/Pairwise.h"
#include "numeric/order/Quantifiers.h"

// Order statistics by the complex rule: result, member, what it does.

namespace lumora {

// clang-format off
Ref<clsComplex>       clsMatrixComplex::Min       (double Tolerance)                            const { return AsObject(FirstExtreme(SheetOf(*this), SmallerComplex{Tolerance}).value); }
Ref<clsComplex>       clsMatrixComplex::Max       (double Tolerance)                            const { return AsObject(FirstExtreme(SheetOf(*this), LargerComplex{Tolerance}).value); }
Ref<clsMatrixComplex> clsMatrixComplex::Minmax    (double Tolerance)                            const { return MinmaxRow<clsMatrixComplex>(FirstExtreme(SheetOf(*this), SmallerComplex{Tolerance}), FirstExtreme(SheetOf(*this), LargerComplex{Tolerance})); }
Variant               clsMatrixComplex::MinDim    (const Variant& dimention, double Tolerance)  const { return ComplexExtremesAlong(*this, dimention, SmallerComplex{Tolerance}); }
Variant               clsMatrixComplex::MaxDim    (const Variant& dimention, double Tolerance)  const { return ComplexExtremesAlong(*this, dimention, LargerComplex{Tolerance}); }
Ref<clsLong>          clsMatrixComplex::MinIndex  (const Variant& dimention, double Tolerance)  const { return PlacesAlong(*this, dimention, SmallerComplex{Tolerance}); }
Ref<clsLong>          clsMatrixComplex::MaxIndex  (const Variant& dimention, double Tolerance)  const { return PlacesAlong(*this, dimention, LargerComplex{Tolerance}); }

Ref<clsMatrixComplex> clsMatrixComplex::MinMCMC   (const clsMatrixComplex& a, double Tolerance) const { return Pairwise<clsMatrixComplex>(SheetOf(*this), SheetOf(a), SmallerComplex{Tolerance}); }
Ref<clsMatrixComplex> clsMatrixComplex::MaxMCMC   (const clsMatrixComplex& a, double Tolerance) const { return Pairwise<clsMatrixComplex>(SheetOf(*this), SheetOf(a), LargerComplex{Tolerance}); }
Ref<clsMatrixComplex> clsMatrixComplex::MinMCD    (const clsMatrix& a, double Tolerance)        const { return Pairwise<clsMatrixComplex>(SheetOf(*this), SheetOf(a), SmallerComplex{Tolerance}); }
Ref<clsMatrixComplex> clsMatrixComplex::MaxMCD    (const clsMatrix& a, double Tolerance)        const { return Pairwise<clsMatrixComplex>(SheetOf(*this), SheetOf(a), LargerComplex{Tolerance}); }
Ref<clsMatrixComplex> clsMatrixComplex::MinMCL    (const clsLong& a, double Tolerance)          const { return Pairwise<clsMatrixComplex>(SheetOf(*this), SheetOf(a), SmallerComplex{Tolerance}); }
Ref<clsMatrixComplex> clsMatrixComplex::MaxMCL    (const clsLong& a, double Tolerance)          const { return Pairwise<clsMatrixComplex>(SheetOf(*this), SheetOf(a), LargerComplex{Tolerance}); }
Ref<clsMatrixComplex> clsMatrixComplex::MinComplex(const clsComplex& z, double Tolerance)       const { return Pairwise<clsMatrixComplex>(SheetOf(*this), SheetOf(z), SmallerComplex{Tolerance}); }
Ref<clsMatrixComplex> clsMatrixComplex::MaxComplex(const clsComplex& z, double Tolerance)       const { return Pairwise<clsMatrixComplex>(SheetOf(*this), SheetOf(z), LargerComplex{Tolerance}); }
Ref<clsMatrixComplex> clsMatrixComplex::MinNum    (double x, double Tolerance)                  const { return Pairwise<clsMatrixComplex>(SheetOf(*this), Single{x}, SmallerComplex{Tolerance}); }
Ref<clsMatrixComplex> clsMatrixComplex::MaxNum    (double x, double Tolerance)                  const { return Pairwise<clsMatrixComplex>(SheetOf(*this), Single{x}, LargerComplex{Tolerance}); }

Ref<clsLong>          clsMatrixComplex::All       (const Variant& dimention)                    const { return AskedAlong(*this, dimention, Quantifier::All); }
Ref<clsLong>          clsMatrixComplex::AnyObj    (const Variant& dimention)                    const { return AskedAlong(*this, dimention, Quantifier::Any); }
bool                  clsMatrixComplex::AllAll    ()                                            const { return Asked(*this, Quantifier::All); }
bool                  clsMatrixComplex::AnyAny    ()                                            const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
