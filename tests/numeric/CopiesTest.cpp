#include "numeric/Matrices.h"
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
using test::Scalar;
using test::ShapeOf;
using test::Shown;
using test::Sized;
using test::TextMatrix;
using test::Values;

using Doubles = std::vector<double>;
using Longs = std::vector<std::int32_t>;
using Complexes = std::vector<Complex>;

TEST(Copies, BetweenTheClassesConvertTheElements)
{
    const Ref<clsLong> l = LongMatrix({{1, 2}, {3, 4}});
    const Ref<clsMatrix> r = RealMatrix({{1.5, -2.5}});
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1.5, 0.5}, {2.5, -0.5}}});
    clsMatrix m;
    EXPECT_EQ(Values(m.CopyObjectLongToDouble(*l, "a")), (Doubles{1, 3, 2, 4}));
    EXPECT_EQ(m.Name, "a");
    EXPECT_EQ(Values(m.CopyObjectComplexRealToDouble(*c)), (Doubles{1.5, 2.5}));
    EXPECT_EQ(ShapeOf(m), Sized(1, 2));
    EXPECT_EQ(Values(m.CopyObjectComplexImageToDouble(*c)), (Doubles{0.5, -0.5}));
    clsLong n;
    EXPECT_EQ(Values(n.CopyObjectDoubleToLong(*r, "b")), (Longs{2, -2}));
    EXPECT_EQ(n.Name, "b");
    EXPECT_EQ(Values(n.CopyObjectComplexRealToLong(*c)), (Longs{2, 2}));
    EXPECT_EQ(Values(n.CopyObjectComplexImageToLong(*c)), (Longs{0, 0}));
    EXPECT_EQ(Raised([&] { n.CopyObjectDoubleToLong(*RealMatrix({{3e9}})); }), 6);
}

TEST(Copies, OfOneSourceHaveZerosForTheOtherPart)
{
    const Ref<clsMatrix> r = RealMatrix({{1.5, 2}});
    const Ref<clsLong> l = LongMatrix({{1}, {2}});
    clsComplexMatrix c;
    c.Initial_matrix(3, 3); // a used object takes any shape
    EXPECT_EQ(Values(c.CopyObjectDoubleToComplexReal(*r, "re")), (Complexes{{1.5, 0}, {2, 0}}));
    EXPECT_EQ(c.Name, "re");
    EXPECT_EQ(ShapeOf(c), Sized(1, 2));
    EXPECT_EQ(c.ImagePart().Dimensions(), 1);
    EXPECT_EQ(Values(c.CopyObjectDoubleToComplexImage(*r)), (Complexes{{0, 1.5}, {0, 2}}));
    EXPECT_EQ(Values(c.CopyObjectLongToComplexReal(*l)), (Complexes{{1, 0}, {2, 0}}));
    EXPECT_EQ(Values(c.CopyObjectLongToComplexImage(*l)), (Complexes{{0, 1}, {0, 2}}));
    EXPECT_EQ(ShapeOf(c), Sized(2, 1));
}

TEST(Copies, OfTwoSourcesNeedOneShape)
{
    MessageRecorder messages;
    clsComplexMatrix c;
    c.CopyObjectTwoDoubleToComplex(*RealMatrix({{1, 2}}), *RealMatrix({{3, 4}}), "two");
    EXPECT_EQ(Values(c), (Complexes{{1, 3}, {2, 4}}));
    EXPECT_EQ(c.Name, "two");
    c.CopyObjectTwoLongToComplex(*LongMatrix({{1}, {2}}), *LongMatrix({{3}, {4}}));
    EXPECT_EQ(Values(c), (Complexes{{1, 3}, {2, 4}}));
    EXPECT_EQ(ShapeOf(c), Sized(2, 1));
    EXPECT_EQ(messages.Take(), Shown{});
    c.CopyObjectTwoDoubleToComplex(*RealMatrix({{1, 2}}), *RealMatrix({{3}, {4}}));
    c.CopyObjectTwoLongToComplex(*LongMatrix({{1}}), *LongMatrix({{3, 4}}));
    EXPECT_EQ(messages.shown, Shown(2, Plain("Matrix dimensions must agree.")));
    EXPECT_EQ(ShapeOf(c), Sized(2, 1));
}

TEST(Copies, BetweenTheComplexClassesGoBothWays)
{
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1, 2}, {3, 4}}, {{5, 6}, {7, 8}}});
    clsMatrixComplex mc;
    mc.CopyObject_C(*c, "objects");
    EXPECT_EQ(mc.Name, "objects");
    EXPECT_EQ(Values(mc), Values(*c));
    clsComplexMatrix back;
    EXPECT_EQ(Values(back.CopyObject_mc(mc, "back")), Values(*c));
    EXPECT_EQ(back.Name, "back");
    EXPECT_EQ(ShapeOf(back), Sized(2, 2));
    EXPECT_EQ(Values(clsComplexMatrix().CopyObject_mcArray(mc.GetRealAll())), Values(*c));
    EXPECT_EQ(Elements(mc.GetRealArrAll()), (Doubles{1, 5, 3, 7}));
    EXPECT_EQ(Elements(mc.GetImageArrAll()), (Doubles{2, 6, 4, 8}));
    EXPECT_EQ(mc.GetRealArr(), mc.GetRealArrAll());
    EXPECT_EQ(mc.GetImageArr(), mc.GetImageArrAll());
}

TEST(Copies, OfMissingElementObjectsFailOnlyWhereTheirPartsAreRead)
{
    const Ref<clsMatrixComplex> mc = MakeRef<clsMatrixComplex>();
    mc->Initial_matrix(2, 2);
    EXPECT_FALSE(mc->CopyObject()->Real(2, 2));
    EXPECT_EQ(Raised([&] { mc->GetRealArrAll(); }), 91);
    EXPECT_EQ(Raised([&] { clsComplexMatrix().CopyObject_mc(*mc); }), 91);
}

TEST(CopyObject, IsIndependentOfItsSource)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}});
    const Ref<clsMatrix> copy = m->CopyObject("label");
    copy->Real(1, 1, 9);
    EXPECT_EQ(m->Real(1, 1), 1.0);
    EXPECT_EQ(copy->Name, "label");

    const Ref<clsLong> l = LongMatrix({{1, 2}});
    l->CopyObject()->Real(1, 1, 9);
    EXPECT_EQ(l->Real(1, 1), 1);

    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1, 2}}});
    c->CopyObject()->SetComplex(1, 1, 9, 9);
    EXPECT_EQ(Values(*c), (Complexes{{1, 2}}));

    const Ref<clsMatrixComplex> mc = ObjectMatrix({{{1, 2}}});
    mc->CopyObject()->Real(1, 1)->SetComplex(9, 9);
    EXPECT_EQ(Values(*mc), (Complexes{{1, 2}}));

    const Ref<clsString> s = TextMatrix({{"a"}});
    s->CopyObject()->Real(1, 1, "b");
    EXPECT_EQ(s->Real(1, 1), "a");

    const Ref<clsComplex> z = Scalar(1, 2);
    z->CopyObject("z")->SetReal(9);
    EXPECT_EQ(z->Real, 1.0);
    EXPECT_EQ(z->CopyObject("z")->Name, "z");
}

} // namespace
} // namespace lumora
