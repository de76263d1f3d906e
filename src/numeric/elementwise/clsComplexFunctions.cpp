#include "numeric/Computed.h"
#include "numeric/clsComplex.h"
#include "numeric/elementwise/ComplexFormulas.h"
#include "numeric/elementwise/LogBase.h"
#include "numeric/elementwise/Mapping.h"
#include "numeric/elementwise/RealFunctions.h"

namespace lumora {

using elementary::CheckedExp;

// clang-format off
Ref<clsComplex> clsComplex::SinM()    const { return MapComplex(*this, formulas::Sin); }
Ref<clsComplex> clsComplex::AsinM()   const { return MapComplex(*this, formulas::Asin); }
Ref<clsComplex> clsComplex::SinhM()   const { return MapComplex(*this, formulas::Sinh); }
Ref<clsComplex> clsComplex::AsinhM()  const { return MapComplex(*this, formulas::Asinh); }
Ref<clsComplex> clsComplex::CosM()    const { return MapComplex(*this, formulas::Cos); }
Ref<clsComplex> clsComplex::AcosM()   const { return MapComplex(*this, formulas::Acos); }
Ref<clsComplex> clsComplex::CoshM()   const { return MapComplex(*this, formulas::Cosh); }
Ref<clsComplex> clsComplex::AcoshM()  const { return MapComplex(*this, formulas::Acosh); }
Ref<clsComplex> clsComplex::TanM()    const { return MapComplex(*this, formulas::Tan); }
Ref<clsComplex> clsComplex::AtanM()   const { return MapComplex(*this, formulas::Atan); }
Ref<clsComplex> clsComplex::TanhM()   const { return MapComplex(*this, formulas::Tanh); }
Ref<clsComplex> clsComplex::AtanhM()  const { return MapComplex(*this, formulas::Atanh); }
Ref<clsComplex> clsComplex::CotM()    const { return MapComplex(*this, formulas::Cot); }
Ref<clsComplex> clsComplex::AcotM()   const { return MapComplex(*this, formulas::Acot); }
Ref<clsComplex> clsComplex::CothM()   const { return MapComplex(*this, formulas::Coth); }
Ref<clsComplex> clsComplex::AcothM()  const { return MapComplex(*this, formulas::Acoth); }
Ref<clsComplex> clsComplex::SecM()    const { return MapComplex(*this, formulas::Sec); }
Ref<clsComplex> clsComplex::AsecM()   const { return MapComplex(*this, formulas::Asec); }
Ref<clsComplex> clsComplex::SechM()   const { return MapComplex(*this, formulas::Sech); }
Ref<clsComplex> clsComplex::AsechM()  const { return MapComplex(*this, formulas::Asech); }
Ref<clsComplex> clsComplex::CscM()    const { return MapComplex(*this, formulas::Csc); }
Ref<clsComplex> clsComplex::AcscM()   const { return MapComplex(*this, formulas::Acsc); }
Ref<clsComplex> clsComplex::CschM()   const { return MapComplex(*this, formulas::Csch); }
Ref<clsComplex> clsComplex::AcschM()  const { return MapComplex(*this, formulas::Acsch); }
Ref<clsComplex> clsComplex::LogM()    const { return MapComplex(*this, formulas::Log); }
Ref<clsComplex> clsComplex::Log2M()   const { return MapComplex(*this, formulas::Log2); }
Ref<clsComplex> clsComplex::Log10M()  const { return MapComplex(*this, formulas::Log10); }
Ref<clsComplex> clsComplex::ExpM()    const { return MapComplex(*this, formulas::Exp); }
Ref<clsComplex> clsComplex::SqrM()    const { return MapComplex(*this, formulas::Sqrt); }
Ref<clsComplex> clsComplex::LogBaseM(const Variant& base)  const { return ComplexLogBase(*this, base); }
double          clsComplex::AbsM()       const { return Computed(formulas::Magnitude({Real, Image}), Real, Image); }
Ref<clsComplex> clsComplex::Conj()       const { return MakeRef<clsComplex>(Real, -Image); }
Ref<clsComplex> clsComplex::CTranspose() const { return Conj(); }
Ref<clsComplex> clsComplex::Transpose()  const { return CopyObject(); }

double          clsComplex::Hcos(double x) const { return (CheckedExp(x) + CheckedExp(-x)) / 2.0; }
double          clsComplex::Hsin(double x) const { return (CheckedExp(x) - CheckedExp(-x)) / 2.0; }
Ref<clsComplex> clsComplex::Mul_z(const clsComplex& w)   const { return MtimesComplexNum(w); }
Ref<clsComplex> clsComplex::Plus_z(const clsComplex& w)  const { return PlusComplexNum(w); }
Ref<clsComplex> clsComplex::Minus_z(const clsComplex& w) const { return MinusComplexNum(w); }
double          clsComplex::Atan2_z() const { return Atan2(Image, Real); }
Ref<clsComplex> clsComplex::Sqrt_z()  const { return SqrM(); }
double          clsComplex::Angle_z() const { return 0.0; }
// clang-format on

} // namespace lumora
