#include "numeric/clsComplexMatrix.h"
#include "numeric/elementwise/ComplexFormulas.h"
#include "numeric/elementwise/LogBase.h"

namespace lumora {

// clang-format off
Ref<clsComplexMatrix> clsComplexMatrix::SinM()    const { return MapComplex(*this, formulas::Sin); }
Ref<clsComplexMatrix> clsComplexMatrix::AsinM()   const { return MapComplex(*this, formulas::Asin); }
Ref<clsComplexMatrix> clsComplexMatrix::SinhM()   const { return MapComplex(*this, formulas::Sinh); }
Ref<clsComplexMatrix> clsComplexMatrix::AsinhM()  const { return MapComplex(*this, formulas::Asinh); }
Ref<clsComplexMatrix> clsComplexMatrix::CosM()    const { return MapComplex(*this, formulas::Cos); }
Ref<clsComplexMatrix> clsComplexMatrix::AcosM()   const { return MapComplex(*this, formulas::Acos); }
Ref<clsComplexMatrix> clsComplexMatrix::CoshM()   const { return MapComplex(*this, formulas::Cosh); }
Ref<clsComplexMatrix> clsComplexMatrix::AcoshM()  const { return MapComplex(*this, formulas::Acosh); }
Ref<clsComplexMatrix> clsComplexMatrix::TanM()    const { return MapComplex(*this, formulas::Tan); }
Ref<clsComplexMatrix> clsComplexMatrix::AtanM()   const { return MapComplex(*this, formulas::Atan); }
Ref<clsComplexMatrix> clsComplexMatrix::TanhM()   const { return MapComplex(*this, formulas::Tanh); }
Ref<clsComplexMatrix> clsComplexMatrix::AtanhM()  const { return MapComplex(*this, formulas::Atanh); }
Ref<clsComplexMatrix> clsComplexMatrix::CotM()    const { return MapComplex(*this, formulas::Cot); }
Ref<clsComplexMatrix> clsComplexMatrix::AcotM()   const { return MapComplex(*this, formulas::Acot); }
Ref<clsComplexMatrix> clsComplexMatrix::CothM()   const { return MapComplex(*this, formulas::Coth); }
Ref<clsComplexMatrix> clsComplexMatrix::AcothM()  const { return MapComplex(*this, formulas::Acoth); }
Ref<clsComplexMatrix> clsComplexMatrix::SecM()    const { return MapComplex(*this, formulas::Sec); }
Ref<clsComplexMatrix> clsComplexMatrix::AsecM()   const { return MapComplex(*this, formulas::Asec); }
Ref<clsComplexMatrix> clsComplexMatrix::SechM()   const { return MapComplex(*this, formulas::Sech); }
Ref<clsComplexMatrix> clsComplexMatrix::AsechM()  const { return MapComplex(*this, formulas::Asech); }
Ref<clsComplexMatrix> clsComplexMatrix::CscM()    const { return MapComplex(*this, formulas::Csc); }
Ref<clsComplexMatrix> clsComplexMatrix::AcscM()   const { return MapComplex(*this, formulas::Acsc); }
Ref<clsComplexMatrix> clsComplexMatrix::CschM()   const { return MapComplex(*this, formulas::Csch); }
Ref<clsComplexMatrix> clsComplexMatrix::AcschM()  const { return MapComplex(*this, formulas::Acsch); }
Ref<clsComplexMatrix> clsComplexMatrix::LogM()    const { return MapComplex(*this, formulas::Log); }
Ref<clsComplexMatrix> clsComplexMatrix::Log2M()   const { return MapComplex(*this, formulas::Log2); }
Ref<clsComplexMatrix> clsComplexMatrix::Log10M()  const { return MapComplex(*this, formulas::Log10); }
Ref<clsComplexMatrix> clsComplexMatrix::ExpM()    const { return MapComplex(*this, formulas::Exp); }
Ref<clsComplexMatrix> clsComplexMatrix::SqrM()    const { return MapComplex(*this, formulas::Sqrt); }
Ref<clsMatrix>        clsComplexMatrix::AbsM()    const { return Magnitudes(*this); }
Ref<clsComplexMatrix> clsComplexMatrix::LogBaseM(const Variant& base) const { return ComplexLogBase(*this, base); }
// clang-format on

} // namespace lumora
