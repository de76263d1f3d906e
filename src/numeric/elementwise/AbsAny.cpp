#include "numeric/elementwise/AbsAny.h"

#include "base/Messages.h"
#include "numeric/ElementKinds.h"
#include "numeric/NumericMessages.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"

#include <cmath>
#include <string>

namespace lumora {

namespace {

Variant AbsOfObject(const Variant& x, const std::string& tag)
{
    if (tag == "L") return ObjectOf<clsLong>(x).AbsM();
    if (tag == "r") return ObjectOf<clsMatrix>(x).AbsM();
    if (tag == "c") return ObjectOf<clsComplexMatrix>(x).AbsM();
    if (tag == "mc") return ObjectOf<clsMatrixComplex>(x).AbsM();
    if (tag.empty()) return ObjectOf<clsComplex>(x).AbsM();
    ShowPlainMessage(kIncorrectTypeOfObject);
    return {};
}

Variant AbsOfArray(const Variant& x)
{
    if (IsNumericArray(x)) {
        Array<double> magnitudes = DoubleArray(x);
        for (double& element : magnitudes.Span())
            element = std::abs(element);
        return magnitudes;
    }
    if (IsComplexArray(x))
        return Converted<double>(ComplexArray(x),
                                 [](const Ref<clsComplex>& z) { return z->AbsM(); });
    ShowPlainMessage(kIncorrectArray);
    return {};
}

} // namespace

Variant AbsAny(const Variant& x)
{
    if (const std::string* tag = TagOf(x)) return AbsOfObject(x, *tag);
    if (x.IsArray()) return AbsOfArray(x);
    if (IsNumeric(x)) return std::abs(x.Number());
    ShowPlainMessage(kIncorrectType);
    return {};
}

} // namespace lumora
