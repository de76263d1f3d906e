#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumora {
namespace {

using namespace test;

using Answers = std::vector<std::int32_t>;

TEST(All, TellsColumnsAndRowsWithoutAZero)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 0, 2}, {3, 4, 5}});
    EXPECT_EQ(Values(*m->All(1.0)), (Answers{1, 0, 1}));
    EXPECT_EQ(ShapeOf(*m->All(1.0)), Sized(1, 3));
    EXPECT_EQ(Values(*m->All(2.0)), (Answers{0, 1}));
    EXPECT_EQ(ShapeOf(*m->All(2.0)), Sized(2, 1));
    EXPECT_EQ(Values(*m->All()), Values(*m->All(1.0)));
    EXPECT_FALSE(m->AllAll());
    EXPECT_TRUE(RealMatrix({{1, -2}})->AllAll());
}

TEST(AnyObj, TellsColumnsAndRowsWithAnElementOtherThanZero)
{
    const Ref<clsLong> m = LongMatrix({{0, 0, 2}, {0, -4, 5}, {0, 0, 0}});
    EXPECT_EQ(Values(*m->AnyObj(1.0)), (Answers{0, 1, 1}));
    EXPECT_EQ(Values(*m->AnyObj(2.0)), (Answers{1, 1, 0}));
    EXPECT_EQ(Values(*m->AnyObj()), Values(*m->AnyObj(1.0)));
    EXPECT_TRUE(m->AnyAny());
    EXPECT_FALSE(LongMatrix({{0, 0}})->AnyAny());
}

TEST(All, GoesAlongARowByDefault)
{
    EXPECT_EQ(Values(*RealMatrix({{1, 0, 2}})->All()), Answers{0});
    EXPECT_EQ(Values(*RealMatrix({{1, 0, 2}})->AnyObj()), Answers{1});
    EXPECT_EQ(Values(*RealMatrix({{1, 0, 2}})->All(1.0)), (Answers{1, 0, 1}));
}

TEST(All, CountsAnElementByItsValue)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Values(*RealMatrix({{-0.0, nan, 5e-324}})->All(1.0)), (Answers{0, 1, 1}));
    EXPECT_EQ(Values(*ComplexMatrix({{0, {0, 1}, {1, 0}}})->All(1.0)), (Answers{0, 1, 1}));
    EXPECT_EQ(Values(*ObjectMatrix({{0, {0, 1}, {-0.0, 0}}})->AnyObj(1.0)), (Answers{0, 1, 0}));
    EXPECT_EQ(Values(*TextMatrix({{"", "0", " 0.00 ", "-0e5", "a", " ", "0x", "1"}})->All(1.0)),
              (Answers{0, 0, 0, 0, 1, 1, 1, 1}));
    EXPECT_TRUE(TextMatrix({{"0", "a"}})->AnyAny());
    EXPECT_FALSE(TextMatrix({{"0", ""}})->AnyAny());
    EXPECT_FALSE(ComplexMatrix({{0, 0}})->AllAll());
    EXPECT_TRUE(ObjectMatrix({{1, {0, 1}}})->AllAll());
    EXPECT_TRUE(TextMatrix({{"a", "b"}})->AllAll());
}

TEST(AllAll, OfNoElementsIsTrueAndAnyAnyFalse)
{
    EXPECT_TRUE(clsMatrix().AllAll() && clsLong().AllAll() && clsComplexMatrix().AllAll() &&
                clsMatrixComplex().AllAll() && clsString().AllAll());
    EXPECT_FALSE(clsMatrix().AnyAny() || clsLong().AnyAny() || clsComplexMatrix().AnyAny() ||
                 clsMatrixComplex().AnyAny() || clsString().AnyAny());
}

TEST(AllAll, OfZerosIsFalse)
{
    EXPECT_FALSE(RealMatrix({{0, 0}, {0, 0}})->AllAll());
    EXPECT_FALSE(LongMatrix({{0}})->AllAll());
}

TEST(All, WithoutElementsRaisesError9)
{
    EXPECT_EQ(Raised([] { clsMatrix().All(); }), 9);
    EXPECT_EQ(Raised([] { clsString().AnyObj(2.0); }), 9);
}

TEST(All, OfAllLinesIsAllOfTheMatrix)
{
    constexpr std::uint32_t kSeed = 4507;
    RandomMatrices random(kSeed);
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const Ref<clsLong> m = random.Long(random.Whole(1, 4), random.Whole(1, 4));
        const Answers values = Values(*m);
        const auto zero = [](std::int32_t x) { return x == 0; };
        EXPECT_EQ(m->AllAll(), std::none_of(values.begin(), values.end(), zero));
        EXPECT_EQ(m->AnyAny(), !std::all_of(values.begin(), values.end(), zero));
        for (const double dimention : {1.0, 2.0}) {
            EXPECT_EQ(m->All(dimention)->AllAll(), m->AllAll());
            EXPECT_EQ(m->AnyObj(dimention)->AnyAny(), m->AnyAny());
        }
    }
}

} // namespace
} // namespace lumora
