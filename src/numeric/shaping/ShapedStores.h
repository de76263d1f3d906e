#pragma once

#include "numeric/ElementKinds.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"

#include <concepts>
#include <utility>

namespace lumora {

/// A new matrix of the class of m: `shape` makes each store of it from that store of m, which it
/// sees as a Sheet. Element objects are copied. Error 9 at the door of SheetOf.
template <class M, class Shape> Ref<M> Shaped(const M& m, Shape shape)
{
    if constexpr (requires { m.RealPart(); }) {
        const ComplexSheet parts = SheetOf(m);
        return NewMatrix<M>(shape(Sheet<double>{parts.rows, parts.columns, parts.re}),
                            shape(Sheet<double>{parts.rows, parts.columns, parts.im}));
    } else if constexpr (std::same_as<M, clsMatrixComplex>) {
        return NewMatrix<M>(CopiedObjects(shape(SheetOf(m))));
    } else {
        return NewMatrix<M>(shape(SheetOf(m)));
    }
}

} // namespace lumora
