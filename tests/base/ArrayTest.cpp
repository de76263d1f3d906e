#include "base/Array.h"

#include "support/Arrays.h"
#include "support/Raised.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>

namespace lumora {
namespace {

using test::Elements;
using test::Raised;
using test::Row;
using test::Table;

TEST(Array, StartsWithoutADimension)
{
    Array<int> array;
    EXPECT_EQ(array.Dimensions(), 0);
    EXPECT_TRUE(array.Span().empty());
    EXPECT_EQ(Raised([&] { array.LBound(); }), 9);
    EXPECT_EQ(Raised([&] { array.UBound(); }), 9);
    EXPECT_EQ(Raised([&] { array(1); }), 9);
    EXPECT_EQ(Raised([&] { array(1, 1); }), 9);
}

TEST(Array, CountsFromOneUnlessTold)
{
    Array<int> row(5);
    EXPECT_EQ(row.Dimensions(), 1);
    EXPECT_EQ(row.LBound(), 1);
    EXPECT_EQ(row.UBound(), 5);

    Array<int> table(2, 3);
    EXPECT_EQ(table.Dimensions(), 2);
    EXPECT_EQ(table.LBound(1), 1);
    EXPECT_EQ(table.UBound(1), 2);
    EXPECT_EQ(table.LBound(2), 1);
    EXPECT_EQ(table.UBound(2), 3);
}

TEST(Array, HasAZeroInEachElementWhenNew)
{
    EXPECT_EQ(Elements(Array<double>(4)), (std::vector{0.0, 0.0, 0.0, 0.0}));
    EXPECT_EQ(Elements(Array<std::string>(1, 2)), std::vector<std::string>(2));
}

TEST(Array, TakesAnyLowerBound)
{
    Array<int> array;
    array.ReDim({-3, 2});
    array(-3) = 10;
    array(2) = 20;
    EXPECT_EQ(Elements(array), (std::vector{10, 0, 0, 0, 0, 20}));
    EXPECT_EQ(Raised([&] { array(-4); }), 9);
    EXPECT_EQ(Raised([&] { array(3); }), 9);

    array.ReDim({0, 1}, {5, 6});
    EXPECT_EQ(array.LBound(2), 5);
    array(0, 5) = 1;
    array(1, 5) = 2;
    array(0, 6) = 3;
    array(1, 6) = 4;
    EXPECT_EQ(Elements(array), (std::vector{1, 2, 3, 4}));
}

TEST(Array, KeepsItsColumnsTogether)
{
    const auto table = Table<int>({{1, 2, 3}, {4, 5, 6}});
    EXPECT_EQ(Elements(table), (std::vector{1, 4, 2, 5, 3, 6}));
    EXPECT_EQ(table(2, 3), 6);
}

TEST(Array, ChecksEveryIndexAtBothEnds)
{
    Array<int> row(3);
    for (std::int64_t i :
         {std::int64_t{0}, std::int64_t{4}, std::int64_t{-1},
          std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()})
        EXPECT_EQ(Raised([&] { row(i) = 1; }), 9) << i;

    const Array<int> table(2, 3);
    const std::int64_t outside[][2] = {{0, 1}, {3, 1}, {1, 0}, {1, 4}, {3, 0}, {0, 4}};
    for (const auto& at : outside)
        EXPECT_EQ(Raised([&] { table(at[0], at[1]); }), 9) << at[0] << ',' << at[1];
}

TEST(Array, IsAskedForAsManyIndicesAsItHasDimensions)
{
    Array<int> row(3);
    Array<int> table(3, 3);
    EXPECT_EQ(Raised([&] { row(1, 1); }), 9);
    EXPECT_EQ(Raised([&] { table(1); }), 9);
    EXPECT_EQ(Raised([&] { row.UBound(2); }), 9);
    EXPECT_EQ(Raised([&] { row.LBound(0); }), 9);
    EXPECT_EQ(Raised([&] { table.UBound(3); }), 9);
}

TEST(Array, RefusesAnEmptyShapeAndKeepsWhatItHad)
{
    auto array = Row<int>({1, 2, 3});
    EXPECT_EQ(Raised([&] { array.ReDim({1, 0}); }), 9);
    EXPECT_EQ(Raised([&] { array.ReDim({1, 2}, {1, 0}); }), 9);
    EXPECT_EQ(Raised([&] { array.ReDim({1, -5}, {1, -5}); }), 9);
    EXPECT_EQ(Raised([&] { array.ReDimForOverwrite({5, 4}); }), 9);
    EXPECT_EQ(Raised([] { Array<int>(0); }), 9);
    EXPECT_EQ(Raised([] { Array<int>(-1); }), 9);
    EXPECT_EQ(Raised([] { Array<int>(2, 0); }), 9);
    EXPECT_EQ(array, Row<int>({1, 2, 3}));
}

TEST(Array, RunsOutOfMemoryBeforeItRunsOutOfNumbers)
{
    auto array = Row<double>({1, 2, 3});
    const std::int64_t most = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(Raised([&] { array.ReDim({1, most}); }), 7);
    EXPECT_EQ(Raised([&] { array.ReDim({1, most / 2}, {1, 3}); }), 7);
    EXPECT_EQ(Raised([&] { array.ReDimForOverwrite({1, most / 4}); }), 7);
    EXPECT_EQ(array, Row<double>({1, 2, 3}));
}

TEST(Array, ForgetsItsContentsWithANewShape)
{
    auto array = Row<int>({1, 2, 3});
    array.ReDim({1, 4});
    EXPECT_EQ(Elements(array), (std::vector{0, 0, 0, 0}));
    array(4) = 9;
    array.ReDim({1, 2}, {1, 2});
    EXPECT_EQ(Elements(array), (std::vector{0, 0, 0, 0}));
}

TEST(Array, UsesItsMemoryAgainWhenItIsToBeOverwritten)
{
    Array<double> array(100);
    const double* const before = array.Span().data();
    for (std::int64_t count : {100, 40, 99, 1, 100}) {
        array.ReDimForOverwrite({1, count});
        EXPECT_EQ(array.UBound(), count);
        EXPECT_EQ(array.Span().size(), static_cast<std::size_t>(count));
        EXPECT_EQ(array.Span().data(), before);
    }
    array.ReDimForOverwrite({1, 2}, {1, 50});
    EXPECT_EQ(array.Dimensions(), 2);
    EXPECT_EQ(array.Span().data(), before);
}

TEST(Array, HasNoDimensionAfterErase)
{
    auto array = Table<int>({{1, 2}});
    array.Erase();
    EXPECT_EQ(array.Dimensions(), 0);
    EXPECT_EQ(array, Array<int>());
    EXPECT_EQ(Raised([&] { array.UBound(); }), 9);
}

TEST(Array, IsCheckedAfterItsContentsHaveMovedAway)
{
    auto array = Row<int>({1, 2, 3});
    const Array<int> taken = std::move(array);
    EXPECT_EQ(taken, Row<int>({1, 2, 3}));
    EXPECT_EQ(Raised([&] { array(1); }), 9); // NOLINT: the point of it
}

TEST(Array, KeepsItsElementsWhenTheLastDimensionGrowsOrShrinks)
{
    auto row = Row<int>({1, 2});
    row.ReDimPreserve(4);
    EXPECT_EQ(row, Row<int>({1, 2, 0, 0}));
    row.ReDimPreserve(1);
    EXPECT_EQ(row, Row<int>({1}));

    auto table = Table<int>({{1, 2}, {3, 4}});
    table.ReDimPreserve(3);
    EXPECT_EQ(table, Table<int>({{1, 2, 0}, {3, 4, 0}}));
    table.ReDimPreserve(1);
    EXPECT_EQ(table, Table<int>({{1}, {3}}));

    EXPECT_EQ(Raised([&] { table.ReDimPreserve(0); }), 9);
    EXPECT_EQ(Raised([] { Array<int>().ReDimPreserve(1); }), 9);
    EXPECT_EQ(table, Table<int>({{1}, {3}}));
}

TEST(Array, TakesOtherBoundsOverTheSameElements)
{
    auto array = Row<int>({1, 2, 3, 4, 5, 6});
    array.Rebase({1, 2}, {1, 3});
    EXPECT_EQ(array, Table<int>({{1, 3, 5}, {2, 4, 6}}));
    array.Rebase({0, 5});
    EXPECT_EQ(array(0), 1);
    EXPECT_EQ(array(5), 6);
    EXPECT_EQ(Raised([&] { array.Rebase({1, 5}); }), 9);
    EXPECT_EQ(Raised([&] { array.Rebase({1, 0}); }), 9);
    EXPECT_EQ(Raised([&] { array.Rebase({1, INT64_MAX}, {1, 4}); }), 9);
    EXPECT_EQ(array(5), 6);
}

TEST(Array, EqualsAnotherOfTheSameShapeAndContents)
{
    EXPECT_EQ(Row<int>({1, 2}), Row<int>({1, 2}));
    EXPECT_NE(Row<int>({1, 2}), Row<int>({1, 3}));
    EXPECT_NE(Row<int>({1, 2}), Table<int>({{1, 2}}));
    EXPECT_NE(Table<int>({{1, 2}}), Table<int>({{1}, {2}}));
    Array<int> from_zero;
    from_zero.ReDim({0, 1});
    EXPECT_NE(from_zero, Array<int>(2));
}

} // namespace
} // namespace lumora
