#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"
#include "numeric/ElementKinds.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"

#include <cstdint>
#include <string>

namespace lumora {

/// The tag of the object that a value holds, null for a value that is no object. Error 91 for an
/// empty Ref.
const std::string* TagOf(const Variant& value);

/// The object itself, after its tag was read. Error 13 if the tag belied its class.
template <class M> const M& ObjectOf(const Variant& value)
{
    return *value.As<Ref<M>>();
}

/// An array as an array of one element kind, bounds kept. Error 13 for an element (or a value) that
/// is none of it; LongArray rounds to nearest, half to even, with error 6 beyond 32 bits.
Array<double> DoubleArray(const Variant& array);
Array<std::int32_t> LongArray(const Variant& array);
/// Elements are clsComplex objects, which are kept, or texts such as "1 - 2i", "i" or "3".
Array<Ref<clsComplex>> ComplexArray(const Variant& array);

/// Operands of other kinds in the class that computes with them.
inline Ref<clsMatrix> Wrapped(const Array<double>& array)
{
    return NewMatrix<clsMatrix>(array);
}
inline Ref<clsLong> Wrapped(const Array<std::int32_t>& array)
{
    return NewMatrix<clsLong>(array);
}
inline Ref<clsComplexMatrix> Wrapped(const Array<Ref<clsComplex>>& array)
{
    return NewMatrix<clsComplexMatrix>(RealParts(array), ImageParts(array));
}
template <class M>
requires requires(const M& m)
{
    Wrapped(m.Elements());
}
auto Wrapped(const M& matrix)
{
    return Wrapped(matrix.Elements());
}

} // namespace lumora
