#include "numeric/linear/MatrixProduct.h"

#include "base/PerWidth.h"
#include "base/RunTimeError.h"
#include "base/Vectors.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

namespace lumora {

namespace {

// A block of b's rows that stays in the second cache with the packed rows of a.
constexpr std::size_t kDepth = 256;
constexpr std::size_t kColumns = 4;

/// Sizes of one product, and where its elements lie.
struct Factors {
    std::size_t rows;
    std::size_t depth;
    std::size_t columns;
    const double* a;
    const double* b;
    double* result;
};

/// A tile of the result: a few vectors of rows, up to four columns. The sums go on from where the
/// block before left them.
template <class V, std::size_t kVectors, std::size_t kWide> struct Tile {
    static constexpr std::size_t kLanes = sizeof(V) / sizeof(double);
    static constexpr std::size_t kRows = kVectors * kLanes;

    V sums[kWide][kVectors];

    [[gnu::always_inline]] void From(const double* result, std::size_t stride, std::size_t rows)
    {
        for (std::size_t j = 0; j < kWide; ++j) {
            double column[kRows] = {};
            std::memcpy(column, result + j * stride, rows * sizeof(double));
            std::memcpy(sums[j], column, sizeof column);
        }
    }
    [[gnu::always_inline]] void To(double* result, std::size_t stride, std::size_t rows) const
    {
        for (std::size_t j = 0; j < kWide; ++j) {
            double column[kRows];
            std::memcpy(column, sums[j], sizeof column);
            std::memcpy(result + j * stride, column, rows * sizeof(double));
        }
    }
    [[gnu::always_inline]] void Add(const double* packed, const double* b, std::size_t stride,
                                    std::size_t depth)
    {
        V here[kWide][kVectors];
        std::memcpy(here, sums, sizeof here);
        for (std::size_t k = 0; k < depth; ++k) {
            V row[kVectors];
            for (std::size_t v = 0; v < kVectors; ++v)
                row[v] = Load<V>(packed + k * kRows + v * kLanes);
            for (std::size_t j = 0; j < kWide; ++j)
                for (std::size_t v = 0; v < kVectors; ++v)
                    here[j][v] += row[v] * b[k + j * stride];
        }
        std::memcpy(sums, here, sizeof sums);
    }
};

/// Columns j.. of the result for one packed panel of rows.
template <class V, std::size_t kVectors, std::size_t kWide>
[[gnu::always_inline]] inline void RunTile(const Factors& p, const double* packed, std::size_t i,
                                           std::size_t j, std::size_t k, std::size_t depth)
{
    using Here = Tile<V, kVectors, kWide>;
    const std::size_t rows = std::min(Here::kRows, p.rows - i);
    double* const corner = p.result + i + j * p.rows;
    Here tile;
    tile.From(corner, p.rows, rows);
    tile.Add(packed, p.b + k + j * p.depth, p.depth, depth);
    tile.To(corner, p.rows, rows);
}

template <class V, std::size_t kVectors>
[[gnu::always_inline]] inline void RunColumns(const Factors& p, const double* packed, std::size_t i,
                                              std::size_t j, std::size_t k, std::size_t depth)
{
    const std::size_t left = p.columns - j;
    if (left >= kColumns)
        RunTile<V, kVectors, kColumns>(p, packed, i, j, k, depth);
    else if (left == 3)
        RunTile<V, kVectors, 3>(p, packed, i, j, k, depth);
    else if (left == 2)
        RunTile<V, kVectors, 2>(p, packed, i, j, k, depth);
    else
        RunTile<V, kVectors, 1>(p, packed, i, j, k, depth);
}

/// Panels of rows, each with its columns one behind the other; rows beyond the matrix are zero and
/// never stored.
template <std::size_t kRows>
[[gnu::always_inline]] inline void Pack(const Factors& p, std::size_t from, std::size_t to,
                                        std::size_t k, std::size_t depth, double* packed)
{
    for (std::size_t i = from; i < to; i += kRows) {
        const std::size_t rows = std::min(kRows, p.rows - i);
        for (std::size_t d = 0; d < depth; ++d, packed += kRows) {
            std::fill(packed + rows, packed + kRows, 0.0);
            std::memcpy(packed, p.a + i + (k + d) * p.rows, rows * sizeof(double));
        }
    }
}

/// Block by block, each as long as it is in the caches.
struct Blocked {
    template <class V> [[gnu::always_inline]] static void Run(const Factors& p, double* packed)
    {
        // As many sums as the registers hold.
        constexpr std::size_t kVectors = sizeof(V) == sizeof(Two) ? 2 : 3;
        constexpr std::size_t kRows = Tile<V, kVectors, 1>::kRows;
        constexpr std::size_t kPanels = 8;
        for (std::size_t k = 0; k < p.depth; k += kDepth) {
            const std::size_t depth = std::min(kDepth, p.depth - k);
            for (std::size_t from = 0; from < p.rows; from += kPanels * kRows) {
                const std::size_t to = std::min(from + kPanels * kRows, p.rows);
                Pack<kRows>(p, from, to, k, depth, packed);
                for (std::size_t j = 0; j < p.columns; j += kColumns)
                    for (std::size_t i = from; i < to; i += kRows)
                        RunColumns<V, kVectors>(p, packed + (i - from) * depth, i, j, k, depth);
            }
        }
    }
};
constexpr std::size_t kPackedMost = kDepth * 8 * 24;

Factors ProductOf(const Sheet<double>& a, const Sheet<double>& b, double* result)
{
    return {static_cast<std::size_t>(a.rows),
            static_cast<std::size_t>(a.columns),
            static_cast<std::size_t>(b.columns),
            a.values.data(),
            b.values.data(),
            result};
}

} // namespace

void MatrixProduct(const Sheet<double>& a, const Sheet<double>& b, double* result,
                   VectorWidth width)
{
    const Factors p = ProductOf(a, b, result);
    std::fill_n(result, p.rows * p.columns, 0.0);
    std::vector<double> packed(kPackedMost);
    PerWidth<Blocked>::For(width)(p, packed.data());
}

void MatrixProduct(const Sheet<double>& a, const Sheet<double>& b, double* result)
{
    MatrixProduct(a, b, result, WidestVectors());
}

void MatrixProduct(const Sheet<std::int32_t>& a, const Sheet<std::int32_t>& b, std::int32_t* result)
{
    const auto rows = static_cast<std::size_t>(a.rows);
    const auto depth = static_cast<std::size_t>(a.columns);
    const auto columns = static_cast<std::size_t>(b.columns);
    std::fill_n(result, rows * columns, 0);
    bool lost = false;
    for (std::size_t j = 0; j < columns; ++j)
        for (std::size_t k = 0; k < depth; ++k) {
            const std::int64_t factor = b[k + j * depth];
            const std::int32_t* const column = a.values.data() + k * rows;
            std::int32_t* const sums = result + j * rows;
            for (std::size_t i = 0; i < rows; ++i) {
                const std::int64_t product = factor * column[i];
                const std::int64_t sum = std::int64_t{sums[i]} + static_cast<std::int32_t>(product);
                lost |= static_cast<std::int32_t>(product) != product;
                lost |= static_cast<std::int32_t>(sum) != sum;
                sums[i] = static_cast<std::int32_t>(sum);
            }
        }
    if (lost) Raise(ErrorNumber::Overflow);
}

void MatrixProduct(const ComplexSheet& a, const ComplexSheet& b, double* re, double* im)
{
    const auto rows = static_cast<std::size_t>(a.rows);
    const auto depth = static_cast<std::size_t>(a.columns);
    const auto columns = static_cast<std::size_t>(b.columns);
    std::fill_n(re, rows * columns, 0.0);
    std::fill_n(im, rows * columns, 0.0);
    for (std::size_t j = 0; j < columns; ++j)
        for (std::size_t k = 0; k < depth; ++k) {
            const ComplexValue factor = b[k + j * depth];
            const double* const a_re = a.re.data() + k * rows;
            const double* const a_im = a.im.data() + k * rows;
            double* const sum_re = re + j * rows;
            double* const sum_im = im + j * rows;
            for (std::size_t i = 0; i < rows; ++i) {
                sum_re[i] += a_re[i] * factor.re - a_im[i] * factor.im;
                sum_im[i] += a_re[i] * factor.im + a_im[i] * factor.re;
            }
        }
}

} // namespace lumora
