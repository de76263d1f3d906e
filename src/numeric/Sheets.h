#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace lumora {

/// A complex number inside a kernel: a plain pair, so that every formula is computed as it is
/// written, infinities included.
struct ComplexValue {
    double re = 0.0;
    double im = 0.0;
    bool operator==(const ComplexValue&) const = default;
};

/// What a kernel sees of a matrix: its sizes and its elements in column-major order, counted from
/// 0.
template <class T> struct Sheet {
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    std::span<const T> values;

    std::size_t Size() const { return values.size(); }
    bool IsScalar() const { return rows == 1 && columns == 1; }
    const T& operator[](std::size_t k) const { return values[k]; }
};

struct ComplexSheet {
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    std::span<const double> re;
    std::span<const double> im;

    std::size_t Size() const { return re.size(); }
    bool IsScalar() const { return rows == 1 && columns == 1; }
    ComplexValue operator[](std::size_t k) const { return {re[k], im[k]}; }
};

/// One value in the place of a 1 by 1 matrix.
template <class T> struct Single {
    T value;
    std::int32_t rows = 1;
    std::int32_t columns = 1;

    std::size_t Size() const { return 1; }
    bool IsScalar() const { return true; }
    const T& operator[](std::size_t) const { return value; }
};
template <class T> Single(T) -> Single<T>;

/// The door of every kernel: error 9 if the store does not have the shape that the size fields
/// tell. An object without elements is a sheet of size 0.
Sheet<double> SheetOf(const clsMatrix& m);
Sheet<std::int32_t> SheetOf(const clsLong& m);
ComplexSheet SheetOf(const clsComplexMatrix& m);
Sheet<Ref<clsComplex>> SheetOf(const clsMatrixComplex& m);
Sheet<std::string> SheetOf(const clsString& m);
Sheet<Variant> SheetOf(const clsVariant& m);
Single<ComplexValue> SheetOf(const clsComplex& z);
inline Single<double> SheetOf(double x)
{
    return {x};
}
inline Single<std::int32_t> SheetOf(std::int32_t x)
{
    return {x};
}
inline Single<std::string> SheetOf(const std::string& x)
{
    return {x};
}

} // namespace lumora
