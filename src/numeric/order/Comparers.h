#pragma once

#include "numeric/ElementValues.h"
#include "numeric/order/MinMax.h"

namespace lumora {

// Does an element win against the one that stands? Strictly: of equal ones the first stands, and a
// NaN never wins.
struct Smaller {
    template <class A, class B> bool operator()(const A& x, const B& standing) const
    {
        return x < standing;
    }
};
struct Larger {
    template <class A, class B> bool operator()(const A& x, const B& standing) const
    {
        return standing < x;
    }
};
/// The same by the complex rule.
struct SmallerComplex {
    double tolerance = 0.0;
    template <class A, class B> bool operator()(const A& x, const B& standing) const
    {
        return IsSmaller(AsComplex(x), AsComplex(standing), tolerance);
    }
};
struct LargerComplex {
    double tolerance = 0.0;
    template <class A, class B> bool operator()(const A& x, const B& standing) const
    {
        return IsSmaller(AsComplex(standing), AsComplex(x), tolerance);
    }
};

/// The complex rule where a tolerance is told, the elements' own order where none is.
inline Smaller SmallerBy()
{
    return {};
}
inline Larger LargerBy()
{
    return {};
}
inline SmallerComplex SmallerBy(double tolerance)
{
    return {tolerance};
}
inline LargerComplex LargerBy(double tolerance)
{
    return {tolerance};
}

} // namespace lumora
