#pragma once

#include "base/VectorWidth.h"
#include "base/Vectors.h"

#include <cstddef>

namespace lumora {

/// A function compiled once for each width of vectors. Body is a type with
///
///     template <class V> [[gnu::always_inline]] static R Run(A...);
///
/// whose V is the vector of doubles of the width. The attribute is what makes it fast: inlined, the
/// body may use the instructions of the function it is inlined into, and so may what it calls, if
/// that is inlined too. A body called would be the baseline's.
template <class Body, class Function = decltype(&Body::template Run<Two>)> class PerWidth;

template <class Body, class R, class... A> class PerWidth<Body, R (*)(A...)> {
public:
    /// For one of VectorWidths().
    static constexpr auto For(VectorWidth width) -> R (*)(A...)
    {
#if defined(__x86_64__)
        if (width == VectorWidth::Avx512) return Avx512;
        if (width == VectorWidth::Avx2) return Avx2;
#endif
        static_cast<void>(width);
        return Baseline;
    }

private:
    static R Baseline(A... a)
    {
        return Body::template Run<Two>(a...);
    }
#if defined(__x86_64__)
    [[gnu::target("avx2")]] static R Avx2(A... a)
    {
        return Body::template Run<Four>(a...);
    }
    [[gnu::target("avx512f")]] static R Avx512(A... a)
    {
        return Body::template Run<Eight>(a...);
    }
#endif
};

/// One T for each width, made by make(width): tables of kernels to refer to.
template <class T> class TablePerWidth {
public:
    constexpr explicit TablePerWidth(T (*make)(VectorWidth))
        : tables_{make(VectorWidth::Baseline), make(VectorWidth::Avx2), make(VectorWidth::Avx512)}
    {
    }
    constexpr const T& operator[](VectorWidth width) const
    {
        return tables_[static_cast<std::size_t>(width)];
    }

private:
    T tables_[3]; ///< in the order of VectorWidth
};

} // namespace lumora
