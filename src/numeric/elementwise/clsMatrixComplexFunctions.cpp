#include "numeric/clsMatrixComplex.h"
#include "numeric/elementwise/ComplexFormulas.h"
#include "numeric/elementwise/LogBase.h"

namespace lumora {

// clang-format off
Ref<clsMatrixComplex> clsMatrixComplex::SinM()    const { return MapComplex(*this, formulas::Sin); }
Ref<clsMatrixComplex> clsMatrixComplex::AsinM()   const { return MapComplex(*this, formulas::Asin); }
Ref<clsMatrixComplex> clsMatrixComplex::SinhM()   const { return MapComplex(*this, formulas::Sinh); }
Ref<clsMatrixComplex> clsMatrixComplex::AsinhM()  const { return MapComplex(*this, formulas::Asinh); }
Ref<clsMatrixComplex> clsMatrixComplex::CosM()    const { return MapComplex(*this, formulas::Cos); }
Ref<clsMatrixComplex> clsMatrixComplex::AcosM()   const { return MapComplex(*this, formulas::Acos); }
Ref<clsMatrixComplex> clsMatrixComplex::CoshM()   const { return MapComplex(*this, formulas::Cosh); }
Ref<clsMatrixComplex> clsMatrixComplex::AcoshM()  const { return MapComplex(*this, formulas::Acosh); }
Ref<clsMatrixComplex> clsMatrixComplex::TanM()    const { return MapComplex(*this, formulas::Tan); }
Ref<clsMatrixComplex> clsMatrixComplex::AtanM()   const { return MapComplex(*this, formulas::Atan); }
Ref<clsMatrixComplex> clsMatrixComplex::TanhM()   const { return MapComplex(*this, formulas::Tanh); }
Ref<clsMatrixComplex> clsMatrixComplex::AtanhM()  const { return MapComplex(*this, formulas::Atanh); }
Ref<clsMatrixComplex> clsMatrixComplex::CotM()    const { return MapComplex(*this, formulas::Cot); }
Ref<clsMatrixComplex> clsMatrixComplex::AcotM()   const { return MapComplex(*this, formulas::Acot); }
Ref<clsMatrixComplex> clsMatrixComplex::CothM()   const { return MapComplex(*this, formulas::Coth); }
Ref<clsMatrixComplex> clsMatrixComplex::AcothM()  const { return MapComplex(*this, formulas::Acoth); }
Ref<clsMatrixComplex> clsMatrixComplex::SecM()    const { return MapComplex(*this, formulas::Sec); }
Ref<clsMatrixComplex> clsMatrixComplex::AsecM()   const { return MapComplex(*this, formulas::Asec); }
Ref<clsMatrixComplex> clsMatrixComplex::SechM()   const { return MapComplex(*this, formulas::Sech); }
Ref<clsMatrixComplex> clsMatrixComplex::AsechM()  const { return MapComplex(*this, formulas::Asech); }
Ref<clsMatrixComplex> clsMatrixComplex::CscM()    const { return MapComplex(*this, formulas::Csc); }
Ref<clsMatrixComplex> clsMatrixComplex::AcscM()   const { return MapComplex(*this, formulas::Acsc); }
Ref<clsMatrixComplex> clsMatrixComplex::CschM()   const { return MapComplex(*this, formulas::Csch); }
Ref<clsMatrixComplex> clsMatrixComplex::AcschM()  const { return MapComplex(*this, formulas::Acsch); }
Ref<clsMatrixComplex> clsMatrixComplex::LogM()    const { return MapComplex(*this, formulas::Log); }
Ref<clsMatrixComplex> clsMatrixComplex::Log2M()   const { return MapComplex(*this, formulas::Log2); }
Ref<clsMatrixComplex> clsMatrixComplex::Log10M()  const { return MapComplex(*this, formulas::Log10); }
Ref<clsMatrixComplex> clsMatrixComplex::ExpM()    const { return MapComplex(*this, formulas::Exp); }
Ref<clsMatrixComplex> clsMatrixComplex::SqrM()    const { return MapComplex(*this, formulas::Sqrt); }
Ref<clsMatrix>        clsMatrixComplex::AbsM()    const { return Magnitudes(*this); }
Ref<clsMatrixComplex> clsMatrixComplex::LogBaseM(const Variant& base) const { return ComplexLogBase(*this, base); }
// clang-format on

} // namespace lumora
