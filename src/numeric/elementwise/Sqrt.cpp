#include "numeric/elementwise/Sqrt.h"

#include "numeric/NumericMessages.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/Sentinel.h"
#include "numeric/elementwise/Mapping.h"

#include <cmath>
#include <string>

namespace lumora {

namespace {

template <class M> Variant RootOf(const Variant& object)
{
    return MapComplex(ObjectOf<M>(object), formulas::SqrtByParts);
}

Variant RootOf(double x)
{
    if (x < 0.0) return MakeRef<clsComplex>(0.0, std::sqrt(-x));
    return std::sqrt(x);
}

} // namespace

Variant Sqrt(const Variant& x)
{
    if (const std::string* tag = TagOf(x)) {
        if (tag->empty()) return RootOf<clsComplex>(x);
        if (*tag == "r") return ObjectOf<clsMatrix>(x).SqrM();
        if (*tag == "c") return RootOf<clsComplexMatrix>(x);
        if (*tag == "mc") return RootOf<clsMatrixComplex>(x);
    } else if (IsNumeric(x)) {
        return RootOf(x.Number());
    }
    return OrEmpty(TitledFailure(kErrorUsingSqrt, kTypeNotOption, kShortTitledRule));
}

} // namespace lumora
