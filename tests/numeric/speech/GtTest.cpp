#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lumora {
namespace {

using namespace test;

using Answers = std::vector<std::int32_t>;

TEST(Gt, IsOneWhereTheElementIsStrictlyGreater)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2, 3}, {3, 2, 1}});
    const Variant twos[] = {2.0,
                            std::int32_t{2},
                            " 2 ",
                            Currency{20000},
                            Scalar(2, 9),
                            RealMatrix({{2, 2, 2}, {2, 2, 2}}),
                            LongMatrix({{2, 2, 2}, {2, 2, 2}}),
                            ComplexMatrix({{{2, 9}, {2, -9}, 2}, {2, 2, 2}})};
    for (const Variant& two : twos) {
        const Ref<clsLong> greater = m->Gt(two);
        EXPECT_EQ(ShapeOf(*greater), Sized(2, 3));
        EXPECT_EQ(Values(*greater), (Answers{0, 1, 0, 0, 1, 0}));
    }
}

TEST(Gt, ComparesElementByElement)
{
    constexpr std::uint32_t kSeed = 4917;
    RandomMatrices random(kSeed);
    for (int round = 0; round < 50; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const std::int32_t rows = random.Whole(1, 4);
        const std::int32_t columns = random.Whole(1, 4);
        const Ref<clsMatrix> a = random.Real(rows, columns);
        const Ref<clsMatrix> b = random.Real(rows, columns);
        const Ref<clsLong> whole = random.Long(rows, columns);
        for (std::int32_t i = 1; i <= rows; ++i)
            for (std::int32_t j = 1; j <= columns; ++j) {
                EXPECT_EQ(a->Gt(b)->Real(i, j), a->Real(i, j) > b->Real(i, j) ? 1 : 0);
                EXPECT_EQ(a->Gt(whole)->Real(i, j), a->Real(i, j) > whole->Real(i, j) ? 1 : 0);
            }
    }
}

TEST(Gt, TakesElementObjectsOnlyUnderATagThatNoClassSets)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 3}});
    const Ref<clsMatrixComplex> objects = ObjectMatrix({{{2, 5}, {2, 5}}});
    const MessageRecorder silent;
    EXPECT_FALSE(m->Gt(objects));
    objects->TypeOfMatrix = "cm";
    EXPECT_EQ(Values(*m->Gt(objects)), (Answers{0, 1}));
    EXPECT_EQ(silent.shown, Shown{});
}

TEST(Gt, OfOtherSizesIsAMessageAndEmpty)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2, 3}});
    const Ref<clsMatrixComplex> objects = ObjectMatrix({{1, 2}});
    objects->TypeOfMatrix = "cm";
    const Variant others[] = {
        RealMatrix({{1}, {2}, {3}}),           RealMatrix({{1}}), LongMatrix({{1, 2}}),
        ComplexMatrix({{1, 2, 3}, {1, 2, 3}}), objects,           MakeRef<clsMatrix>()};
    for (const Variant& other : others) {
        MessageRecorder messages;
        EXPECT_FALSE(m->Gt(other));
        EXPECT_EQ(messages.shown, Shown{Plain("Matrix dimensions must agree.")});
    }
}

TEST(Gt, OfWhatIsNoOperandIsEmptyWithoutAMessage)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}});
    const Variant others[] = {Variant(), "two", Row<double>({1, 2}), TextMatrix({{"1", "2"}}),
                              MakeRef<clsVariant>()};
    const MessageRecorder silent;
    for (const Variant& other : others)
        EXPECT_FALSE(m->Gt(other));
    EXPECT_EQ(silent.shown, Shown{});
}

TEST(Gt, StopsAtABeliedTagAndWithoutElements)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}});
    const Ref<clsLong> belied = LongMatrix({{1, 2}});
    belied->TypeOfMatrix = "r";
    EXPECT_EQ(Raised([&] { m->Gt(belied); }), 13);
    EXPECT_EQ(Raised([&] { m->Gt(Ref<clsMatrix>()); }), 91);
    EXPECT_EQ(Raised([&] { MakeRef<clsMatrix>()->Gt(1.0); }), 9);
    EXPECT_EQ(Raised([&] { MakeRef<clsMatrix>()->Gt(MakeRef<clsMatrix>()); }), 9);
}

TEST(Gt, IsNeverTrueOfWhatIsNoNumber)
{
    EXPECT_EQ(Values(*RealMatrix({{kNan, 1}})->Gt(0.0)), (Answers{0, 1}));
    EXPECT_EQ(Values(*RealMatrix({{0, 1}})->Gt(kNan)), (Answers{0, 0}));
    EXPECT_EQ(Values(*RealMatrix({{0.0, -0.0}})->Gt(-0.0)), (Answers{0, 0}));
}

} // namespace
} // namespace lumora
