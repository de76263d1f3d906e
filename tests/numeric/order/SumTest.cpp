#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumora {
namespace {

using namespace test;

/// A result that is a matrix of these rows.
void ExpectMatrix(const Variant& result, Rows<double> rows)
{
    const Ref<clsMatrix> expected = RealMatrix(rows);
    EXPECT_EQ(ShapeOf(*result.As<Ref<clsMatrix>>()), ShapeOf(*expected));
    EXPECT_EQ(Values(*result.As<Ref<clsMatrix>>()), Values(*expected));
}

TEST(Sum, OfARowIsANumber)
{
    EXPECT_EQ(RealMatrix({{1, 2, 4}})->Sum(), Variant(7.0));
    EXPECT_EQ(RealMatrix({{1, 2, 4}})->Sum(2.0), Variant(7.0));
}

TEST(Sum, OfAColumnIsANumber)
{
    EXPECT_EQ(RealMatrix({{1}, {2}, {4}})->Sum(), Variant(7.0));
    EXPECT_EQ(RealMatrix({{1}, {2}, {4}})->Sum(std::int32_t{1}), Variant(7.0));
}

TEST(Sum, OfOneElementIsThatNumberEitherWay)
{
    EXPECT_EQ(RealMatrix({{3.5}})->Sum(), Variant(3.5));
    EXPECT_EQ(RealMatrix({{3.5}})->Sum(1.0), Variant(3.5));
    EXPECT_EQ(RealMatrix({{3.5}})->Sum(2.0), Variant(3.5));
}

TEST(Sum, AcrossAVectorIsANamedCopy)
{
    const Ref<clsMatrix> row = RealMatrix({{1, 2, 4}});
    const Variant copy = row->Sum(1.0, "sum");
    ExpectMatrix(copy, {{1, 2, 4}});
    EXPECT_EQ(copy.As<Ref<clsMatrix>>()->Name, "sum");
    EXPECT_NE(copy.As<Ref<clsMatrix>>(), row);
    ExpectMatrix(RealMatrix({{1}, {2}})->Sum(2.0), {{1}, {2}});
}

TEST(Sum, OfAMatrixIsARowOrAColumn)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2, 3}, {10, 20, 30}});
    ExpectMatrix(m->Sum(), {{11, 22, 33}});
    ExpectMatrix(m->Sum(1.0), {{11, 22, 33}});
    ExpectMatrix(m->Sum(2.0), {{6}, {60}});
    EXPECT_EQ(m->Sum(2.0, "rows").As<Ref<clsMatrix>>()->Name, "rows");
    ExpectMatrix(m, {{1, 2, 3}, {10, 20, 30}});
}

TEST(Sum, AddsFromTheFirstElementOn)
{
    // The other way round the ones would count.
    EXPECT_EQ(RealMatrix({{1e16, 1, 1, 1, 1}})->Sum(), Variant(1e16));
    EXPECT_EQ(RealMatrix({{1, 1, 1, 1, 1e16}})->Sum(), Variant(1e16 + 4));
    ExpectMatrix(RealMatrix({{1e16, 1, 1}, {1, 1, 1e16}})->Sum(2.0), {{1e16}, {1e16 + 2}});
}

TEST(Reverse, TurnsAVectorRound)
{
    ExpectMatrix(RealMatrix({{1, 2, 3}})->Reverse(), {{3, 2, 1}});
    ExpectMatrix(RealMatrix({{1, 2, 3}})->Reverse(2.0), {{3, 2, 1}});
    ExpectMatrix(RealMatrix({{1}, {2}, {3}})->Reverse(), {{3}, {2}, {1}});
    ExpectMatrix(RealMatrix({{7}})->Reverse(), {{7}});
}

TEST(Reverse, AcrossAVectorIsANamedCopy)
{
    const Variant copy = RealMatrix({{1, 2, 3}})->Reverse(1.0, "copy");
    ExpectMatrix(copy, {{1, 2, 3}});
    EXPECT_EQ(copy.As<Ref<clsMatrix>>()->Name, "copy");
    ExpectMatrix(RealMatrix({{1}, {2}})->Reverse(2.0), {{1}, {2}});
}

TEST(Reverse, OfAMatrixSwapsRowsOrColumns)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2, 3}, {4, 5, 6}});
    ExpectMatrix(m->Reverse(), {{4, 5, 6}, {1, 2, 3}});
    ExpectMatrix(m->Reverse(1.0), {{4, 5, 6}, {1, 2, 3}});
    ExpectMatrix(m->Reverse(2.0), {{3, 2, 1}, {6, 5, 4}});
    ExpectMatrix(m, {{1, 2, 3}, {4, 5, 6}});
}

TEST(Reverse, TwiceIsACopy)
{
    RandomMatrices random(31);
    for (const auto& [rows, columns] : {std::pair{1, 9}, {8, 1}, {5, 4}, {2, 7}})
        for (const double dimention : {1.0, 2.0}) {
            const Ref<clsMatrix> m = random.Real(rows, columns);
            const Variant once = m->Reverse(dimention);
            const Variant twice = once.As<Ref<clsMatrix>>()->Reverse(dimention);
            EXPECT_EQ(Values(*twice.As<Ref<clsMatrix>>()), Values(*m));
        }
}

TEST(Cumsum, RunsFromTheFirstElement)
{
    ExpectMatrix(RealMatrix({{1, 2, 4}})->Cumsum(), {{1, 3, 7}});
    ExpectMatrix(RealMatrix({{1, 2, 4}})->Cumsum(2.0), {{1, 3, 7}});
    ExpectMatrix(RealMatrix({{1}, {2}, {4}})->Cumsum(), {{1}, {3}, {7}});
    ExpectMatrix(RealMatrix({{5}})->Cumsum(), {{5}});
}

TEST(Cumsum, AcrossAVectorIsANamedCopy)
{
    const Variant copy = RealMatrix({{1, 2, 4}})->Cumsum(1.0, "copy");
    ExpectMatrix(copy, {{1, 2, 4}});
    EXPECT_EQ(copy.As<Ref<clsMatrix>>()->Name, "copy");
    ExpectMatrix(RealMatrix({{1}, {2}})->Cumsum(2.0), {{1}, {2}});
}

TEST(Cumsum, OfAMatrixRunsDownOrAlong)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2, 3}, {10, 20, 30}, {100, 200, 300}});
    ExpectMatrix(m->Cumsum(), {{1, 2, 3}, {11, 22, 33}, {111, 222, 333}});
    ExpectMatrix(m->Cumsum(2.0), {{1, 3, 6}, {10, 30, 60}, {100, 300, 600}});
    EXPECT_EQ(m->Cumsum(1.0, "down").As<Ref<clsMatrix>>()->Name, "down");
}

TEST(Cumsum, EndsInTheSum)
{
    RandomMatrices random(32);
    const Ref<clsMatrix> m = random.Real(6, 5);
    const Ref<clsMatrix> down = m->Cumsum(1.0).As<Ref<clsMatrix>>();
    const Ref<clsMatrix> along = m->Cumsum(2.0).As<Ref<clsMatrix>>();
    EXPECT_EQ(Values(*down->OutMatrix(6, 1, 6, 5)), Values(*m->Sum(1.0).As<Ref<clsMatrix>>()));
    EXPECT_EQ(Values(*along->OutMatrix(1, 5, 6, 5)), Values(*m->Sum(2.0).As<Ref<clsMatrix>>()));
}

TEST(Cumsum, KeepsTheSignOfAFirstZero)
{
    const Variant sums = RealMatrix({{-0.0, -0.0, 0.0}})->Cumsum();
    EXPECT_TRUE(std::signbit(sums.As<Ref<clsMatrix>>()->Real(1, 2)));
    EXPECT_FALSE(std::signbit(sums.As<Ref<clsMatrix>>()->Real(1, 3)));
    EXPECT_TRUE(std::signbit(RealMatrix({{-0.0}})->Sum().Number()));
}

TEST(SumReverseCumsum, InAnotherDirectionAreEmpty)
{
    MessageRecorder recorder;
    for (const Ref<clsMatrix>& m : {RealMatrix({{1, 2}}), RealMatrix({{1, 2}, {3, 4}})})
        for (const double dimention : {0.0, 3.0, -1.0}) {
            EXPECT_TRUE(m->Sum(dimention).IsEmpty());
            EXPECT_TRUE(m->Reverse(dimention).IsEmpty());
            EXPECT_TRUE(m->Cumsum(dimention).IsEmpty());
        }
    EXPECT_TRUE(recorder.shown.empty());
}

TEST(SumReverseCumsum, StopWithoutElements)
{
    for (const Variant& dimention : {Variant(), Variant(1.0), Variant(2.0)}) {
        EXPECT_EQ(Raised([&] { clsMatrix().Sum(dimention); }), 9);
        EXPECT_EQ(Raised([&] { clsMatrix().Reverse(dimention); }), 9);
        EXPECT_EQ(Raised([&] { clsMatrix().Cumsum(dimention); }), 9);
    }
    const Ref<clsMatrix> belied = RealMatrix({{1, 2, 3}});
    belied->size1 = 2;
    EXPECT_EQ(Raised([&] { belied->Sum(); }), 9);
}

TEST(Sum, RaisesError6WhereFiniteElementsOverflow)
{
    for (const Ref<clsMatrix>& m :
         {RealMatrix({{1e308, 1e308}}), RealMatrix({{1e308}, {1e308}, {-kInfinity}}),
          RealMatrix({{1, 2}, {3, 1e308}, {4, 1e308}})}) {
        EXPECT_EQ(Raised([&] { m->Sum(); }), 6);
        EXPECT_EQ(Raised([&] { m->Cumsum(); }), 6);
    }
    EXPECT_EQ(Raised([] { RealMatrix({{1, 2}, {1e308, 1e308}})->Sum(2.0); }), 6);
    EXPECT_EQ(Raised([] { RealMatrix({{1, 2}, {1e308, 1e308}})->Cumsum(2.0); }), 6);
}

TEST(Sum, LetsInfinitiesPass)
{
    EXPECT_EQ(RealMatrix({{1, kInfinity, 1e308, 1e308}})->Sum(), Variant(kInfinity));
    ExpectMatrix(RealMatrix({{1, -kInfinity, 5}})->Cumsum(), {{1, -kInfinity, -kInfinity}});
    EXPECT_TRUE(std::isnan(RealMatrix({{kInfinity, -kInfinity}})->Sum().Number()));
}

TEST(FillObject, CountsFromOne)
{
    const Ref<clsMatrix> m = RealMatrix({{9, 9}, {9, 9}, {9, 9}});
    m->Name = "kept";
    m->TypeOfMatrix = "other";
    m->FillObject(4);
    EXPECT_EQ(ShapeOf(*m), Sized(1, 4));
    EXPECT_EQ(Values(*m), (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(m->TypeOfMatrix, "r");
    EXPECT_EQ(m->Name, "kept");
    m->FillObject(1);
    EXPECT_EQ(Values(*m), std::vector<double>{1});
}

TEST(FillObject, BelowOneIsError9)
{
    const Ref<clsMatrix> m = RealMatrix({{5, 6}});
    EXPECT_EQ(Raised([&] { m->FillObject(0); }), 9);
    EXPECT_EQ(Raised([&] { m->FillObject(-3); }), 9);
    EXPECT_EQ(Values(*m), (std::vector<double>{5, 6}));
}

} // namespace
} // namespace lumora
