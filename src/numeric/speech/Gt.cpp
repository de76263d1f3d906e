#include "base/Messages.h"
#include "numeric/Draft.h"
#include "numeric/NumericMessages.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/Sheets.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace lumora {

namespace {

/// `other` has the sizes of x or serves all of its elements.
template <class S> Ref<clsLong> GreaterThan(const Sheet<double>& x, const S& other)
{
    Draft<clsLong> result({x.rows, x.columns});
    for (std::size_t k = 0; k < x.Size(); ++k)
        result.Put(k, std::int32_t{x[k] > other[k]});
    return result.Take();
}

template <class T> Ref<clsLong> GreaterThanEach(const Sheet<double>& x, const Sheet<T>& other)
{
    if (x.rows == other.rows && x.columns == other.columns) return GreaterThan(x, other);
    ShowPlainMessage(kDimensionsMustAgree);
    return {};
}

Sheet<double> RealSheetOf(const clsComplexMatrix& m)
{
    const ComplexSheet sheet = SheetOf(m);
    return {sheet.rows, sheet.columns, sheet.re};
}

/// No class sets this tag; it marks a matrix of element objects to be compared by real parts.
constexpr const char* kComparableTag = "cm";

} // namespace

Ref<clsLong> clsMatrix::Gt(const Variant& a) const
{
    const Sheet<double> x = SheetOf(*this);
    if (IsNumeric(a)) return GreaterThan(x, Single{a.Number()});
    const std::string* const tag = TagOf(a);
    if (!tag) return {};
    if (*tag == kTag<clsComplex>) return GreaterThan(x, Single{ObjectOf<clsComplex>(a).Real});
    if (*tag == kTag<clsMatrix>) return GreaterThanEach(x, SheetOf(ObjectOf<clsMatrix>(a)));
    if (*tag == kTag<clsLong>) return GreaterThanEach(x, SheetOf(ObjectOf<clsLong>(a)));
    if (*tag == kTag<clsComplexMatrix>)
        return GreaterThanEach(x, RealSheetOf(ObjectOf<clsComplexMatrix>(a)));
    if (*tag == kComparableTag) {
        const auto& objects = ObjectOf<clsMatrixComplex>(a);
        const Ref<clsMatrix> parts = Wrapped(RealParts(objects.Elements()));
        return GreaterThanEach(x, SheetOf(*parts));
    }
    return {};
}

} // namespace lumora
