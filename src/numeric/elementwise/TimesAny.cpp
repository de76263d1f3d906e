#include "numeric/elementwise/TimesAny.h"

#include "base/Messages.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/elementwise/Arithmetic.h"

namespace lumora {

namespace {

Variant TimesOfObject(const std::string& tag, const Variant& a, const Variant& b)
{
    if (tag == "L") return ObjectOf<clsLong>(a).Times(b);
    if (tag == "r") return ObjectOf<clsMatrix>(a).Times(b);
    if (tag == "c") return ObjectOf<clsComplexMatrix>(a).Times(b);
    if (tag == "mc") return ObjectOf<clsMatrixComplex>(a).Times(b);
    if (tag.empty()) return ObjectOf<clsComplex>(a).Times(b);
    ShowPlainMessage(kIncorrectTypeOfObject);
    return {};
}

Variant TimesOfArray(const Variant& a, const Variant& b)
{
    if (IsIntegerArray(a)) return Wrapped(LongArray(a))->Times(b);
    if (IsNumericArray(a)) return Wrapped(DoubleArray(a))->Times(b);
    if (IsComplexArray(a)) return Wrapped(ComplexArray(a))->Times(b);
    return {};
}

double TimesOfNumbers(double a, double b)
{
    const double product = a * b;
    if (!Finite(product) && Finite(a) && Finite(b)) Raise(ErrorNumber::Overflow);
    return product;
}

} // namespace

Variant TimesAny(const Variant& a, const Variant& b)
{
    if (const std::string* tag = TagOf(a)) return TimesOfObject(*tag, a, b);
    if (a.IsArray()) return TimesOfArray(a, b);
    if (!IsNumeric(a)) return {};
    if (const std::string* tag = TagOf(b)) return TimesOfObject(*tag, b, a);
    if (b.IsArray()) return TimesOfArray(b, a);
    if (IsNumeric(b)) return TimesOfNumbers(a.Number(), b.Number());
    ShowPlainMessage(kIncorrectType);
    return {};
}

} // namespace lumora
