#include "numeric/Numbered.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::LongMatrix;
using test::MessageRecorder;
using test::Numbered;
using test::Numbers;
using test::ObjectMatrix;
using test::Plain;
using test::Raised;
using test::RealMatrix;
using test::ShapeOf;
using test::Shown;
using test::Sized;

using Longs = std::vector<std::int32_t>;

const auto kRow = Plain("Index exceeds matrix dimensions  Or  Left > Right.");
const auto kColumn = Plain("Index exceeds matrix dimensions Or Top > Buttom  .");
const auto kMatrix = Plain("Index exceeds matrix dimensions Or Top > Buttom  Or  Left > Right.");

template <class M> class Cut : public testing::Test {
};
TYPED_TEST_SUITE(Cut, test::Matrices);

TYPED_TEST(Cut, TakesEveryWindowOfEveryMatrix)
{
    for (std::int32_t rows = 2; rows <= 4; ++rows)
        for (std::int32_t columns = 2; columns <= 4; ++columns) {
            const auto m = Numbered<TypeParam>(rows, columns);
            for (std::int32_t top = 1; top <= rows; ++top)
                for (std::int32_t bottom = top; bottom <= rows; ++bottom)
                    for (std::int32_t left = 1; left <= columns; ++left)
                        for (std::int32_t right = left; right <= columns; ++right) {
                            Longs expected;
                            for (std::int32_t j = left; j <= right; ++j)
                                for (std::int32_t i = top; i <= bottom; ++i)
                                    expected.push_back(100 * i + j);
                            const auto cut = m->OutMatrix(top, left, bottom, right);
                            EXPECT_EQ(Numbers(*cut), expected);
                            EXPECT_EQ(ShapeOf(*cut), Sized(bottom - top + 1, right - left + 1));
                        }
        }
}

TYPED_TEST(Cut, OfARowLooksAtColumnsOnly)
{
    const auto row = Numbered<TypeParam>(1, 5);
    EXPECT_EQ(Numbers(*row->OutMatrix(2, 4)), (Longs{102, 103, 104}));
    EXPECT_EQ(Numbers(*row->OutMatrix(-7, 2, 99, 3)), (Longs{102, 103}));
    EXPECT_EQ(Numbers(*row->OutMatrix(3, 1, 0, 2)), (Longs{101, 102}));
    EXPECT_EQ(ShapeOf(*row->OutMatrix(5, 5)), Sized(1, 1));
    EXPECT_EQ(Numbers(*Numbered<TypeParam>(1, 1)->OutMatrix(1, 1)), (Longs{101}));
}

TYPED_TEST(Cut, OfAColumnLooksAtRowsOnly)
{
    const auto column = Numbered<TypeParam>(5, 1);
    const auto cut = column->OutMatrix(2, 4);
    EXPECT_EQ(Numbers(*cut), (Longs{201, 301, 401}));
    EXPECT_EQ(ShapeOf(*cut), Sized(3, 1));
    EXPECT_EQ(Numbers(*column->OutMatrix(2, 99, 3, -7)), (Longs{201, 301}));
    EXPECT_EQ(Numbers(*column->OutMatrix(1, 9, 2, 0)), (Longs{101, 201}));
    EXPECT_EQ(ShapeOf(*column->OutMatrix(5, 5)), Sized(1, 1));
}

TYPED_TEST(Cut, OutsideShowsTheMessageOfTheShapeAndGivesNothing)
{
    MessageRecorder messages;
    const auto row = Numbered<TypeParam>(1, 5);
    EXPECT_FALSE(row->OutMatrix(0, 3) || row->OutMatrix(4, 3) || row->OutMatrix(1, 6) ||
                 row->OutMatrix(1, 2, 1, 0));
    EXPECT_EQ(messages.Take(), Shown(4, kRow));
    const auto column = Numbered<TypeParam>(5, 1);
    EXPECT_FALSE(column->OutMatrix(0, 3) || column->OutMatrix(4, 3) || column->OutMatrix(1, 6) ||
                 column->OutMatrix(1, 1, 0, 1));
    EXPECT_EQ(messages.Take(), Shown(4, kColumn));
    const auto m = Numbered<TypeParam>(2, 3);
    EXPECT_FALSE(m->OutMatrix(0, 1, 1, 1) || m->OutMatrix(2, 1, 1, 1) || m->OutMatrix(1, 1, 3, 1) ||
                 m->OutMatrix(1, 0, 1, 1) || m->OutMatrix(1, 2, 1, 1) || m->OutMatrix(1, 1, 1, 4) ||
                 m->OutMatrix(1, 1, 0, 1));
    EXPECT_EQ(messages.Take(), Shown(7, kMatrix));
    EXPECT_FALSE(m->OutMatrix(1, 2));
    EXPECT_FALSE(TypeParam().OutMatrix(1, 1));
    EXPECT_EQ(messages.Take(), Shown(2, Plain("Missing two parametrs")));
}

TYPED_TEST(Cut, IsIndependentOfItsSource)
{
    const auto m = Numbered<TypeParam>(2, 2);
    const auto cut = m->OutMatrix(1, 1, 2, 2);
    m->Initial_matrix(2, 2);
    EXPECT_EQ(Numbers(*cut), (Longs{101, 201, 102, 202}));
}

TEST(OutMatrix, GivesElementObjectsOfTheirOwn)
{
    const Ref<clsMatrixComplex> mc = ObjectMatrix({{{1, 2}, {3, 4}}});
    mc->OutMatrix(1, 2)->Real(1, 1)->SetComplex(9, 9);
    mc->OutMatrixByVector(LongMatrix({{1, 1}}), 1, 2, 2)->Real(1, 2)->SetComplex(9, 9);
    EXPECT_EQ(mc->Real(1, 1)->Real, 1.0);
    clsMatrixComplex missing;
    missing.Initial_matrix(1, 2);
    EXPECT_FALSE(missing.OutMatrix(1, 2)->Real(1, 1));
}

TEST(OutMatrix, CopiesTheObjectsOfAVariantMatrix)
{
    clsVariant v;
    v.Initial_matrix(1, 2);
    v.Real(1, 2, RealMatrix({{5}}));
    const Ref<clsVariant> cut = v.OutMatrix(2, 2);
    const auto inner = cut->Elements()(1).As<Ref<clsMatrix>>();
    EXPECT_EQ(inner->Real(1, 1), 5.0);
    EXPECT_FALSE(inner == v.Elements()(2).As<Ref<clsMatrix>>());
}

TEST(OutMatrix, RefusesAStoreThatBeliesTheSizes)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}, {3, 4}});
    m->size2 = 3;
    EXPECT_EQ(Raised([&] { m->OutMatrix(1, 1, 2, 3); }), 9);
}

template <class M> class Pick : public testing::Test {
};
using Pickers = testing::Types<clsMatrix, clsLong, clsComplexMatrix, clsMatrixComplex>;
TYPED_TEST_SUITE(Pick, Pickers);

TYPED_TEST(Pick, TakesTheListedRowsOfARangeOfColumns)
{
    const auto m = Numbered<TypeParam>(3, 4);
    const auto picked = m->OutMatrixByVector(LongMatrix({{3, 1, 3}}), 2, 3, 1);
    EXPECT_EQ(Numbers(*picked), (Longs{302, 102, 302, 303, 103, 303}));
    EXPECT_EQ(ShapeOf(*picked), Sized(3, 2));
    EXPECT_EQ(ShapeOf(*m->OutMatrixByVector(LongMatrix({{2}}), 1, 4, 1)), Sized(1, 4));
}

TYPED_TEST(Pick, TakesAllOfTheListedColumnsOtherwise)
{
    const auto m = Numbered<TypeParam>(2, 3);
    for (const std::int16_t flag : {std::int16_t{0}, std::int16_t{2}, std::int16_t{-1}}) {
        const auto picked = m->OutMatrixByVector(LongMatrix({{3, 1}}), 1, 1, flag);
        EXPECT_EQ(Numbers(*picked), (Longs{103, 203, 101, 201}));
        EXPECT_EQ(ShapeOf(*picked), Sized(2, 2));
    }
    EXPECT_EQ(ShapeOf(*m->OutMatrixByVector(LongMatrix({{2}}), 0, 0, 2)), Sized(2, 1));
}

TYPED_TEST(Pick, ReadsItsListInLinearOrder)
{
    const auto row = Numbered<TypeParam>(1, 5);
    const auto picked = row->OutMatrixByVector(LongMatrix({{5, 3}, {4, 1}}), 0, 0, 2);
    EXPECT_EQ(Numbers(*picked), (Longs{105, 104, 103, 101}));
    EXPECT_EQ(ShapeOf(*picked), Sized(1, 4));
    const auto rows = row->OutMatrixByVector(LongMatrix({{1}, {1}}), 4, 0, 1);
    EXPECT_EQ(Numbers(*rows), (Longs{104, 104, 105, 105}));
}

TYPED_TEST(Pick, TakesBoundsBelowOneForTheWholeWidth)
{
    const auto m = Numbered<TypeParam>(2, 3);
    const Ref<clsLong> second = LongMatrix({{2}});
    EXPECT_EQ(Numbers(*m->OutMatrixByVector(second, 0, 0, 1)), (Longs{201, 202, 203}));
    EXPECT_EQ(Numbers(*m->OutMatrixByVector(second, -4, 2, 1)), (Longs{201, 202}));
    EXPECT_EQ(Numbers(*m->OutMatrixByVector(second, 3, -4, 1)), (Longs{203}));
}

TYPED_TEST(Pick, OutsideShowsTheMessageOfTheShape)
{
    MessageRecorder messages;
    const auto refused = [](const auto& m, std::int32_t index, std::int32_t left,
                            std::int32_t right, std::int16_t flag) {
        EXPECT_FALSE(m->OutMatrixByVector(LongMatrix({{1, index}}), left, right, flag));
    };
    const auto m = Numbered<TypeParam>(2, 3);
    refused(m, 3, 1, 3, 1);
    refused(m, 0, 1, 3, 1);
    refused(m, 4, 1, 3, 2);
    refused(m, -1, 1, 3, 2);
    refused(m, 1, 1, 4, 1);
    refused(m, 1, 4, 0, 1);
    refused(m, 1, 3, 2, 1);
    refused(m, 1, 1, 4, 2);
    EXPECT_EQ(messages.Take(), Shown(8, kMatrix));
    const auto row = Numbered<TypeParam>(1, 3);
    refused(row, 2, 1, 3, 1);
    refused(row, 4, 1, 3, 2);
    EXPECT_EQ(messages.Take(), Shown(2, kRow));
    const auto column = Numbered<TypeParam>(3, 1);
    refused(column, 4, 1, 1, 1);
    refused(column, 1, 1, 2, 1);
    EXPECT_EQ(messages.Take(), Shown(2, kColumn));
}

TYPED_TEST(Pick, WantsAListOfWholeNumbers)
{
    MessageRecorder messages;
    const auto m = Numbered<TypeParam>(2, 3);
    for (const Variant& value : {Variant(), Variant(1), Variant(Array<std::int32_t>(1))})
        EXPECT_FALSE(m->OutMatrixByVector(value, 1, 1, 1));
    EXPECT_EQ(messages.Take(), Shown(3, Plain("The first parametr must be object- (clsLong)")));
    for (const Variant& value : {Variant(RealMatrix({{1}})), Variant(test::Scalar(1, 0))})
        EXPECT_FALSE(m->OutMatrixByVector(value, 1, 1, 1));
    EXPECT_EQ(messages.Take(), Shown(2, Plain("Subscript indices must be integer values.")));
    EXPECT_EQ(Raised([&] { m->OutMatrixByVector(Ref<clsLong>(), 1, 1, 1); }), 91);
    EXPECT_EQ(Raised([&] { m->OutMatrixByVector(MakeRef<clsLong>(), 1, 1, 1); }), 9);
    const Ref<clsMatrix> disguised = RealMatrix({{1}});
    disguised->TypeOfMatrix = "L";
    EXPECT_EQ(Raised([&] { m->OutMatrixByVector(disguised, 1, 1, 1); }), 13);
    EXPECT_EQ(messages.shown, Shown{});
}

TYPED_TEST(Pick, OfAllColumnsIsTheCutOfThem)
{
    const auto m = Numbered<TypeParam>(3, 4);
    EXPECT_EQ(Numbers(*m->OutMatrixByVector(LongMatrix({{2, 3, 4}}), 0, 0, 2)),
              Numbers(*m->OutMatrix(1, 2, 3, 4)));
    EXPECT_EQ(Numbers(*m->OutMatrixByVector(LongMatrix({{2, 3}}), 2, 4, 1)),
              Numbers(*m->OutMatrix(2, 2, 3, 4)));
}

} // namespace
} // namespace lumora
