#pragma once

#include "base/VectorWidth.h"
#include "numeric/Sheets.h"

#include <cstdint>
#include <span>

namespace lumora {

// Matrix products on column-major elements: result(i, j) = 0 + a(i, 1)*b(1, j) + a(i, 2)*b(2, j) +
// ..., each sum in this order whatever the blocking and the width of the vectors. a has as many
// columns as b has rows; the result has the rows of a and the columns of b.

/// Every width gives the same bits.
void MatrixProduct(const Sheet<double>& a, const Sheet<double>& b, double* result,
                   VectorWidth width);
void MatrixProduct(const Sheet<double>& a, const Sheet<double>& b, double* result);

/// Error 6 where a product or a partial sum does not fit in 32 bits.
void MatrixProduct(const Sheet<std::int32_t>& a, const Sheet<std::int32_t>& b,
                   std::int32_t* result);

void MatrixProduct(const ComplexSheet& a, const ComplexSheet& b, double* re, double* im);

} // namespace lumora
