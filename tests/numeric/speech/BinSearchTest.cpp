#include "numeric/Sounds.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace lumora {
namespace {

using namespace test;

/// The answer and where the bounds have come to.
struct Search {
    std::int32_t place;
    std::int32_t left;
    std::int32_t right;
    bool operator==(const Search&) const = default;
};
void PrintTo(const Search& search, std::ostream* out)
{
    *out << search.place << " within " << search.left << ".." << search.right;
}

Search Searched(const clsMatrix& x, std::int32_t left, std::int32_t right, double number,
                double tolerance = 0.0)
{
    const std::int32_t place = x.BinSearchInArray(left, right, number, tolerance);
    return {place, left, right};
}

/// The plain steps, which call themselves.
Search PlainSearch(const Sound& x, std::int32_t left, std::int32_t right, double number,
                   double tolerance)
{
    const auto at = [&x](std::int32_t k) { return x.at(static_cast<std::size_t>(k - 1)); };
    if (left > right) return {0, left, right};
    if (number < at(left) || std::abs(number - at(left)) < tolerance) return {left, left, right};
    if (number >= at(right)) return {right, left, right};
    if (at(left) < number && at(left + 1) >= number) return {left + 1, left, right};
    const auto middle = static_cast<std::int32_t>(std::nearbyint((left + right) / 2.0));
    if (at(middle) <= number) return PlainSearch(x, middle, right, number, 1e-8);
    return PlainSearch(x, left, middle, number, 1e-8);
}

Sound Rising(std::size_t count, std::mt19937& generator)
{
    std::uniform_int_distribution<int> step(0, 3);
    Sound x(count);
    double value = -5.0;
    for (double& element : x)
        element = value += 0.5 * step(generator);
    return x;
}

TEST(BinSearchInArray, FindsTheFirstElementNotBelowTheNumber)
{
    constexpr std::uint32_t kSeed = 4915;
    std::mt19937 generator(kSeed);
    for (std::size_t count = 1; count <= 60; ++count) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", length " + std::to_string(count));
        // Steps of at least a half, so that a number between two elements is within no tolerance.
        Sound x = Rising(count, generator);
        for (std::size_t k = 0; k < count; ++k)
            x[k] += 0.5 * static_cast<double>(k);
        const auto last = static_cast<std::int32_t>(count);
        for (double number = x.front() - 1.0; number <= x.back(); number += 0.25) {
            const auto first = std::lower_bound(x.begin(), x.end(), number) - x.begin();
            EXPECT_EQ(Searched(*RowOf(x), 1, last, number).place, first + 1) << number;
            EXPECT_EQ(Searched(*ColumnOf(x), 1, last, number, 1e-8).place, first + 1) << number;
        }
        EXPECT_EQ(Searched(*RowOf(x), 1, last, x.back() + 1.0).place, last);
    }
}

TEST(BinSearchInArray, NarrowsTheBoundsAsThePlainStepsDo)
{
    constexpr std::uint32_t kSeed = 4916;
    std::mt19937 generator(kSeed);
    for (int round = 0; round < 2000; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const Sound x = Rising(1 + generator() % 50, generator);
        const auto count = static_cast<unsigned>(x.size());
        const auto left = static_cast<std::int32_t>(1 + generator() % count);
        const auto right = static_cast<std::int32_t>(1 + generator() % count);
        const double number = x[generator() % count] + 0.25 * (double(generator() % 5) - 2.0);
        for (const double tolerance : {0.0, 1e-8, 0.3, -1.0})
            EXPECT_EQ(Searched(*RowOf(x), left, right, number, tolerance),
                      PlainSearch(x, left, right, number, tolerance));
    }
}

TEST(BinSearchInArray, IsZeroWithoutAnElement)
{
    EXPECT_EQ(Searched(*RealMatrix({{1, 2}}), 2, 1, 1.5), (Search{0, 2, 1}));
    EXPECT_EQ(Searched(*MakeRef<clsMatrix>(), 1, 0, 1.5), (Search{0, 1, 0}));
}

TEST(BinSearchInArray, TakesTheCallersToleranceOnlyBeforeTheFirstNarrowing)
{
    const Ref<clsMatrix> x = RealMatrix({{0, 1, 2, 3, 4, 5, 6, 7, 8}});
    EXPECT_EQ(Searched(*x, 1, 9, 0.4, 0.5), (Search{1, 1, 9}));
    // 4.4 would be within 0.5 of element 5, which is where the bound comes to: (1 + 9)/2.
    EXPECT_EQ(Searched(*x, 1, 9, 4.4, 0.5), (Search{6, 5, 9}));
    EXPECT_EQ(Searched(*x, 1, 9, 4.0 + 1e-9, 0.0), (Search{5, 5, 9}));
    // Halves of odd sums go to the even place: (1 + 8)/2 to 4, (4 + 7)/2 to 6.
    EXPECT_EQ(Searched(*x, 1, 8, 3.0, 0.0), (Search{4, 4, 8}));
    EXPECT_EQ(Searched(*x, 4, 7, 5.0, 0.0), (Search{6, 6, 7}));
}

TEST(BinSearchInArray, FindsTheFirstOfTwoEvenWithoutTolerance)
{
    EXPECT_EQ(Searched(*RealMatrix({{1, 2}}), 1, 2, 1.0, 0.0).place, 1);
    EXPECT_EQ(Searched(*RealMatrix({{1, 2}}), 1, 2, 1.0, -1.0).place, 1);
}

TEST(BinSearchInArray, LooksOnlyWhereItHasTo)
{
    const Ref<clsMatrix> x = RealMatrix({{1, 2, 3}});
    EXPECT_EQ(Searched(*x, 1, 100, 0.5).place, 1);
    EXPECT_EQ(Raised([&] { Searched(*x, 1, 4, 2.5); }), 9);
    EXPECT_EQ(Raised([&] { Searched(*x, 0, 3, 2.5); }), 9);
    EXPECT_EQ(Raised([&] { Searched(*x, -5, 3, 2.5); }), 9);
    EXPECT_EQ(Raised([&] { Searched(*MakeRef<clsMatrix>(), 1, 1, 2.5); }), 9);
    EXPECT_EQ(Raised([&] { Searched(*RealMatrix({{1, 2}, {3, 4}}), 1, 2, 2.5); }), 9);
    EXPECT_EQ(Raised([&] { Searched(*x, -kMost32 - 1, kMost32, 2.5); }), 9);
}

TEST(BinSearchInArray, EndsWhereElementsAreNoNumbers)
{
    EXPECT_EQ(Searched(*RealMatrix({{1, 2, 3}}), 1, 3, kNan).place, 3);
    EXPECT_EQ(Searched(*RealMatrix({{1, 2, kNan}}), 1, 3, 2.0).place, 3);
    EXPECT_EQ(Raised([] { Searched(*RealMatrix({{kNan, 3}}), 1, 2, 2.0); }), 5);
    EXPECT_EQ(Raised([] { Searched(*RealMatrix({{kNan, kNan, kNan, 3}}), 1, 4, 2.0); }), 5);
    EXPECT_EQ(Raised([] { Searched(*RealMatrix({{-kInfinity, 0, 3}}), 1, 3, -kInfinity); }), 5);
    EXPECT_EQ(Searched(*RealMatrix({{-kInfinity, 0, kInfinity}}), 1, 3, 1.0).place, 3);
}

} // namespace
} // namespace lumora
