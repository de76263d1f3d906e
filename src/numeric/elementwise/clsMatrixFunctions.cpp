#include "numeric/clsMatrix.h"
#include "numeric/elementwise/LogBase.h"
#include "numeric/elementwise/RealFunctions.h"

namespace lumora {

using namespace elementary;

// clang-format off
Ref<clsMatrix> clsMatrix::SinM()    const { return MapReal<Sin>(*this); }
Variant        clsMatrix::AsinM()   const { return MapOrPromote<Asin>(*this); }
Ref<clsMatrix> clsMatrix::SinhM()   const { return MapReal<Sinh>(*this); }
Ref<clsMatrix> clsMatrix::AsinhM()  const { return MapReal<Asinh>(*this); }
Ref<clsMatrix> clsMatrix::CosM()    const { return MapReal<Cos>(*this); }
Variant        clsMatrix::AcosM()   const { return MapOrPromote<Acos>(*this); }
Ref<clsMatrix> clsMatrix::CoshM()   const { return MapReal<Cosh>(*this); }
Variant        clsMatrix::AcoshM()  const { return MapOrPromote<Acosh>(*this); }
Ref<clsMatrix> clsMatrix::TanM()    const { return MapReal<Tan>(*this); }
Ref<clsMatrix> clsMatrix::AtanM()   const { return MapReal<Atan>(*this); }
Ref<clsMatrix> clsMatrix::TanhM()   const { return MapReal<Tanh>(*this); }
Variant        clsMatrix::AtanhM()  const { return MapOrPromote<Atanh>(*this); }
Ref<clsMatrix> clsMatrix::CotM()    const { return MapReal<Cot>(*this); }
Ref<clsMatrix> clsMatrix::AcotM()   const { return MapReal<Acot>(*this); }
Ref<clsMatrix> clsMatrix::CothM()   const { return MapReal<Coth>(*this); }
Variant        clsMatrix::AcothM()  const { return MapOrPromote<Acoth>(*this); }
Ref<clsMatrix> clsMatrix::SecM()    const { return MapReal<Sec>(*this); }
Variant        clsMatrix::AsecM()   const { return MapOrPromote<Asec>(*this); }
Ref<clsMatrix> clsMatrix::SechM()   const { return MapReal<Sech>(*this); }
Variant        clsMatrix::AsechM()  const { return MapOrPromote<Asech>(*this); }
Ref<clsMatrix> clsMatrix::CscM()    const { return MapReal<Csc>(*this); }
Variant        clsMatrix::AcscM()   const { return MapOrPromote<Acsc>(*this); }
Ref<clsMatrix> clsMatrix::CschM()   const { return MapReal<Csch>(*this); }
Ref<clsMatrix> clsMatrix::AcschM()  const { return MapReal<Acsch>(*this); }
Ref<clsMatrix> clsMatrix::ExpM()    const { return MapReal<Exp>(*this); }
Variant        clsMatrix::LogM()    const { return MapOrPromote<Log>(*this); }
Variant        clsMatrix::Log2M()   const { return MapOrPromote<Log2>(*this); }
Variant        clsMatrix::Log10M()  const { return MapOrPromote<Log10>(*this); }
Variant        clsMatrix::SqrM()    const { return MapOrPromote<Sqr>(*this); }
Ref<clsMatrix> clsMatrix::AbsM()    const { return MapReal<Abs>(*this); }
Variant        clsMatrix::LogBaseM(const Variant& base) const { return RealLogBase(*this, base); }
// clang-format on

} // namespace lumora
