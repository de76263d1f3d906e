#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/elementwise/LogBase.h"
#include "numeric/elementwise/RealFunctions.h"

namespace lumora {

using namespace elementary;

// clang-format off
Ref<clsMatrix> clsLong::SinM()    const { return MapReal<Sin>(*this); }
Variant        clsLong::AsinM()   const { return MapOrPromote<Asin>(*this); }
Ref<clsMatrix> clsLong::SinhM()   const { return MapReal<Sinh>(*this); }
Ref<clsMatrix> clsLong::AsinhM()  const { return MapReal<Asinh>(*this); }
Ref<clsMatrix> clsLong::CosM()    const { return MapReal<Cos>(*this); }
Variant        clsLong::AcosM()   const { return MapOrPromote<Acos>(*this); }
Ref<clsMatrix> clsLong::CoshM()   const { return MapReal<Cosh>(*this); }
Variant        clsLong::AcoshM()  const { return MapOrPromote<Acosh>(*this); }
Ref<clsMatrix> clsLong::TanM()    const { return MapReal<Tan>(*this); }
Ref<clsMatrix> clsLong::AtanM()   const { return MapReal<Atan>(*this); }
Ref<clsMatrix> clsLong::TanhM()   const { return MapReal<Tanh>(*this); }
Variant        clsLong::AtanhM()  const { return MapOrPromote<Atanh>(*this); }
Ref<clsMatrix> clsLong::CotM()    const { return MapReal<Cot>(*this); }
Ref<clsMatrix> clsLong::AcotM()   const { return MapReal<Acot>(*this); }
Ref<clsMatrix> clsLong::CothM()   const { return MapReal<Coth>(*this); }
Variant        clsLong::AcothM()  const { return MapOrPromote<Acoth>(*this); }
Ref<clsMatrix> clsLong::SecM()    const { return MapReal<Sec>(*this); }
Variant        clsLong::AsecM()   const { return MapOrPromote<Asec>(*this); }
Ref<clsMatrix> clsLong::SechM()   const { return MapReal<Sech>(*this); }
Variant        clsLong::AsechM()  const { return MapOrPromote<Asech>(*this); }
Ref<clsMatrix> clsLong::CscM()    const { return MapReal<Csc>(*this); }
Variant        clsLong::AcscM()   const { return MapOrPromote<Acsc>(*this); }
Ref<clsMatrix> clsLong::CschM()   const { return MapReal<Csch>(*this); }
Ref<clsMatrix> clsLong::AcschM()  const { return MapReal<Acsch>(*this); }
Ref<clsMatrix> clsLong::ExpM()    const { return MapReal<Exp>(*this); }
Variant        clsLong::LogM()    const { return MapOrPromote<Log>(*this); }
Variant        clsLong::Log2M()   const { return MapOrPromote<Log2>(*this); }
Variant        clsLong::Log10M()  const { return MapOrPromote<Log10>(*this); }
Variant        clsLong::SqrM()    const { return MapOrPromote<Sqr>(*this); }
Ref<clsMatrix> clsLong::AbsM()    const { return MapReal<Abs>(*this); }
Variant        clsLong::LogBaseM(const Variant& base) const { return RealLogBase(*this, base); }
// clang-format on

} // namespace lumora
