#include "numeric/CopyAny.h"

#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::Raised;
using test::Row;

TEST(CopyAny, GivesValuesThatAreNoObjectsAsTheyAre)
{
    for (const Variant& value : {Variant(), Variant(2.5), Variant(std::uint8_t{3}), Variant("text"),
                                 Variant(Row<double>({1.0, 2.0})), Variant(Row<Variant>({1, "a"}))})
        EXPECT_EQ(CopyAny(value), value);
}

TEST(CopyAny, MakesAnotherObjectOfTheSameClassAndContents)
{
    const auto copied = [](const auto& object) {
        object->Name = "label";
        const auto copy = CopyAny(object).template As<std::decay_t<decltype(object)>>();
        EXPECT_FALSE(copy == object);
        EXPECT_EQ(copy->Name, "");
        EXPECT_EQ(copy->TypeOfMatrix, object->TypeOfMatrix);
        return copy;
    };
    const auto same = [&](const auto& object) {
        EXPECT_EQ(test::Values(*copied(object)), test::Values(*object));
        EXPECT_EQ(test::ShapeOf(*copied(object)), test::ShapeOf(*object));
    };
    same(test::RealMatrix({{1.5, 2}, {3, 4}}));
    same(test::LongMatrix({{1, 2, 3}}));
    same(test::ComplexMatrix({{{1, 2}}, {{3, 4}}}));
    same(test::ObjectMatrix({{{1, 2}, {3, 4}}}));
    same(test::TextMatrix({{"a", "b"}}));
    const Ref<clsComplex> z = copied(test::Scalar(1, -2));
    EXPECT_EQ(z->Real, 1.0);
    EXPECT_EQ(z->Image, -2.0);
}

TEST(CopyAny, CopiesTheObjectsInAVariantMatrix)
{
    const Ref<clsVariant> v = MakeRef<clsVariant>();
    v->SetRealAll(Row<Variant>({test::RealMatrix({{1.0}}), "text"}));
    const Ref<clsVariant> copy = CopyAny(v).As<Ref<clsVariant>>();
    EXPECT_FALSE(copy == v);
    const auto inner = [](const Ref<clsVariant>& m) {
        return m->Elements()(1).As<Ref<clsMatrix>>();
    };
    EXPECT_FALSE(inner(copy) == inner(v));
    inner(copy)->Real(1, 1, 9.0);
    EXPECT_EQ(inner(v)->Real(1, 1), 1.0);
    EXPECT_EQ(copy->Elements()(2).As<std::string>(), "text");
}

TEST(CopyAny, RefusesMissingObjectsAndBeliedClasses)
{
    EXPECT_EQ(Raised([] { CopyAny(Ref<clsMatrix>()); }), 91);
    const Ref<clsMatrix> m = test::RealMatrix({{1.0}});
    m->TypeOfMatrix = "L";
    EXPECT_EQ(Raised([&] { CopyAny(m); }), 13);
}

} // namespace
} // namespace lumora
