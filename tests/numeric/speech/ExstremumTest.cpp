#include "numeric/Random.h"
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

std::vector<std::int32_t> Places(const Sound& x, const Variant& level = {})
{
    return Values(*RowOf(x)->FoundIndexesExstremumInVector_Max(level));
}

/// By definition: higher than the sample before, and the first other sample behind is lower.
std::vector<std::int32_t> MaximaByDefinition(const Sound& x, double level)
{
    std::vector<std::int32_t> places;
    for (std::size_t j = 1; j + 1 < x.size(); ++j) {
        const auto other = std::find_if(x.begin() + static_cast<std::ptrdiff_t>(j), x.end(),
                                        [&](double later) { return later != x[j]; });
        if (x[j] > x[j - 1] && other != x.end() && *other < x[j] && x[j] >= level)
            places.push_back(static_cast<std::int32_t>(j + 1));
    }
    return places;
}

/// A vector with plateaus.
Sound Hills(RandomMatrices& random, std::int32_t count)
{
    Sound x;
    while (static_cast<std::int32_t>(x.size()) < count)
        x.insert(x.end(), static_cast<std::size_t>(random.Whole(1, 3)), random.Whole(-4, 4));
    x.resize(static_cast<std::size_t>(count));
    return x;
}

TEST(FoundIndexesExstremum, FindsTheLeftEndsOfHills)
{
    EXPECT_EQ(Places({1, 3, 3, 2}), std::vector<std::int32_t>{2});
    EXPECT_EQ(Places({1, 3, 3}), std::vector<std::int32_t>{0});
    EXPECT_EQ(Places({5, 4, 3}), std::vector<std::int32_t>{0});
    EXPECT_EQ(Places({1, 2, 1, 2, 1}), (std::vector<std::int32_t>{2, 4}));
    EXPECT_EQ(Places({1, 2, 2, 3, 3, 1}), std::vector<std::int32_t>{4});
    // The first and the last sample have no neighbour to be higher than.
    EXPECT_EQ(Places({9, 1, 9}), std::vector<std::int32_t>{0});
    EXPECT_EQ(Places({9, 9, 1, 2, 1, 9}), std::vector<std::int32_t>{4});
}

TEST(FoundIndexesExstremum, IsTheDefinitionOnRandomHills)
{
    constexpr std::uint32_t kSeed = 4913;
    RandomMatrices random(kSeed);
    for (int round = 0; round < 500; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const Sound x = Hills(random, random.Whole(3, 40));
        const double level = random.Number();
        for (const bool with_level : {false, true}) {
            auto places = MaximaByDefinition(x, with_level ? level : -kInfinity);
            if (places.empty()) places = {0};
            const Variant asked = with_level ? Variant(level) : Variant();
            const Ref<clsLong> found = RowOf(x)->FoundIndexesExstremumInVector_Max(asked);
            EXPECT_EQ(Values(*found), places);
            EXPECT_EQ(ShapeOf(*found), Sized(1, static_cast<std::int32_t>(places.size())));
            EXPECT_EQ(Values(*ColumnOf(x)->FoundIndexesExstremumInVector_Max(asked)), places);
        }
    }
}

TEST(FoundIndexesExstremum, TakesMaximaNotBelowTheLevel)
{
    const Sound x{0, 1, 0, 2, 0, 3, 0};
    EXPECT_EQ(Places(x, 2.0), (std::vector<std::int32_t>{4, 6}));
    EXPECT_EQ(Places(x, "2.5"), std::vector<std::int32_t>{6});
    EXPECT_EQ(Places(x, 3.5), std::vector<std::int32_t>{0});
    EXPECT_EQ(Raised([&] { Places(x, "high"); }), 13);
}

TEST(FoundIndexesExstremum, OfAShortVectorOrAMatrixIsNone)
{
    const Ref<clsMatrix> objects[] = {MakeRef<clsMatrix>(), RealMatrix({{1}}), RealMatrix({{1, 2}}),
                                      RealMatrix({{1}, {2}}),
                                      RealMatrix({{1, 2, 1}, {1, 2, 1}, {0, 0, 0}})};
    for (const Ref<clsMatrix>& m : objects) {
        const Ref<clsLong> none = m->FoundIndexesExstremumInVector_Max();
        EXPECT_EQ(ShapeOf(*none), Sized(1, 1));
        EXPECT_EQ(Values(*none), std::vector<std::int32_t>{0});
        EXPECT_EQ(ShapeOf(*m->ExstremumValueAndIndexMax()), Sized(1, 2));
        EXPECT_EQ(Values(*m->ExstremumValueAndIndexMax()), (Sound{0, 0}));
        std::int32_t quantity = 3;
        EXPECT_EQ(Values(*m->SortExstremumMax(quantity)), (Sound{0, 0}));
    }
}

TEST(FoundIndexesExstremum, PassesWhatIsNoNumber)
{
    EXPECT_EQ(Places({1, kNan, 1, 2, 1}), std::vector<std::int32_t>{4});
    EXPECT_EQ(Places({1, 2, kNan, 1}), std::vector<std::int32_t>{0});
}

TEST(ExstremumValueAndIndexMax, IsInTheOrderOfTheSamples)
{
    const Ref<clsMatrix> table =
        RealMatrix({{0, 7, 0, 5, 5, 0, 9, 9}})->ExstremumValueAndIndexMax();
    EXPECT_EQ(ShapeOf(*table), Sized(2, 2));
    EXPECT_EQ(Values(*table), (Sound{7, 5, 2, 4}));
    EXPECT_EQ(ShapeOf(*RealMatrix({{0, 7, 0}})->ExstremumValueAndIndexMax()), Sized(1, 2));
    EXPECT_EQ(Values(*RealMatrix({{0, 7, 0}})->ExstremumValueAndIndexMax(7.0)), (Sound{7, 2}));
    EXPECT_EQ(Values(*RealMatrix({{0, 7, 0}})->ExstremumValueAndIndexMax(8.0)), (Sound{0, 0}));
}

TEST(SortExstremumMax, PutsTheLargestFirstAndTheEarlierOfEqualOnes)
{
    Sound x(13, 0.0);
    x[8] = 5;
    x[2] = 7;
    x[11] = 7;
    std::int32_t quantity = 2;
    EXPECT_EQ(Values(*RowOf(x)->SortExstremumMax(quantity)), (Sound{7, 7, 3, 12}));
    EXPECT_EQ(quantity, 2);
    quantity = 9;
    EXPECT_EQ(Values(*RowOf(x)->SortExstremumMax(quantity)), (Sound{7, 7, 5, 3, 12, 9}));
    EXPECT_EQ(quantity, 9);
    EXPECT_EQ(Values(*RowOf(x)->SortExstremumMax(quantity, 6.0)), (Sound{7, 7, 3, 12}));
}

TEST(SortExstremumMax, ShowsAtLeastOne)
{
    for (std::int32_t quantity : {0, -5, kLeast32}) {
        EXPECT_EQ(Values(*RealMatrix({{0, 1, 0, 2, 0}})->SortExstremumMax(quantity)),
                  (Sound{2, 4}));
        EXPECT_EQ(quantity, 1);
    }
    std::int32_t quantity = 0;
    RealMatrix({{1, 2}})->SortExstremumMax(quantity);
    EXPECT_EQ(quantity, 1);
}

TEST(SortExstremumMax, IsAStableSortByValue)
{
    constexpr std::uint32_t kSeed = 4914;
    RandomMatrices random(kSeed);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const Sound x = Hills(random, random.Whole(3, 90));
        std::vector<std::int32_t> places = MaximaByDefinition(x, -kInfinity);
        const auto value = [&x](std::int32_t place) {
            return x[static_cast<std::size_t>(place) - 1];
        };
        std::stable_sort(places.begin(), places.end(),
                         [&](std::int32_t a, std::int32_t b) { return value(a) > value(b); });
        std::int32_t quantity = random.Whole(1, 20);
        places.resize(std::min(places.size(), static_cast<std::size_t>(quantity)));
        Sound table;
        for (const std::int32_t place : places)
            table.push_back(value(place));
        table.insert(table.end(), places.begin(), places.end());
        if (table.empty()) table = {0, 0};
        EXPECT_EQ(Values(*ColumnOf(x)->SortExstremumMax(quantity)), table);
    }
}

TEST(MinmaxIndex, TellsValuesRowsAndColumns)
{
    EXPECT_EQ(Values(*RealMatrix({{4, 1, 9, 1, 9}})->MinmaxIndex()), (Sound{1, 9, 1, 1, 2, 3}));
    EXPECT_EQ(Values(*RealMatrix({{4}, {1}, {9}, {1}})->MinmaxIndex()), (Sound{1, 9, 2, 3, 1, 1}));
    EXPECT_EQ(Values(*RealMatrix({{2, 1}, {1, 2}})->MinmaxIndex()), (Sound{1, 2, 1, 1, 2, 1}));
    EXPECT_EQ(ShapeOf(*RealMatrix({{3}})->MinmaxIndex()), Sized(1, 6));
    EXPECT_EQ(Raised([] { MakeRef<clsMatrix>()->MinmaxIndex(); }), 9);
}

} // namespace
} // namespace lumora
