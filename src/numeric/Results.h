#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace lumora {

inline bool Finite(double x)
{
    return std::isfinite(x);
}
inline bool Finite(std::int32_t)
{
    return true;
}
inline bool Finite(ComplexValue z)
{
    return std::isfinite(z.re) && std::isfinite(z.im);
}

/// No infinity and no NaN among them. Adding one to the exponent carries into the sign exactly when
/// the exponent is all ones, which a vector tests faster than it compares.
inline bool AllFinite(const double* x, std::size_t count)
{
    constexpr std::uint64_t kMagnitude = 0x7fff'ffff'ffff'ffff;
    constexpr std::uint64_t kOneExponent = 0x0010'0000'0000'0000;
    std::uint64_t carries = 0;
    for (std::size_t k = 0; k < count; ++k)
        carries |= (std::bit_cast<std::uint64_t>(x[k]) & kMagnitude) + kOneExponent;
    return carries >> 63 == 0;
}

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
        return AllFinite(out + from, to - from);
    }
    bool Finite() const { return AllFinite(store_.Span().data(), Size()); }
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
        return AllFinite(re + from, to - from) && AllFinite(im + from, to - from);
    }
    bool Finite() const
    {
        return AllFinite(re_.Span().data(), Size()) && AllFinite(im_.Span().data(), Size());
    }
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

} // namespace lumora
