#include "numeric/shaping/Cat.h"

#include "numeric/CopyAny.h"
#include "numeric/Draft.h"
#include "numeric/ObjectNumbers.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/Sentinel.h"
#include "numeric/clsLong.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"
#include "numeric/shaping/ObjectVisit.h"
#include "numeric/shaping/Shaping.h"

namespace lumora {

namespace {

template <class T> Array<T> OneElement(T value)
{
    Array<T> array(1);
    array(1) = std::move(value);
    return array;
}

/// The class that the elements of an array call for; empty if they are of no kind that has one.
Variant ObjectOfArray(const Variant& array)
{
    if (array.Is<Array<std::string>>()) return NewMatrix<clsString>(array.As<Array<std::string>>());
    if (IsIntegerArray(array)) return Wrapped(LongArray(array));
    if (IsNumericArray(array)) return Wrapped(DoubleArray(array));
    if (IsComplexArray(array)) return Wrapped(ComplexArray(array));
    if (array.Is<Array<Variant>>()) return NewMatrix<clsVariant>(array.As<Array<Variant>>());
    return {};
}

/// An operand as one of the seven classes; empty for what is nothing to join.
Variant Joinable(const Variant& x)
{
    if (x.IsText()) return NewMatrix<clsString>(OneElement(x.As<std::string>()));
    if (x.IsNumber()) return NewMatrix<clsMatrix>(OneElement(x.Number()));
    if (x.IsArray()) return ObjectOfArray(x);
    return x.Visit([&x]<class T>(const T& held) {
        if constexpr (requires { held->TypeOfMatrix; })
            return held->TypeOfMatrix == kTag<std::remove_cvref_t<decltype(*held)>> ? x : Variant();
        else
            return Variant();
    });
}

template <class M, class... Operands>
concept AnyOf = (std::same_as<M, Operands> || ...);

/// The class of the result, in a type_identity. The order of the questions is the rule.
template <class A, class B> auto ClassOfJoint()
{
    if constexpr (std::same_as<A, clsString> && std::same_as<B, clsString>)
        return std::type_identity<clsString>();
    else if constexpr (AnyOf<clsString, A, B> || AnyOf<clsVariant, A, B>)
        return std::type_identity<clsVariant>();
    else if constexpr (AnyOf<clsMatrixComplex, A, B>)
        return std::type_identity<clsMatrixComplex>();
    else if constexpr (AnyOf<clsComplexMatrix, A, B> || AnyOf<clsComplex, A, B>)
        return std::type_identity<clsComplexMatrix>();
    else
        return std::type_identity<clsMatrix>();
}

bool Fit(Lines lines, Sizes a, Sizes b)
{
    return lines == Lines::Rows ? a.columns == b.columns : a.rows == b.rows;
}

Sizes JointSizes(Lines lines, Sizes a, Sizes b)
{
    const auto sum = [](std::int32_t x, std::int32_t y) { return CLng(std::int64_t{x} + y); };
    if (lines == Lines::Rows) return {sum(a.rows, b.rows), a.columns};
    return {a.rows, sum(a.columns, b.columns)};
}

template <class S> Sizes SizesOfSheet(const S& sheet)
{
    return {sheet.rows, sheet.columns};
}

template <class A, class B> Variant Joined(Lines lines, const A& a, const B& b)
{
    using M = typename decltype(ClassOfJoint<A, B>())::type;
    const auto left = SheetOf(a);
    const auto right = SheetOf(b);
    Draft<M> joint(JointSizes(lines, SizesOfSheet(left), SizesOfSheet(right)));
    Join(lines, left, right, [&joint](std::size_t k, const auto& x) { joint.Put(k, x); });
    return joint.Take();
}

/// Both are objects by now, and their sizes fit.
Variant Joined(Lines lines, const Variant& a, const Variant& b)
{
    return WithObject(a, [&](const auto& left) {
        return WithObject(b, [&](const auto& right) { return Joined(lines, left, right); });
    });
}

} // namespace

Variant Cat(std::int16_t dimention, const Variant& A, const Variant& B)
{
    const Variant a = Joinable(A);
    const Variant b = Joinable(B);
    if (dimention != 1 && dimention != 2)
        return OrEmpty(TitledFailure(kErrorUsingCat, kCatArguments));
    if (a.IsEmpty() || b.IsEmpty())
        return OrEmpty(TitledFailure(kErrorUsingCat, kCatDimensionsBlanks));
    // A clsComplex, the one object without sizes, is 1 by 1.
    const Sizes a_sizes = SizesOfObject(a).value_or(Sizes{1, 1});
    const Sizes b_sizes = SizesOfObject(b).value_or(Sizes{1, 1});
    if (a_sizes == Sizes{}) return CopyAny(b);
    if (b_sizes == Sizes{}) return CopyAny(a);
    const Lines lines = dimention == 1 ? Lines::Rows : Lines::Columns;
    if (Fit(lines, a_sizes, b_sizes)) return Joined(lines, a, b);
    return OrEmpty(TitledFailure(kErrorUsingCatStop, kCatDimensions));
}

} // namespace lumora
