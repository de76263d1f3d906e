#include "numeric/shaping/TransposeAny.h"
#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

template <class M> Ref<M> TransposeOf(const Ref<M>& m)
{
    return TransposeAny(m).template As<Ref<M>>();
}

TEST(TransposeAny, OfAnObjectIsItsOwnTranspose)
{
    RandomMatrices random(4407);
    const Ref<clsMatrix> r = random.Real(2, 3);
    EXPECT_EQ(Values(*TransposeOf(r)), Values(*r->Transpose()));
    const Ref<clsLong> l = random.Long(3, 1);
    EXPECT_EQ(Values(*TransposeOf(l)), Values(*l->Transpose()));
    const Ref<clsComplexMatrix> c = random.Complexes(1, 3);
    EXPECT_EQ(Values(*TransposeOf(c)), Values(*c->Transpose()));
    const Ref<clsMatrixComplex> mc = random.Objects(2, 2);
    EXPECT_EQ(Values(*TransposeOf(mc)), Values(*mc->Transpose()));
    const Ref<clsString> s = random.Texts(3, 2);
    EXPECT_EQ(Values(*TransposeOf(s)), Values(*s->Transpose()));
    const Ref<clsVariant> v = random.Mixed(3, 2);
    EXPECT_EQ(TransposeOf(v)->Elements(), v->Transpose()->Elements());
}

TEST(TransposeAny, OfAComplexNumberIsACopy)
{
    const Ref<clsComplex> z = Scalar(1, 2);
    const Ref<clsComplex> t = TransposeOf(z);
    t->Real = 9;
    EXPECT_EQ(z->Real, 1);
    EXPECT_EQ(t->Image, 2);
}

TEST(TransposeAny, OfATextHasOneCharacterARow)
{
    const Ref<clsString> column = TransposeAny("abc").As<Ref<clsString>>();
    EXPECT_EQ(ShapeOf(*column), Sized(3, 1));
    EXPECT_EQ(Values(*column), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(ShapeOf(*TransposeAny("x").As<Ref<clsString>>()), Sized(1, 1));
}

TEST(TransposeAny, KeepsTheBytesOfACharacterTogether)
{
    const std::vector<std::string> expected = {"a", "\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x8E\xB5"};
    EXPECT_EQ(Values(*TransposeAny("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xB5").As<Ref<clsString>>()),
              expected);
    // What no character begins stands with what comes before it, or alone.
    EXPECT_EQ(Values(*TransposeAny("\xA9z").As<Ref<clsString>>()),
              (std::vector<std::string>{"\xA9", "z"}));
}

TEST(TransposeAny, OfAnArrayOfNumbersKeepsItsElementType)
{
    const Variant turned = TransposeAny(Table<std::int16_t>({{1, 2, 3}, {4, 5, 6}}));
    EXPECT_EQ(turned, Variant(Table<std::int16_t>({{1, 4}, {2, 5}, {3, 6}})));
    EXPECT_EQ(TransposeAny(Row<double>({1.5, 2})), Variant(Table<double>({{1.5}, {2}})));
    EXPECT_EQ(TransposeAny(Table<float>({{1}, {2}})), Variant(Row<float>({1, 2})));
    EXPECT_EQ(TransposeAny(Row<std::string>({"1", "2.5"})),
              Variant(Table<std::string>({{"1"}, {"2.5"}})));
}

TEST(TransposeAny, RebasesAnArrayToOne)
{
    Array<double> from_zero;
    from_zero.ReDim({0, 1}, {0, 2});
    from_zero(1, 2) = 7.0;
    EXPECT_EQ(TransposeAny(from_zero), Variant(Table<double>({{0, 0}, {0, 0}, {0, 7}})));
}

TEST(TransposeAny, OfComplexElementsIsAMatrixOfObjectsOfItsOwn)
{
    const Array<Ref<clsComplex>> row = Row({Scalar(1, 2), Scalar(3, 4)});
    const Ref<clsMatrixComplex> column = TransposeAny(row).As<Ref<clsMatrixComplex>>();
    EXPECT_EQ(ShapeOf(*column), Sized(2, 1));
    EXPECT_EQ(Values(*column), (std::vector<Complex>{{1, 2}, {3, 4}}));
    column->Real(1, 1)->Real = 9;
    EXPECT_EQ(row(1)->Real, 1);
    EXPECT_EQ(Values(*TransposeAny(Row<std::string>({"1+2i", "3"})).As<Ref<clsMatrixComplex>>()),
              (std::vector<Complex>{{1, 2}, {3, 0}}));
}

TEST(TransposeAny, LeavesANumberAndNothingAsTheyAre)
{
    EXPECT_EQ(TransposeAny(5.0), Variant(5.0));
    EXPECT_TRUE(TransposeAny(Variant()).IsEmpty());
}

TEST(TransposeAny, RefusesAnotherArrayWithOneMessage)
{
    MessageRecorder recorder;
    EXPECT_TRUE(TransposeAny(Row<std::string>({"a", "b"})).IsEmpty());
    EXPECT_EQ(recorder.Take(), Shown{Plain("Incorrect type of Array.")});
    Array<Variant> nested(1);
    nested(1) = RealMatrix({{1}});
    EXPECT_TRUE(TransposeAny(nested).IsEmpty());
    EXPECT_EQ(recorder.Take(), Shown{Plain("Incorrect type of Array.")});
}

TEST(TransposeAny, RefusesAnObjectWithATagOfNoClass)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}});
    m->TypeOfMatrix = "cm";
    MessageRecorder recorder;
    EXPECT_TRUE(TransposeAny(m).IsEmpty());
    EXPECT_EQ(recorder.Take(), Shown{Plain("Incorrect Type of object.")});
}

TEST(TransposeAny, StopsAtWhatHasNoElements)
{
    EXPECT_EQ(Raised([] { TransposeAny(""); }), 9);
    EXPECT_EQ(Raised([] { TransposeAny(Array<double>()); }), 9);
    EXPECT_EQ(Raised([] { TransposeAny(MakeRef<clsMatrix>()); }), 9);
    EXPECT_EQ(Raised([] { TransposeAny(Ref<clsMatrix>()); }), 91);
}

} // namespace
} // namespace lumora
