#include "numeric/linear/MatrixProduct.h"
#include "numeric/Matrices.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace lumora::test {
namespace {

struct Sized3 {
    int rows;
    int depth;
    int columns;
};

std::vector<double> Noise(std::mt19937_64& random, int count)
{
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    std::vector<double> values(static_cast<std::size_t>(count));
    for (double& value : values)
        value = uniform(random);
    return values;
}

/// The definition: every sum from zero, in rising order.
std::vector<double> PlainProduct(const std::vector<double>& a, const std::vector<double>& b,
                                 Sized3 size)
{
    std::vector<double> result;
    for (int j = 0; j < size.columns; ++j)
        for (int i = 0; i < size.rows; ++i) {
            double sum = 0.0;
            for (int k = 0; k < size.depth; ++k)
                sum += a[static_cast<std::size_t>(i + k * size.rows)] *
                       b[static_cast<std::size_t>(k + j * size.depth)];
            result.push_back(sum);
        }
    return result;
}

void CheckWidths(std::mt19937_64& random, Sized3 size)
{
    const auto a = Noise(random, size.rows * size.depth);
    const auto b = Noise(random, size.depth * size.columns);
    const auto expected = PlainProduct(a, b, size);
    for (const VectorWidth width : VectorWidths()) {
        std::vector<double> result(expected.size(), 99.0);
        MatrixProduct(Sheet<double>{size.rows, size.depth, a},
                      Sheet<double>{size.depth, size.columns, b}, result.data(), width);
        ASSERT_EQ(std::memcmp(result.data(), expected.data(), expected.size() * sizeof(double)), 0)
            << size.rows << " x " << size.depth << " x " << size.columns << ", width "
            << static_cast<int>(width);
    }
}

TEST(MatrixProduct, EqualsTheDefinitionBitForBitAtEverySmallSize)
{
    std::mt19937_64 random(1);
    for (int rows = 1; rows <= 14; ++rows)
        for (int depth = 1; depth <= 9; depth += 2)
            for (int columns = 1; columns <= 9; ++columns)
                CheckWidths(random, {rows, depth, columns});
}

TEST(MatrixProduct, EqualsTheDefinitionBitForBitAcrossItsBlocks)
{
    std::mt19937_64 random(2);
    for (const Sized3 size : {Sized3{25, 256, 5}, Sized3{24, 257, 4}, Sized3{97, 513, 7},
                              Sized3{193, 300, 33}, Sized3{1, 1000, 1}, Sized3{200, 1, 200}})
        CheckWidths(random, size);
}

TEST(MatrixProduct, OfComplexMatricesSumsEachPartInRisingOrder)
{
    std::mt19937_64 random(3);
    const Sized3 size{7, 11, 5};
    const auto a_re = Noise(random, 77);
    const auto a_im = Noise(random, 77);
    const auto b_re = Noise(random, 55);
    const auto b_im = Noise(random, 55);
    std::vector<double> re(35);
    std::vector<double> im(35);
    MatrixProduct(ComplexSheet{7, 11, a_re, a_im}, ComplexSheet{11, 5, b_re, b_im}, re.data(),
                  im.data());
    for (int j = 0; j < size.columns; ++j)
        for (int i = 0; i < size.rows; ++i) {
            double sum_re = 0.0;
            double sum_im = 0.0;
            for (int k = 0; k < size.depth; ++k) {
                const auto x = static_cast<std::size_t>(i + k * size.rows);
                const auto y = static_cast<std::size_t>(k + j * size.depth);
                sum_re += a_re[x] * b_re[y] - a_im[x] * b_im[y];
                sum_im += a_re[x] * b_im[y] + a_im[x] * b_re[y];
            }
            const auto at = static_cast<std::size_t>(i + j * size.rows);
            EXPECT_EQ(re[at], sum_re);
            EXPECT_EQ(im[at], sum_im);
        }
}

} // namespace
} // namespace lumora::test
