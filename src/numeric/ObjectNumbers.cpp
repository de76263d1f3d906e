#include "numeric/ObjectNumbers.h"

#include "numeric/ElementKinds.h"
#include "numeric/Sheets.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"

namespace lumora {

std::optional<Sizes> SizesOfObject(const Variant& object)
{
    return object.Visit([]<class T>(const T& held) -> std::optional<Sizes> {
        if constexpr (requires { held->size1; })
            return SizesOf(*held);
        else
            return std::nullopt;
    });
}

Ref<clsMatrix> NumbersOfObject(const Variant& object)
{
    if (object.Is<Ref<clsMatrix>>()) return object.As<Ref<clsMatrix>>();
    return object.Visit([]<class T>(const T& held) -> Ref<clsMatrix> {
        if constexpr (requires { held->GetArr({}, {}); }) {
            SheetOf(*held);
            return NewMatrix<clsMatrix>(
                Converted<double>(held->Elements(), [](const auto& x) { return NumberOf(x); }));
        } else {
            Raise(ErrorNumber::TypeMismatch);
        }
    });
}

} // namespace lumora
