#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::ComplexMatrix;
using test::LongMatrix;
using test::MessageRecorder;
using test::ObjectMatrix;
using test::Plain;
using test::Raised;
using test::RealMatrix;
using test::Row;
using test::Scalar;
using test::Shown;
using test::TextMatrix;

struct Place {
    std::int32_t i;
    std::int32_t j;
};

/// Every way out of 2 by 3.
constexpr Place kOutside[] = {{0, 1}, {1, 0}, {3, 1}, {1, 4}, {-1, -1}, {2147483647, 1}};

/// Each action shows the message once and then raises error 9.
template <class... Actions> void ExpectRefused(Place at, Actions... actions)
{
    MessageRecorder messages;
    const auto expect = [&](auto action) {
        EXPECT_EQ(Raised([&] { action(at.i, at.j); }), 9) << at.i << ", " << at.j;
        EXPECT_EQ(messages.Take(), Shown{Plain("Index exceeds matrix dimensions.")});
    };
    (expect(actions), ...);
}

template <class M, class Value> void ExpectRefusedBy(M& m, Place at, const Value& value)
{
    ExpectRefused(
        at, [&](auto i, auto j) { m.Real(i, j); }, [&](auto i, auto j) { m.Real(i, j, value); },
        [&](auto i, auto j) { m.Set_elements_matrix(i, j, value); },
        [&](auto i, auto j) {
            if constexpr (requires { m.GetArr(i, j); })
                m.GetArr(i, j);
            else
                m.Real(i, j);
        });
}

TEST(Access, OutsideShowsItsMessageAndThenFails)
{
    clsMatrix r;
    clsLong l;
    clsMatrixComplex mc;
    clsString s;
    clsVariant v;
    r.Initial_matrix(2, 3);
    l.Initial_matrix(2, 3);
    mc.Initial_matrix(2, 3);
    s.Initial_matrix(2, 3);
    v.Initial_matrix(2, 3);
    for (const Place at : kOutside) {
        ExpectRefusedBy(r, at, 1.0);
        ExpectRefusedBy(l, at, 1);
        ExpectRefusedBy(mc, at, clsComplex(1, 2));
        ExpectRefusedBy(s, at, "text");
        ExpectRefusedBy(v, at, Variant(1));
    }
}

TEST(Access, OutsideAComplexMatrixChangesNothing)
{
    const Ref<clsComplexMatrix> c = ComplexMatrix({{1, 2, 3}, {4, 5, 6}});
    const std::vector<test::Complex> before = test::Values(*c);
    for (const Place at : kOutside)
        ExpectRefused(
            at, [&](auto i, auto j) { c->Real(i, j); }, [&](auto i, auto j) { c->Image(i, j); },
            [&](auto i, auto j) { c->Real(i, j, 9); }, [&](auto i, auto j) { c->Image(i, j, 9); },
            [&](auto i, auto j) { c->SetComplex(i, j, 9, 9); },
            [&](auto i, auto j) { c->Set_elements_matrix(i, j, 9, 9); });
    EXPECT_EQ(test::Values(*c), before);
}

TEST(Access, ToTheSecondRowOfARowFailsThoughItsStoreHasTwoElements)
{
    const Ref<clsMatrix> row = RealMatrix({{1, 2, 3}});
    ExpectRefused({2, 1}, [&](auto i, auto j) { row->Real(i, j); });
}

TEST(Access, ToAnObjectWithoutElementsFails)
{
    ExpectRefused(
        {1, 1}, [](auto i, auto j) { clsMatrix().Real(i, j); },
        [](auto i, auto j) { clsComplexMatrix().Image(i, j); },
        [](auto i, auto j) { clsString().GetArr(i, j); },
        [](auto i, auto j) { clsVariant().Real(i, j); });
}

TEST(Access, ToAStoreThatBeliesTheSizesFailsInSilence)
{
    MessageRecorder messages;
    const Ref<clsMatrix> m = RealMatrix({{1, 2}, {3, 4}});
    m->size1 = 1;
    EXPECT_EQ(Raised([&] { m->Real(1, 1); }), 9);
    const Ref<clsMatrix> row = RealMatrix({{1, 2}});
    row->size1 = 2;
    EXPECT_EQ(Raised([&] { row->Real(1, 1); }), 9);
    EXPECT_EQ(messages.shown, Shown{});
}

TEST(Access, ReadsAndWritesOneElement)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2, 3}, {4, 5, 6}});
    EXPECT_EQ(m->Real(2, 1), 4.0);
    m->Real(2, 3, 7.5);
    m->Set_elements_matrix(1, 3, 8.5);
    EXPECT_EQ(test::Values(*m), (std::vector<double>{1, 4, 2, 5, 8.5, 7.5}));
    const Ref<clsLong> row = LongMatrix({{1, 2, 3}});
    row->Real(1, 2, -2);
    row->Set_elements_matrix(1, 3, -3);
    EXPECT_EQ(test::Values(*row), (std::vector<std::int32_t>{1, -2, -3}));
    EXPECT_EQ(row->Real(1, 3), -3);
}

TEST(Access, ToComplexPartsIsApart)
{
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1, 2}, {3, 4}}});
    c->Real(1, 1, 10);
    c->Image(1, 2, 40);
    EXPECT_EQ(test::Values(*c), (std::vector<test::Complex>{{10, 2}, {3, 40}}));
    EXPECT_EQ(c->Real(1, 2), 3.0);
    EXPECT_EQ(c->Image(1, 1), 2.0);
    c->SetComplex(1, 1, 5, 6);
    c->Set_elements_matrix(1, 2, 7, 8);
    EXPECT_EQ(test::Values(*c), (std::vector<test::Complex>{{5, 6}, {7, 8}}));
}

TEST(Access, ToAnElementObjectGivesItselfAndWritesThroughIt)
{
    const Ref<clsMatrixComplex> mc = ObjectMatrix({{{1, 2}}, {{3, 4}}});
    const Ref<clsComplex> z = mc->Real(2, 1);
    mc->Real(2, 1, clsComplex(5, 6));
    EXPECT_EQ(z->Real, 5.0);
    EXPECT_EQ(z->Image, 6.0);
    mc->Set_elements_matrix(2, 1, *Scalar(7, 8));
    EXPECT_EQ(mc->Real(2, 1), z);
    EXPECT_EQ(z->Image, 8.0);
}

TEST(Access, ToAMissingElementObjectIsError91)
{
    clsMatrixComplex mc;
    mc.Initial_matrix(1, 2);
    EXPECT_FALSE(mc.Real(1, 1));
    EXPECT_EQ(Raised([&] { mc.Real(1, 1, clsComplex(1, 2)); }), 91);
    EXPECT_EQ(Raised([&] { mc.Set_elements_matrix(1, 2, clsComplex(1, 2)); }), 91);
}

TEST(GetArr, GivesTheElementInItsOwnType)
{
    EXPECT_EQ(RealMatrix({{1, 2.5}})->GetArr(1, 2), Variant(2.5));
    EXPECT_EQ(LongMatrix({{1, 2}})->GetArr(1, 2), Variant(2));
    EXPECT_EQ(TextMatrix({{"a"}, {"b"}})->GetArr(2, 1), Variant("b"));
}

TEST(GetArr, RoundsItsIndicesAndReadsTheirTexts)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2, 3}});
    EXPECT_EQ(m->GetArr(1.4, 2.5), Variant(2.0));
    EXPECT_EQ(m->GetArr("1", "3"), Variant(3.0));
    EXPECT_EQ(Raised([&] { m->GetArr("one", 1); }), 13);
    EXPECT_EQ(Raised([&] { m->GetArr(1, 1e10); }), 6);
    EXPECT_EQ(Raised([&] { m->GetArr({}, 1); }), 13);
}

} // namespace
} // namespace lumora
