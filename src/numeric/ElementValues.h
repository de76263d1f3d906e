#pragma once

#include "base/Ref.h"
#include "numeric/Sheets.h"
#include "numeric/clsComplex.h"

namespace lumora {

/// Any element as a complex number. Error 91 for an element without object.
inline ComplexValue AsComplex(double x)
{
    return {x, 0.0};
}
inline ComplexValue AsComplex(ComplexValue z)
{
    return z;
}
inline ComplexValue AsComplex(const Ref<clsComplex>& z)
{
    return {z->Real, z->Image};
}

inline Ref<clsComplex> AsObject(ComplexValue z)
{
    return MakeRef<clsComplex>(z.re, z.im);
}

/// An element as kernels compare it: an object stands for its number.
template <class T> const T& ValueOf(const T& x)
{
    return x;
}
inline ComplexValue ValueOf(const Ref<clsComplex>& z)
{
    return AsComplex(z);
}

} // namespace lumora
