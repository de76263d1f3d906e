#include "numeric/Numbered.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::LongMatrix;
using test::MessageRecorder;
using test::Numbered;
using test::Numbers;
using test::Plain;
using test::Raised;
using test::RealMatrix;
using test::ShapeOf;
using test::Shown;
using test::Sized;

using Longs = std::vector<std::int32_t>;

template <class M> class Reshape : public testing::Test {
};
TYPED_TEST_SUITE(Reshape, test::Matrices);

TYPED_TEST(Reshape, KeepsTheLinearOrder)
{
    const auto m = Numbered<TypeParam>(3, 4);
    const Longs order = Numbers(*m);
    for (const auto& [rows, columns] :
         {std::pair{1, 12}, {2, 6}, {3, 4}, {4, 3}, {6, 2}, {12, 1}}) {
        const auto other = m->NewSizeOfMatrix(rows, columns);
        EXPECT_FALSE(other == m);
        EXPECT_EQ(ShapeOf(*other), Sized(rows, columns));
        EXPECT_EQ(Numbers(*other), order);
    }
    EXPECT_EQ(Numbers(*m->NewSizeOfMatrix(1, 12)->NewSizeOfMatrix(3, 4)), order);
}

TYPED_TEST(Reshape, OfARowToARowIsTheVeryReceiver)
{
    const auto row = Numbered<TypeParam>(1, 4);
    EXPECT_EQ(row->NewSizeOfMatrix(1, 4), row);
    EXPECT_FALSE(row->NewSizeOfMatrix(4, 1) == row);
}

TYPED_TEST(Reshape, ShowsAMessageForAnotherProduct)
{
    MessageRecorder messages;
    const auto m = Numbered<TypeParam>(2, 3);
    EXPECT_FALSE(m->NewSizeOfMatrix(2, 2) || m->NewSizeOfMatrix(1, 7) ||
                 m->NewSizeOfMatrix(-2, 3) || m->NewSizeOfMatrix(0, 0));
    // 2^31 + 3 times 2 is 6 in 32 bits.
    EXPECT_FALSE(m->NewSizeOfMatrix(-2147483645, 2));
    EXPECT_FALSE(m->NewSizeOfMatrix(65536, 65536));
    EXPECT_EQ(messages.shown,
              Shown(6, Plain("Parameters Must be as NewSize1*NewSize2=size1*size2")));
}

TYPED_TEST(Reshape, RefusesSizesBelowOneOfTheRightProduct)
{
    MessageRecorder messages;
    const auto m = Numbered<TypeParam>(2, 3);
    EXPECT_EQ(Raised([&] { m->NewSizeOfMatrix(-2, -3); }), 9);
    const auto none = MakeRef<TypeParam>();
    EXPECT_EQ(Raised([&] { none->NewSizeOfMatrix(0, 5); }), 9);
    EXPECT_EQ(messages.shown, Shown{});
}

TEST(NewSizeOfMatrix, GivesTheReceiverSoThatAWriteShowsInBoth)
{
    const Ref<clsMatrix> row = RealMatrix({{1, 2, 3}});
    row->NewSizeOfMatrix(1, 3)->Set_elements_matrix(1, 2, 20);
    EXPECT_EQ(row->Real(1, 2), 20.0);
    const Ref<clsMatrix> column = row->NewSizeOfMatrix(3, 1);
    column->Real(1, 1, 10);
    EXPECT_EQ(row->Real(1, 1), 1.0);
}

TEST(NewSizeOfMatrix, CannotGiveAReceiverThatNoRefHolds)
{
    clsMatrix row;
    row.Initial_matrix(1, 3);
    EXPECT_EQ(Raised([&] { row.NewSizeOfMatrix(1, 3); }), 91);
    EXPECT_EQ(ShapeOf(*row.NewSizeOfMatrix(3, 1)), Sized(3, 1));
}

TEST(NewSizeOfMatrix, GivesElementObjectsOfTheirOwn)
{
    const Ref<clsMatrixComplex> mc = Numbered<clsMatrixComplex>(2, 2);
    mc->NewSizeOfMatrix(1, 4)->Real(1, 1)->SetComplex(0, 0);
    EXPECT_EQ(mc->Real(1, 1)->Real, 101.0);
}

template <class M> class Growth : public testing::Test {
};
using Growers = testing::Types<clsMatrix, clsLong, clsComplexMatrix, clsString, clsVariant>;
TYPED_TEST_SUITE(Growth, Growers);

template <class M> void Append(M& m, const M& other)
{
    if constexpr (requires { m.CatRefreshVariant(other); })
        m.CatRefreshVariant(other);
    else
        m.CatRefresh(other);
}

TYPED_TEST(Growth, KeepsWhatStaysWhenTheWidthChanges)
{
    const auto m = Numbered<TypeParam>(2, 2);
    m->RedimPreserve(4);
    EXPECT_EQ(ShapeOf(*m), Sized(2, 4));
    EXPECT_EQ(Numbers(*m->OutMatrix(1, 1, 2, 2)), (Longs{101, 201, 102, 202}));
    m->RedimPreserve(1);
    EXPECT_EQ(ShapeOf(*m), Sized(2, 1));
    EXPECT_EQ(Numbers(*m), (Longs{101, 201}));
}

TYPED_TEST(Growth, KeepsARowInOneDimension)
{
    const auto row = Numbered<TypeParam>(1, 2);
    row->RedimPreserve(3);
    EXPECT_EQ(ShapeOf(*row), Sized(1, 3));
    Append(*row, *Numbered<TypeParam>(1, 2));
    EXPECT_EQ(ShapeOf(*row), Sized(1, 5));
    EXPECT_EQ(Numbers(*row->OutMatrix(4, 5)), (Longs{101, 102}));
}

TYPED_TEST(Growth, RefusesAnEmptyShapeAndStaysAsItWas)
{
    const auto m = Numbered<TypeParam>(2, 2);
    EXPECT_EQ(Raised([&] { m->RedimPreserve(0); }), 9);
    EXPECT_EQ(Raised([&] { m->RedimPreserve(-1); }), 9);
    EXPECT_EQ(ShapeOf(*m), Sized(2, 2));
    EXPECT_EQ(Numbers(*m), (Longs{101, 201, 102, 202}));
    EXPECT_EQ(Raised([] { MakeRef<TypeParam>()->RedimPreserve(2); }), 9);
}

TYPED_TEST(Growth, TakesTheColumnsOfAnother)
{
    const auto m = Numbered<TypeParam>(2, 2);
    const auto other = Numbered<TypeParam>(2, 3);
    Append(*m, *other);
    EXPECT_EQ(ShapeOf(*m), Sized(2, 5));
    EXPECT_EQ(Numbers(*m), (Longs{101, 201, 102, 202, 101, 201, 102, 202, 103, 203}));
    EXPECT_EQ(Numbers(*m->OutMatrix(1, 3, 2, 5)), Numbers(*other));
    EXPECT_EQ(ShapeOf(*other), Sized(2, 3));
}

TYPED_TEST(Growth, TakesItsOwnColumnsAgain)
{
    const auto m = Numbered<TypeParam>(2, 2);
    Append(*m, *m);
    EXPECT_EQ(ShapeOf(*m), Sized(2, 4));
    EXPECT_EQ(Numbers(*m), (Longs{101, 201, 102, 202, 101, 201, 102, 202}));
    const auto row = Numbered<TypeParam>(1, 300);
    Append(*row, *row);
    EXPECT_EQ(Numbers(*row->OutMatrix(301, 600)), Numbers(*Numbered<TypeParam>(1, 300)));
}

TYPED_TEST(Growth, TakesAsManyRowsAsTheReceiverHas)
{
    const auto row = Numbered<TypeParam>(1, 1);
    Append(*row, *Numbered<TypeParam>(3, 2));
    EXPECT_EQ(ShapeOf(*row), Sized(1, 3));
    EXPECT_EQ(Numbers(*row), (Longs{101, 101, 102}));
    const auto m = Numbered<TypeParam>(3, 1);
    EXPECT_EQ(Raised([&] { Append(*m, *Numbered<TypeParam>(2, 2)); }), 9);
    EXPECT_EQ(ShapeOf(*m), Sized(3, 1));
    EXPECT_EQ(Numbers(*m), (Longs{101, 201, 301}));
}

TYPED_TEST(Growth, TakesNothingFromAnObjectWithoutElements)
{
    const auto m = Numbered<TypeParam>(2, 2);
    Append(*m, TypeParam());
    EXPECT_EQ(ShapeOf(*m), Sized(2, 2));
    EXPECT_EQ(Raised([&] { Append(*MakeRef<TypeParam>(), *m); }), 9);
}

TYPED_TEST(Growth, RefusesAStoreThatBeliesTheSizes)
{
    const auto m = Numbered<TypeParam>(2, 2);
    const auto bad = Numbered<TypeParam>(2, 2);
    bad->size1 = 3;
    EXPECT_EQ(Raised([&] { bad->RedimPreserve(3); }), 9);
    EXPECT_EQ(Raised([&] { Append(*bad, *m); }), 9);
    EXPECT_EQ(Raised([&] { Append(*m, *bad); }), 9);
    EXPECT_EQ(ShapeOf(*m), Sized(2, 2));
}

TEST(RedimPreserve, FillsNewColumnsWithZeros)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}});
    m->RedimPreserve(4);
    EXPECT_EQ(test::Values(*m), (std::vector<double>{1, 2, 0, 0}));
    const Ref<clsComplexMatrix> c = Numbered<clsComplexMatrix>(1, 1);
    c->RedimPreserve(2);
    EXPECT_EQ(test::Values(*c), (std::vector<test::Complex>{{101, -101}, {0, 0}}));
    EXPECT_EQ(c->ImagePart().Dimensions(), 1);
}

TEST(CatRefreshVariant, CopiesTheObjects)
{
    const Ref<clsVariant> v = MakeRef<clsVariant>();
    v->Initial_matrix(1, 1);
    v->Real(1, 1, LongMatrix({{7}}));
    v->CatRefreshVariant(*v);
    const auto object = [&](int j) { return v->Elements()(j).As<Ref<clsLong>>(); };
    EXPECT_FALSE(object(1) == object(2));
    EXPECT_EQ(object(2)->Real(1, 1), 7);
}

TEST(CutAndJoin, UndoEachOther)
{
    for (std::int32_t at = 1; at < 6; ++at) {
        const Ref<clsComplexMatrix> whole = Numbered<clsComplexMatrix>(3, 6);
        const Ref<clsComplexMatrix> left = whole->OutMatrix(1, 1, 3, at);
        left->CatRefresh(*whole->OutMatrix(1, at + 1, 3, 6));
        EXPECT_EQ(test::Values(*left), test::Values(*whole));
    }
}

} // namespace
} // namespace lumora
