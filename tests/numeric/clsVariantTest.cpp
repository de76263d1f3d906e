#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::MessageRecorder;
using test::Raised;
using test::RealMatrix;
using test::Row;
using test::Scalar;
using test::ShapeOf;
using test::Shown;
using test::Sized;
using test::Table;

Ref<clsVariant> Of(std::initializer_list<Variant> values)
{
    const Ref<clsVariant> v = MakeRef<clsVariant>();
    v->SetRealAll(Row<Variant>(values));
    return v;
}

Ref<clsMatrix> Held(const Variant& value)
{
    return value.As<Ref<clsMatrix>>();
}

TEST(ClsVariant, HoldsValuesOfAnyKind)
{
    clsVariant v;
    EXPECT_EQ(&v.SetRealAll(Table<Variant>({{1, "a"}, {2.5, Variant()}}), "name"), &v);
    EXPECT_EQ(ShapeOf(v), Sized(2, 2));
    EXPECT_EQ(v.Name, "name");
    EXPECT_EQ(v.Real(1, 2), Variant("a"));
    EXPECT_TRUE(v.Real(2, 2).IsEmpty());
    v.Real(2, 2, 7);
    v.Set_elements_matrix(1, 1, "b");
    EXPECT_EQ(v.GetRealAll(), (Table<Variant>({{"b", "a"}, {2.5, 7}})));
    EXPECT_EQ(v.GetArr(2, 1), Variant(2.5));
}

TEST(ClsVariant, CopiesObjectsOnTheWayIn)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}});
    clsVariant v;
    v.SetRealAll(Row<Variant>({m, m, m}));
    v.Real(1, 2, m);
    v.Set_elements_matrix(1, 3, m);
    m->Real(1, 1, 9);
    for (int j = 1; j <= 3; ++j)
        EXPECT_EQ(Held(v.Elements()(j))->Real(1, 1), 1.0);
    EXPECT_FALSE(Held(v.Elements()(1)) == Held(v.Elements()(2)));
}

TEST(ClsVariant, CopiesObjectsOnTheWayOut)
{
    const Ref<clsVariant> v = Of({RealMatrix({{1, 2}})});
    for (const Variant& out : {v->Real(1, 1), v->GetArr(1, 1), v->GetRealAll()(1),
                               v->CopyObjectVariant()->Elements()(1)}) {
        Held(out)->Real(1, 1, 9);
        EXPECT_EQ(Held(v->Elements()(1))->Real(1, 1), 1.0);
    }
}

TEST(ClsVariant, CopiesItselfWithAName)
{
    const Ref<clsVariant> v = Of({1, "a"});
    const Ref<clsVariant> copy = v->CopyObjectVariant("label");
    EXPECT_FALSE(copy == v);
    EXPECT_EQ(copy->Name, "label");
    EXPECT_EQ(copy->GetRealAll(), v->GetRealAll());
    EXPECT_EQ(ShapeOf(*copy), Sized(1, 2));
}

TEST(ClsVariant, HoldsACopyOfItself)
{
    const Ref<clsVariant> v = Of({1, 2});
    v->Real(1, 1, v);
    const auto inner = v->Elements()(1).As<Ref<clsVariant>>();
    EXPECT_FALSE(inner == v);
    EXPECT_EQ(inner->Real(1, 1), Variant(1));
}

TEST(ClsVariant, RefusesAMissingObject)
{
    const Ref<clsVariant> v = Of({1});
    EXPECT_EQ(Raised([&] { v->Real(1, 1, Ref<clsMatrix>()); }), 91);
    EXPECT_EQ(Raised([&] { v->SetRealAll(Row<Variant>({Ref<clsMatrix>()})); }), 91);
    EXPECT_EQ(v->Real(1, 1), Variant(1));
}

TEST(ClsVariant, TellsWhatAllItsElementsAre)
{
    MessageRecorder messages;
    struct Case {
        Ref<clsVariant> v;
        bool text, number, whole, complex;
    };
    const Case cases[] = {
        {Of({"a", "b"}), true, false, false, false},
        {Of({"1", "2.5"}), true, true, false, true},
        {Of({1, "2", 3.0}), false, true, true, true},
        {Of({1, 2.5}), false, true, false, true},
        {Of({Scalar(1, 2), "1+2i", 3}), false, false, false, true},
        {Of({"i", "2i"}), true, false, false, true},
        {Of({1, RealMatrix({{1}})}), false, false, false, false},
        {Of({1, Variant()}), false, false, false, false},
        {MakeRef<clsVariant>(), true, true, true, true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.v->IsString(), c.text);
        EXPECT_EQ(c.v->IsDouble(), c.number);
        EXPECT_EQ(c.v->IsLong(), c.whole);
        EXPECT_EQ(c.v->IsComplex(), c.complex);
        EXPECT_EQ(c.v->FoundUnNumericElements(), !c.number);
    }
    EXPECT_EQ(messages.shown, Shown{});
}

TEST(ClsVariant, EmptiesItsElements)
{
    const Ref<clsVariant> v = Of({1, RealMatrix({{1}})});
    const std::weak_ptr<clsMatrix> object = Held(v->Elements()(2))->weak_from_this();
    v->Destructor();
    EXPECT_TRUE(object.expired());
    EXPECT_TRUE(v->Real(1, 1).IsEmpty() && v->Real(1, 2).IsEmpty());
    EXPECT_EQ(ShapeOf(*v), Sized(1, 2));
    clsVariant().Destructor();
}

TEST(ClsLong, TellsWhetherAValueIsWhole)
{
    const clsLong l;
    for (const Variant& whole : {Variant(1), Variant(-2.0), Variant("3"), Variant(3e9)})
        EXPECT_TRUE(l.IsLong(whole));
    for (const Variant& other : {Variant(), Variant(1.5), Variant("a"), Variant(RealMatrix({{1}}))})
        EXPECT_FALSE(l.IsLong(other));
}

} // namespace
} // namespace lumora
