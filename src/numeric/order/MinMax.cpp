#include "numeric/order/MinMax.h"

#include "numeric/ObjectNumbers.h"
#include "numeric/Operands.h"
#include "numeric/Sentinel.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/elementwise/ComplexFormulas.h"
#include "numeric/order/Pairwise.h"

#include <cmath>

namespace lumora {

namespace {

double SquaredMagnitude(double re, double im)
{
    const double squares = re * re + im * im;
    if (std::isinf(squares) && std::isfinite(re) && std::isfinite(im)) Raise(ErrorNumber::Overflow);
    return squares;
}

double NumberAlone(const Variant& x)
{
    if (!x.IsNumber()) Raise(ErrorNumber::TypeMismatch);
    return x.Number();
}

template <class Wins>
Variant Extreme(const Variant& a, const Variant& b, Wins wins, const char* title)
{
    const bool object_a = TagOf(a) != nullptr;
    const bool object_b = TagOf(b) != nullptr;
    if (!object_a && !object_b) return wins(NumberAlone(b), NumberAlone(a)) ? b : a;
    if (object_a != object_b) {
        const Single number{NumberAlone(object_a ? b : a)};
        const Ref<clsMatrix> matrix = NumbersOfObject(object_a ? a : b);
        return OrEmpty(Pairwise<clsMatrix>(SheetOf(*matrix), number, wins));
    }
    const Ref<clsMatrix> left = NumbersOfObject(a);
    const Ref<clsMatrix> right = NumbersOfObject(b);
    if (SizesOf(*left) != SizesOf(*right)) return OrEmpty(TitledFailure(title, kSizesMustAgree));
    return OrEmpty(Pairwise<clsMatrix>(SheetOf(*left), SheetOf(*right), wins));
}

} // namespace

Variant Min(const Variant& a, const Variant& b)
{
    return Extreme(a, b, Smaller{}, kErrorUsingMin);
}

Variant Max(const Variant& a, const Variant& b)
{
    return Extreme(a, b, Larger{}, kErrorUsingMax);
}

bool MagnitudesDiffer(double re1, double im1, double re2, double im2, double Tolerance)
{
    const double m1 = SquaredMagnitude(re1, im1);
    const double m2 = SquaredMagnitude(re2, im2);
    return m2 + Tolerance > m1 || m2 - Tolerance < m1;
}

bool IsSmaller(ComplexValue a, ComplexValue b, double Tolerance)
{
    if (MagnitudesDiffer(a.re, a.im, b.re, b.im, Tolerance))
        return SquaredMagnitude(a.re, a.im) < SquaredMagnitude(b.re, b.im);
    return Atan2(a.im, a.re) < Atan2(b.im, b.re);
}

} // namespace lumora
