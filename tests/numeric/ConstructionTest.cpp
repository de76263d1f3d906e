#include "numeric/Numbered.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::Complex;
using test::ComplexMatrix;
using test::Elements;
using test::LongMatrix;
using test::MessageRecorder;
using test::ObjectMatrix;
using test::Plain;
using test::Raised;
using test::RealMatrix;
using test::Row;
using test::Scalar;
using test::ShapeOf;
using test::Shown;
using test::Sized;
using test::Table;
using test::Values;

using Doubles = std::vector<double>;
using Longs = std::vector<std::int32_t>;
using Complexes = std::vector<Complex>;

template <class M> class EveryMatrix : public testing::Test {
};
TYPED_TEST_SUITE(EveryMatrix, test::Matrices);

TYPED_TEST(EveryMatrix, StartsWithoutElements)
{
    const TypeParam m;
    EXPECT_EQ(ShapeOf(m), (test::Shape{0, 0, 0}));
    EXPECT_EQ(m.Name, "");
}

TYPED_TEST(EveryMatrix, KeepsOneRowInOneDimension)
{
    TypeParam m;
    m.Initial_matrix(1, 5, "row");
    EXPECT_EQ(ShapeOf(m), Sized(1, 5));
    EXPECT_EQ(m.Name, "row");
    m.Initial_matrix(5, 1);
    EXPECT_EQ(ShapeOf(m), Sized(5, 1));
    EXPECT_EQ(m.Name, "");
    m.Initial_matrix(1, 1);
    EXPECT_EQ(ShapeOf(m), Sized(1, 1));
    m.Initial_matrix(2, 3);
    EXPECT_EQ(ShapeOf(m), Sized(2, 3));
}

TYPED_TEST(EveryMatrix, RefusesAnEmptyShapeAndStaysAsItWas)
{
    TypeParam m;
    m.Initial_matrix(2, 3);
    for (const std::int32_t bad : {0, -1}) {
        EXPECT_EQ(Raised([&] { m.Initial_matrix(bad, 3); }), 9);
        EXPECT_EQ(Raised([&] { m.Initial_matrix(1, bad); }), 9);
    }
    EXPECT_EQ(ShapeOf(m), Sized(2, 3));
}

TYPED_TEST(EveryMatrix, TakesItsTagBackWhenBuilt)
{
    TypeParam m;
    const std::string tag = m.TypeOfMatrix;
    m.TypeOfMatrix = "cm";
    m.Initial_matrix(1, 1);
    EXPECT_EQ(m.TypeOfMatrix, tag);
}

TEST(Tags, TellTheClassesApart)
{
    EXPECT_EQ(clsMatrix().TypeOfMatrix, "r");
    EXPECT_EQ(clsLong().TypeOfMatrix, "L");
    EXPECT_EQ(clsComplexMatrix().TypeOfMatrix, "c");
    EXPECT_EQ(clsMatrixComplex().TypeOfMatrix, "mc");
    EXPECT_EQ(clsString().TypeOfMatrix, "s");
    EXPECT_EQ(clsVariant().TypeOfMatrix, "v");
    EXPECT_EQ(clsComplex().TypeOfMatrix, "");
}

TEST(InitialMatrix, ForgetsEarlierContents)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}, {3, 4}});
    m->Initial_matrix(2, 2);
    EXPECT_EQ(Values(*m), (Doubles{0, 0, 0, 0}));
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1, 2}, {3, 4}}});
    c->Initial_matrix(1, 2);
    EXPECT_EQ(Values(*c), (Complexes{0, 0}));
}

TEST(SetRealAll, RebasesAnyLowerBounds)
{
    Array<double> row;
    row.ReDim({0, 2});
    row(0) = 10;
    row(1) = 11;
    row(2) = 12;
    clsMatrix m;
    EXPECT_EQ(&m.SetRealAll(row, "label"), &m);
    EXPECT_EQ(ShapeOf(m), Sized(1, 3));
    EXPECT_EQ(m.Real(1, 1), 10.0);
    EXPECT_EQ(m.Real(1, 3), 12.0);
    EXPECT_EQ(m.Name, "label");

    Array<std::string> table;
    table.ReDim({-1, 0}, {3, 5});
    table(-1, 3) = "first";
    table(0, 5) = "last";
    clsString s;
    s.SetRealAll(table);
    EXPECT_EQ(ShapeOf(s), Sized(2, 3));
    EXPECT_EQ(s.Real(1, 1), "first");
    EXPECT_EQ(s.Real(2, 3), "last");
}

TEST(SetRealAll, StoresOneRowOfTwoDimensionsInOne)
{
    clsMatrix m;
    m.SetRealAll(Table<double>({{1, 2, 3}}));
    EXPECT_EQ(ShapeOf(m), Sized(1, 3));
    EXPECT_EQ(Values(m), (Doubles{1, 2, 3}));
    clsMatrixComplex mc;
    mc.SetRealAll(Table<Ref<clsComplex>>({{Scalar(1, 2)}}));
    EXPECT_EQ(ShapeOf(mc), Sized(1, 1));
}

TEST(SetRealAll, NeedsADimension)
{
    EXPECT_EQ(Raised([] { clsMatrix().SetRealAll(Array<double>()); }), 9);
    EXPECT_EQ(Raised([] { clsVariant().SetRealAll(Array<Variant>()); }), 9);
}

TEST(SetRealAll, MistakesARowForAColumnOnAReusedObject)
{
    clsMatrix m;
    m.Initial_matrix(2, 4);
    m.SetRealAll(Row<double>({1, 2, 3}));
    EXPECT_EQ(m.size1, 3);
    EXPECT_EQ(m.size2, 4);
    EXPECT_EQ(Raised([&] { m.Real(1, 1); }), 9);
    EXPECT_EQ(Raised([&] { m.OutMatrix(1, 1, 1, 1); }), 9);
    m.SetRealAll(Table<double>({{1, 2}, {3, 4}}));
    EXPECT_EQ(ShapeOf(m), Sized(2, 2));
}

TEST(SetRealAll, TakesTheOtherElementType)
{
    clsMatrix m;
    m.SetRealAll_L(Table<std::int32_t>({{1, 2}, {3, -4}}), "n");
    EXPECT_EQ(Values(m), (Doubles{1, 3, 2, -4}));
    EXPECT_EQ(m.Name, "n");
    clsLong l;
    l.SetRealAll_D(Row<double>({0.5, 1.5, -2.5, 2.4}));
    EXPECT_EQ(Values(l), (Longs{0, 2, -2, 2}));
    EXPECT_EQ(Raised([] { clsLong().SetRealAll_D(Row<double>({2147483647.5})); }), 6);
}

TEST(SetRealAll, AdoptsTheVeryElementObjects)
{
    const Ref<clsComplex> z = Scalar(1, 2);
    clsMatrixComplex mc;
    mc.SetRealAll(Row<Ref<clsComplex>>({z}));
    EXPECT_EQ(mc.Real(1, 1), z);
    EXPECT_EQ(mc.GetRealAll()(1), z);
}

TEST(SetArray, TakesEveryKindOfNumbers)
{
    clsLong l;
    EXPECT_EQ(&l.SetArray(Row<double>({1.5, -0.4}), "s"), &l);
    EXPECT_EQ(Values(l), (Longs{2, 0}));
    EXPECT_EQ(l.Name, "s");
    clsLong texts;
    texts.SetArray(Table<std::string>({{"1"}, {" 2.6"}}));
    EXPECT_EQ(Values(texts), (Longs{1, 3}));
    EXPECT_EQ(ShapeOf(texts), Sized(2, 1));
    clsLong mixed;
    mixed.SetArray(Row<Variant>({1, "2", 3.0F}));
    EXPECT_EQ(Values(mixed), (Longs{1, 2, 3}));
    clsLong whole;
    whole.SetArray(Row<std::int32_t>({2147483647, -2147483647 - 1}));
    EXPECT_EQ(Values(whole), (Longs{2147483647, -2147483647 - 1}));
    EXPECT_EQ(Raised([] { clsLong().SetArray(Row<double>({3e9})); }), 6);
    EXPECT_EQ(Raised([] { clsLong().SetArray(Array<Ref<clsComplex>>()); }), 13);
}

TEST(SetArray, ShowsAMessageForAnotherValueAndChangesNothing)
{
    MessageRecorder messages;
    const Ref<clsLong> l = LongMatrix({{1, 2}});
    for (const Variant& bad : {Variant(Row<std::string>({"1", "x"})), Variant(5), Variant(),
                               Variant(RealMatrix({{1}})), Variant(Row<Variant>({Scalar(1, 0)}))})
        EXPECT_EQ(&l->SetArray(bad), &*l);
    EXPECT_EQ(messages.shown, Shown(5, Plain("Incorect type of matrix")));
    EXPECT_EQ(Values(*l), (Longs{1, 2}));
}

TEST(SetComplexAll, TakesBothPartsOfOneShape)
{
    clsComplexMatrix c;
    EXPECT_EQ(&c.SetComplexAll(Table<double>({{1, 2}, {3, 4}}), Table<double>({{5, 6}, {7, 8}})),
              &c);
    EXPECT_EQ(Values(c), (Complexes{{1, 5}, {3, 7}, {2, 6}, {4, 8}}));
    c.SetComplexAll_L(Row<std::int32_t>({1, 2}), Table<std::int32_t>({{3, 4}}), "row");
    EXPECT_EQ(ShapeOf(c), Sized(1, 2));
    EXPECT_EQ(Values(c), (Complexes{{1, 3}, {2, 4}}));
    EXPECT_EQ(c.Name, "row");
    clsMatrixComplex mc;
    mc.SetComplexAll(Row<double>({1, 2}), Row<double>({3, 4}), "objects");
    EXPECT_EQ(Values(mc), (Complexes{{1, 3}, {2, 4}}));
    EXPECT_EQ(mc.Name, "objects");
}

TEST(SetComplexAll, ShowsAMessageForDifferentShapesAndStoresNothing)
{
    MessageRecorder messages;
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1, 2}}});
    c->SetComplexAll(Array<double>(2, 2), Array<double>(4), "new");
    c->SetComplexAll_L(Array<std::int32_t>(3), Array<std::int32_t>(3, 1));
    const Ref<clsMatrixComplex> mc = ObjectMatrix({{{1, 2}}});
    mc->SetComplexAll(Array<double>(2), Array<double>(3));
    EXPECT_EQ(messages.shown, Shown(3, Plain("Matrix dimensions must agree.")));
    EXPECT_EQ(Values(*c), (Complexes{{1, 2}}));
    EXPECT_EQ(c->Name, "");
    EXPECT_EQ(Values(*mc), (Complexes{{1, 2}}));
}

TEST(SetImageAll, GoesWithSetRealAll)
{
    clsComplexMatrix c;
    c.SetRealAll(Table<double>({{1}, {2}}));
    c.SetImageAll(Table<double>({{3}, {4}}), "both");
    EXPECT_EQ(Values(c), (Complexes{{1, 3}, {2, 4}}));
    EXPECT_EQ(c.Name, "both");
    clsComplexMatrix whole;
    whole.SetRealAll_L(Row<std::int32_t>({1, 2}));
    whole.SetImageAll_L(Row<std::int32_t>({3, 4}));
    EXPECT_EQ(Values(whole), (Complexes{{1, 3}, {2, 4}}));
    EXPECT_EQ(ShapeOf(whole), Sized(1, 2));
}

TEST(SetComplexArray, TakesThePartsOfObjectsAndGivesNewOnesBack)
{
    const Ref<clsComplex> z = Scalar(1, 2);
    clsComplexMatrix c;
    c.SetComplexArray(Row<Ref<clsComplex>>({z, Scalar(3, 4)}), "label");
    EXPECT_EQ(Values(c), (Complexes{{1, 2}, {3, 4}}));
    EXPECT_EQ(c.Name, "label");
    const Array<Ref<clsComplex>> objects = c.GetComplexArray();
    EXPECT_FALSE(objects(1) == z);
    EXPECT_EQ(objects(2)->Image, 4.0);
    EXPECT_EQ(Raised([] { clsComplexMatrix().SetComplexArray(Array<Ref<clsComplex>>(1)); }), 91);
}

TEST(GetRealAll, IsACopyOfTheStore)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}, {3, 4}});
    Array<double> all = m->GetRealAll();
    EXPECT_EQ(all, m->Elements());
    all(1, 1) = 9;
    EXPECT_EQ(m->Real(1, 1), 1.0);
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1, 2}, {3, 4}}});
    EXPECT_EQ(Elements(c->GetRealAll()), (Doubles{1, 3}));
    EXPECT_EQ(Elements(c->GetImageAll()), (Doubles{2, 4}));
}

TEST(Destructor, LetsGoOfTheElementObjects)
{
    const Ref<clsMatrixComplex> mc = ObjectMatrix({{1, 2}, {3, 4}});
    mc->Destructor();
    EXPECT_EQ(ShapeOf(*mc), Sized(2, 2));
    EXPECT_FALSE(mc->Real(1, 1) || mc->Real(2, 2));
}

TEST(ClsComplex, SetsItsParts)
{
    clsComplex z;
    EXPECT_EQ(z.Real, 0.0);
    EXPECT_EQ(z.Image, 0.0);
    z.SetReal(1);
    z.SetImage(2);
    EXPECT_EQ(z.Real, 1.0);
    EXPECT_EQ(z.Image, 2.0);
    z.SetComplex(3, 4);
    EXPECT_EQ(z.Real, 3.0);
    EXPECT_EQ(z.Image, 4.0);
}

} // namespace
} // namespace lumora
