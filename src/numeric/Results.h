#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "numeric/Finite.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace lumora {

/// A matrix of class M in the making: elements are written in any order of ranges, each once. Error
/// 9 for an empty shape. Object() hands it over.
template <class M> class Result;

template <> class Result<clsMatrix> {
public:
    explicit Result(Sizes sizes) : store_(UnwrittenStore<double>(sizes)) {}

    std::size_t Size() const { return store_.Span().size(); }
    double operator[](std::size_t k) const { return store_.Span()[k]; }

    /// Element k = f(k) for k in from..to-1; true if all are finite.
    template <class F> bool Fill(std::size_t from, std::size_t to, F&& f)
    {
        double* const out = store_.Span().data();
        for (std::size_t k = from; k < to; ++k)
            out[k] = f(k);
        return AllFinite({out + from, to - from});
    }
    bool Finite() const { return AllFinite(store_.Span()); }
    double* Data() { return store_.Span().data(); }
    Ref<clsMatrix> Object() && { return NewMatrix<clsMatrix>(std::move(store_)); }

private:
    Array<double> store_;
};

/// Elements are computed in 64 bits; error 6 at the end if one does not fit in 32.
template <> class Result<clsLong> {
public:
    explicit Result(Sizes sizes) : store_(UnwrittenStore<std::int32_t>(sizes)) {}

    std::size_t Size() const { return store_.Span().size(); }
    std::int32_t operator[](std::size_t k) const { return store_.Span()[k]; }

    template <class F> bool Fill(std::size_t from, std::size_t to, F&& f)
    {
        std::int32_t* const out = store_.Span().data();
        bool lost = false;
        for (std::size_t k = from; k < to; ++k) {
            const std::int64_t wide = f(k);
            out[k] = static_cast<std::int32_t>(wide);
            lost |= out[k] != wide;
        }
        if (lost) Raise(ErrorNumber::Overflow);
        return true;
    }
    bool Finite() const { return true; }
    std::int32_t* Data() { return store_.Span().data(); }
    Ref<clsLong> Object() && { return NewMatrix<clsLong>(std::move(store_)); }

private:
    Array<std::int32_t> store_;
};

template <> class Result<clsComplexMatrix> {
public:
    explicit Result(Sizes sizes)
        : re_(UnwrittenStore<double>(sizes)), im_(UnwrittenStore<double>(sizes))
    {
    }

    std::size_t Size() const { return re_.Span().size(); }
    ComplexValue operator[](std::size_t k) const { return {re_.Span()[k], im_.Span()[k]}; }

    template <class F> bool Fill(std::size_t from, std::size_t to, F&& f)
    {
        double* const re = re_.Span().data();
        double* const im = im_.Span().data();
        for (std::size_t k = from; k < to; ++k) {
            const ComplexValue z = f(k);
            re[k] = z.re;
            im[k] = z.im;
        }
        return AllFinite({re + from, to - from}) && AllFinite({im + from, to - from});
    }
    bool Finite() const { return AllFinite(re_.Span()) && AllFinite(im_.Span()); }
    double* RealData() { return re_.Span().data(); }
    double* ImageData() { return im_.Span().data(); }
    Ref<clsComplexMatrix> Object() &&
    {
        return NewMatrix<clsComplexMatrix>(std::move(re_), std::move(im_));
    }

private:
    Array<double> re_;
    Array<double> im_;
};

/// Element k = element(k), block by block, so that the look for overflows finds its results in the
/// nearest cache. Error 6 if one is not finite although what it came from was: from_finite(k).
template <class R, class Element, class FromFinite>
void ComputeEach(Result<R>& result, Element&& element, FromFinite&& from_finite)
{
    constexpr std::size_t kBlock = 1024;
    for (std::size_t from = 0; from < result.Size(); from += kBlock) {
        const std::size_t to = std::min(from + kBlock, result.Size());
        if (result.Fill(from, to, element)) continue;
        for (std::size_t k = from; k < to; ++k)
            if (!Finite(result[k]) && from_finite(k)) Raise(ErrorNumber::Overflow);
    }
}

} // namespace lumora
