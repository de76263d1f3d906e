#pragma once

#include "base/Array.h"
#include "base/Numbers.h"
#include "base/Ref.h"
#include "base/RunTimeError.h"
#include "base/Variant.h"
#include "numeric/ElementValues.h"
#include "numeric/Finite.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsMatrixComplex.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>

namespace lumora {

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

/// What is computed becomes an element; false if it does not fit.
inline bool Settle(double computed, double& element)
{
    element = computed;
    return true;
}
inline bool Settle(std::int64_t computed, std::int32_t& element)
{
    element = static_cast<std::int32_t>(computed);
    return element == computed;
}

/// A new matrix of class M while its elements are written: in any order, each once, by one of Put,
/// Fill and Elements. Their places count from 0. Take() hands the matrix over.
template <class M> class Draft {
public:
    using Element = std::remove_cvref_t<decltype(SheetOf(std::declval<const M&>())[0])>;

    /// Errors 9 for an empty shape, and 7.
    explicit Draft(Sizes sizes) : store_(UnwrittenStore<Element>(sizes)), elements_(store_.Span())
    {
    }

    std::size_t Size() const { return elements_.size(); }
    const Element& operator[](std::size_t k) const { return elements_[k]; }

    /// Any value that ElementFrom knows.
    template <class T> void Put(std::size_t k, const T& x)
    {
        elements_[k] = ElementFrom<Element>(x);
    }
    /// Element k = f(k) for k in from..to-1; true if all are finite. Whole elements are computed in
    /// 64 bits: error 6 in the end if one does not fit in 32.
    template <class F> bool Fill(std::size_t from, std::size_t to, F&& f)
    {
        Element* const out = elements_.data();
        bool fits = true;
        for (std::size_t k = from; k < to; ++k)
            fits &= Settle(f(k), out[k]);
        if (!fits) Raise(ErrorNumber::Overflow);
        return AllFinite(elements_.subspan(from, to - from));
    }
    std::span<Element> Elements() { return elements_; }

    bool Finite() const { return AllFinite(elements_); }
    Ref<M> Take() { return NewMatrix<M>(std::move(store_)); }

private:
    Array<Element> store_;
    std::span<Element> elements_;
};

/// The two classes whose elements are complex; both take their parts as two arrays.
template <class M>
concept ComplexClass = std::same_as<M, clsComplexMatrix> || std::same_as<M, clsMatrixComplex>;

template <ComplexClass M> class Draft<M> {
public:
    explicit Draft(Sizes sizes)
        : re_store_(UnwrittenStore<double>(sizes)),
          im_store_(UnwrittenStore<double>(sizes)),
          re_(re_store_.Span()),
          im_(im_store_.Span())
    {
    }

    std::size_t Size() const { return re_.size(); }
    ComplexValue operator[](std::size_t k) const { return {re_[k], im_[k]}; }

    template <class T> void Put(std::size_t k, const T& x)
    {
        const ComplexValue z = AsComplex(x);
        re_[k] = z.re;
        im_[k] = z.im;
    }
    template <class F> bool Fill(std::size_t from, std::size_t to, F&& f)
    {
        double* const re = re_.data();
        double* const im = im_.data();
        for (std::size_t k = from; k < to; ++k) {
            const ComplexValue z = f(k);
            re[k] = z.re;
            im[k] = z.im;
        }
        return AllFinite(re_.subspan(from, to - from)) && AllFinite(im_.subspan(from, to - from));
    }
    std::span<double> Real() { return re_; }
    std::span<double> Image() { return im_; }

    bool Finite() const { return AllFinite(re_) && AllFinite(im_); }
    Ref<M> Take() { return NewMatrix<M>(std::move(re_store_), std::move(im_store_)); }

private:
    Array<double> re_store_;
    Array<double> im_store_;
    std::span<double> re_;
    std::span<double> im_;
};

} // namespace lumora
