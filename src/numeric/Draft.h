#pragma once

#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsMatrixComplex.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>

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

/// The two classes whose elements are complex; both take their parts as two arrays.
template <class M>
concept ComplexClass = std::same_as<M, clsComplexMatrix> || std::same_as<M, clsMatrixComplex>;

/// A value as an element of a matrix of another kind. A float becomes whole to nearest, half to
/// even, with error 6 beyond 32 bits.
template <class Element, class T> Element ElementFrom(const T& x)
{
    if constexpr (std::same_as<Element, Variant> && std::same_as<T, ComplexValue>)
        return AsObject(x);
    else if constexpr (std::same_as<Element, std::int32_t> && std::same_as<T, double>)
        return CLng(x);
    else
        return static_cast<Element>(x);
}

/// A new matrix of class M while its elements are written, each once and in any order.
template <class M> class Draft {
public:
    using Element = std::remove_cvref_t<decltype(SheetOf(std::declval<const M&>())[0])>;

    /// Errors 9 for an empty shape, and 7.
    explicit Draft(Sizes sizes) : store_(UnwrittenStore<Element>(sizes)), values_(store_.Span()) {}

    template <class T> void Put(std::size_t k, const T& x) { values_[k] = ElementFrom<Element>(x); }
    Ref<M> Take() { return NewMatrix<M>(std::move(store_)); }

private:
    Array<Element> store_;
    std::span<Element> values_;
};

template <ComplexClass M> class Draft<M> {
public:
    explicit Draft(Sizes sizes)
        : re_store_(UnwrittenStore<double>(sizes)),
          im_store_(UnwrittenStore<double>(sizes)),
          re_(re_store_.Span()),
          im_(im_store_.Span())
    {
    }

    template <class T> void Put(std::size_t k, const T& x)
    {
        const ComplexValue z = AsComplex(x);
        re_[k] = z.re;
        im_[k] = z.im;
    }
    Ref<M> Take() { return NewMatrix<M>(std::move(re_store_), std::move(im_store_)); }

private:
    Array<double> re_store_;
    Array<double> im_store_;
    std::span<double> re_;
    std::span<double> im_;
};

} // namespace lumora
