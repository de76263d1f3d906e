#pragma once

#include "base/Array.h"
#include "base/Ref.h"

#include <concepts>
#include <cstdint>

namespace lumora {

class clsComplex;

/// An array of the same shape and bounds whose elements are `convert` of the old ones.
template <class To, class From, std::invocable<const From&> Convert>
Array<To> Converted(const Array<From>& from, Convert convert)
{
    Array<To> to;
    if (from.Dimensions() == 1)
        to.ReDimForOverwrite({from.LBound(), from.UBound()});
    else if (from.Dimensions() == 2)
        to.ReDimForOverwrite({from.LBound(1), from.UBound(1)}, {from.LBound(2), from.UBound(2)});
    const auto out = to.Span();
    const auto in = from.Span();
    for (std::size_t k = 0; k < in.size(); ++k)
        out[k] = convert(in[k]);
    return to;
}

/// Whole numbers as floats.
Array<double> Widened(const Array<std::int32_t>& array);
/// To nearest, half to even. Error 6 beyond 32 bits.
Array<std::int32_t> Narrowed(const Array<double>& array);

/// The parts of element objects. Error 91 for an element that has no object.
Array<double> RealParts(const Array<Ref<clsComplex>>& objects);
Array<double> ImageParts(const Array<Ref<clsComplex>>& objects);
/// One new object per element. Error 9 if the arrays are not equally long.
Array<Ref<clsComplex>> ElementObjects(const Array<double>& re, const Array<double>& im);
/// One new object for each that is there.
Array<Ref<clsComplex>> CopiedObjects(const Array<Ref<clsComplex>>& objects);

} // namespace lumora
