#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::ComplexMatrix;
using test::Raised;
using test::Row;
using test::ShapeOf;
using test::Sized;
using test::Table;
using test::TextMatrix;
using test::Values;

using Texts = std::vector<std::string>;

TEST(ClsString, HoldsTexts)
{
    clsString s;
    EXPECT_EQ(&s.SetRealAll(Table<std::string>({{"a", "b"}, {"c", "d"}}), "name"), &s);
    EXPECT_EQ(s.Name, "name");
    EXPECT_EQ(s.Real(2, 1), "c");
    s.Real(1, 2, "x");
    s.Set_elements_matrix(2, 2, "");
    EXPECT_EQ(Values(s), (Texts{"a", "c", "x", ""}));
    EXPECT_EQ(s.GetArr(1, 2), Variant("x"));
    EXPECT_EQ(s.GetRealAll(), s.Elements());
}

TEST(ClsString, StartsWithEmptyTexts)
{
    clsString s;
    s.Initial_matrix(1, 2);
    EXPECT_EQ(Values(s), (Texts{"", ""}));
}

TEST(ClsString, ClearsPowerOfExpWhenItIsBuiltAnew)
{
    clsString s;
    s.PowerOfExp = 5;
    s.SetRealAll(Row<std::string>({"a"}));
    EXPECT_EQ(s.PowerOfExp, Variant(5));
    s.Initial_matrix(1, 1);
    EXPECT_TRUE(s.PowerOfExp.IsEmpty());
}

TEST(ClsString, TellsWhetherEveryTextIsANumber)
{
    EXPECT_TRUE(TextMatrix({{"1", " -2.5 ", "1e3"}})->FoundNumericElements());
    EXPECT_FALSE(TextMatrix({{"1", "i"}})->FoundNumericElements());
    EXPECT_FALSE(TextMatrix({{"1"}, {""}})->FoundNumericElements());
    EXPECT_TRUE(clsString().FoundNumericElements());
    const clsString s;
    EXPECT_TRUE(s.Numeric(Row<std::string>({"1", "2"})));
    EXPECT_FALSE(s.Numeric(Row<std::string>({"1", "b"})));
}

TEST(ClsString, TellsWhetherEveryTextIsAComplexNumber)
{
    EXPECT_TRUE(TextMatrix({{"1", "i", "2-3i", "-.5i"}})->FoundComplexElements());
    EXPECT_FALSE(TextMatrix({{"1", "2j"}})->FoundComplexElements());
    EXPECT_TRUE(clsString().FoundComplexElements());
}

TEST(ClsString, TakesTheCellsOfAComplexMatrix)
{
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1, 2}, {-3, -4}}, {{0, 0}, {5, 0}}});
    clsString s;
    s.Initial_matrix(1, 7, "old");
    EXPECT_EQ(&s.ComplexMatrixToString(*c), &s);
    EXPECT_EQ(ShapeOf(s), Sized(2, 2));
    EXPECT_EQ(Values(s), (Texts{" 1.0 + 2.0i", " 0.0 + 0.0i", "-3.0 - 4.0i", " 5.0 + 0.0i"}));
    EXPECT_TRUE(s.FoundComplexElements());
    EXPECT_EQ(s.Name, "");
    EXPECT_EQ(Raised([&] { s.ComplexMatrixToString(clsComplexMatrix()); }), 9);
}

} // namespace
} // namespace lumora
