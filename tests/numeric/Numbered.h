#pragma once

#include "numeric/Matrices.h"

#include <gtest/gtest.h>

#include <vector>

namespace lumora::test {

/// All classes of matrices, for typed tests.
using Matrices =
    testing::Types<clsMatrix, clsLong, clsComplexMatrix, clsMatrixComplex, clsString, clsVariant>;

/// A matrix of any class whose element (i, j) tells its place: 100 i + j, and as imaginary part its
/// negative.
template <class M> Ref<M> Numbered(std::int32_t rows, std::int32_t columns)
{
    const Ref<M> m = MakeRef<M>();
    m->Initial_matrix(rows, columns);
    if constexpr (std::same_as<M, clsMatrixComplex>)
        m->SetComplexAll(Array<double>(rows, columns), Array<double>(rows, columns));
    for (std::int32_t i = 1; i <= rows; ++i)
        for (std::int32_t j = 1; j <= columns; ++j) {
            const std::int32_t number = 100 * i + j;
            if constexpr (std::same_as<M, clsComplexMatrix>)
                m->SetComplex(i, j, number, -number);
            else if constexpr (std::same_as<M, clsMatrixComplex>)
                m->Real(i, j, clsComplex(number, -number));
            else if constexpr (std::same_as<M, clsString>)
                m->Real(i, j, std::to_string(number));
            else
                m->Real(i, j, number);
        }
    return m;
}

/// The numbers of such a matrix in column-major order; -1 where the imaginary part is not the
/// negative.
template <class M> std::vector<std::int32_t> Numbers(const M& m)
{
    std::vector<std::int32_t> numbers;
    const auto put = [&](double re, double im) {
        numbers.push_back(im == -re ? static_cast<std::int32_t>(re) : -1);
    };
    if constexpr (std::same_as<M, clsComplexMatrix>) {
        for (const Complex& z : Values(m))
            put(z.real(), z.imag());
    } else if constexpr (std::same_as<M, clsMatrixComplex>) {
        for (const Complex& z : Values(m))
            put(z.real(), z.imag());
    } else {
        for (const auto& element : m.Elements().Span())
            numbers.push_back(static_cast<std::int32_t>(NumberOf(element)));
    }
    return numbers;
}

} // namespace lumora::test
