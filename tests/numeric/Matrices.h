#pragma once

#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"
#include "support/Arrays.h"
#include "support/MessageRecorder.h"

#include <complex>
#include <initializer_list>
#include <string>
#include <vector>

namespace lumora::test {

/// Rows as one writes them on paper.
template <class T> using Rows = std::initializer_list<std::initializer_list<T>>;

inline Ref<clsMatrix> RealMatrix(Rows<double> rows)
{
    Ref<clsMatrix> m = MakeRef<clsMatrix>();
    m->SetRealAll(Table<double>(rows));
    return m;
}

inline Ref<clsLong> LongMatrix(Rows<std::int32_t> rows)
{
    Ref<clsLong> m = MakeRef<clsLong>();
    m->SetRealAll(Table<std::int32_t>(rows));
    return m;
}

using Complex = std::complex<double>;

inline Ref<clsComplexMatrix> ComplexMatrix(Rows<Complex> rows)
{
    Ref<clsComplexMatrix> m = MakeRef<clsComplexMatrix>();
    m->Initial_matrix(static_cast<std::int32_t>(rows.size()),
                      static_cast<std::int32_t>(rows.begin()->size()));
    std::int32_t i = 0;
    for (const auto& row : rows) {
        ++i;
        std::int32_t j = 0;
        for (const Complex& z : row)
            m->SetComplex(i, ++j, z.real(), z.imag());
    }
    return m;
}

/// The same with an object for each element.
inline Ref<clsMatrixComplex> ObjectMatrix(Rows<Complex> rows)
{
    Ref<clsMatrixComplex> m = MakeRef<clsMatrixComplex>();
    m->CopyObject_C(*ComplexMatrix(rows));
    return m;
}

inline Ref<clsString> TextMatrix(Rows<std::string> rows)
{
    Ref<clsString> m = MakeRef<clsString>();
    m->SetRealAll(Table<std::string>(rows));
    return m;
}

inline Ref<clsComplex> Scalar(double re, double im)
{
    return MakeRef<clsComplex>(re, im);
}

/// The elements in column-major order.
inline std::vector<double> Values(const clsMatrix& m)
{
    return Elements(m.Elements());
}
inline std::vector<std::int32_t> Values(const clsLong& m)
{
    return Elements(m.Elements());
}
inline std::vector<std::string> Values(const clsString& m)
{
    return Elements(m.Elements());
}
inline std::vector<Complex> Values(const clsComplexMatrix& m)
{
    std::vector<Complex> values;
    const auto re = m.RealPart().Span();
    const auto im = m.ImagePart().Span();
    for (std::size_t k = 0; k < re.size(); ++k)
        values.emplace_back(re[k], im[k]);
    return values;
}
inline std::vector<Complex> Values(const clsMatrixComplex& m)
{
    std::vector<Complex> values;
    for (const Ref<clsComplex>& z : m.Elements().Span())
        values.emplace_back(z->Real, z->Image);
    return values;
}

/// The sizes, and how many dimensions the store has: one for one row, two otherwise.
struct Shape {
    std::int32_t rows;
    std::int32_t columns;
    int dimensions;
    bool operator==(const Shape&) const = default;
};
inline void PrintTo(const Shape& shape, std::ostream* out)
{
    *out << shape.rows << " by " << shape.columns << ", " << shape.dimensions << " dimensions";
}
inline Shape Sized(std::int32_t rows, std::int32_t columns)
{
    return {rows, columns, rows == 1 ? 1 : 2};
}
template <class M> Shape ShapeOf(const M& m)
{
    if constexpr (requires { m.RealPart(); })
        return {m.size1, m.size2, m.RealPart().Dimensions()};
    else
        return {m.size1, m.size2, m.Elements().Dimensions()};
}

/// One box of the plain form.
inline ShownMessage Plain(const std::string& text)
{
    return {text};
}
/// One box of the titled form, written out here so that a changed rule or joint is noticed.
inline ShownMessage Titled(const std::string& title, const std::string& body,
                           const std::string& rule = "---------------------------")
{
    return {title + "\r\n" + rule + "\r\n" + body, "", MessageButtons::OkCancel,
            MessageIcon::Exclamation};
}

} // namespace lumora::test
