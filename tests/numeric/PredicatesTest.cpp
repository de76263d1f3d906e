#include "numeric/Predicates.h"

#include "numeric/Matrices.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

TEST(IsNumeric, TakesNumbersAndTextsThatSpellOne)
{
    const Variant numeric[] = {
        std::uint8_t{1}, std::int16_t{1}, 1,    1.0F, 0.5, Currency{1}, Date{1.0}, "12", "-3",
        " 4 ",           "1e3",           "+.5"};
    for (const Variant& value : numeric)
        EXPECT_TRUE(IsNumeric(value));
    const Variant others[] = {{},
                              "",
                              " ",
                              "+",
                              "12a",
                              "1 2",
                              "nan",
                              "1e9999",
                              "0x",
                              Row<double>({1.0}),
                              RealMatrix({{1.0}})};
    for (const Variant& value : others)
        EXPECT_FALSE(IsNumeric(value));
}

TEST(IsWholeNumber, TakesNumbersWithoutFraction)
{
    for (const Variant& whole : {Variant(0), Variant(-0.0), Variant(-7.0), Variant("12"),
                                 Variant(1e300), Variant(9007199254740993.0)})
        EXPECT_TRUE(IsWholeNumber(whole));
    for (const Variant& other : {Variant(), Variant(0.5), Variant(-1e-300), Variant("1.5"),
                                 Variant("x"), Variant(kNan), Variant(4503599627370495.5)})
        EXPECT_FALSE(IsWholeNumber(other));
}

TEST(IsTwoDimensional, AsksForASecondDimension)
{
    EXPECT_TRUE(IsTwoDimensional(Array<double>(1, 3)));
    EXPECT_TRUE(IsTwoDimensional(Array<std::string>(3, 1)));
    for (const Variant& other : {Variant(Array<double>(3)), Variant(Array<double>()), Variant(),
                                 Variant(1.0), Variant(RealMatrix({{1.0}, {2.0}}))})
        EXPECT_FALSE(IsTwoDimensional(other));
}

TEST(IsNumericArray, WantsANumberInEveryElement)
{
    EXPECT_TRUE(IsNumericArray(Row<double>({0.5, kNan})));
    EXPECT_TRUE(IsNumericArray(Array<std::uint8_t>(2, 2)));
    EXPECT_TRUE(IsNumericArray(Row<std::string>({"1", "-2.5"})));
    EXPECT_TRUE(IsNumericArray(Table<Variant>({{1, "2"}, {3.5, Date{1.0}}})));
    for (const Variant& other :
         {Variant(Row<std::string>({"1", "x"})), Variant(Row<Variant>({1, Variant()})),
          Variant(Row<Ref<clsComplex>>({Scalar(1, 0)})), Variant(1.0), Variant("1"), Variant(),
          Variant(RealMatrix({{1.0}}))})
        EXPECT_FALSE(IsNumericArray(other));
}

TEST(IsIntegerArray, WantsAWholeNumberInEveryElement)
{
    EXPECT_TRUE(IsIntegerArray(Row<double>({1.0, -2.0, 0.0, -0.0, 1e15, 1e300})));
    EXPECT_TRUE(IsIntegerArray(Array<std::int32_t>(3)));
    EXPECT_TRUE(IsIntegerArray(Row<std::string>({"1", "2e2"})));
    EXPECT_TRUE(IsIntegerArray(Row<double>({kInfinity}))); // it equals its own integer part
    for (const Variant& other :
         {Variant(Row<double>({1.0, 0.5})), Variant(Row<double>({kNan})),
          Variant(Row<double>({4503599627370495.5})), Variant(Row<double>({-0.25})),
          Variant(Row<std::string>({"1", "x"})), Variant(1)})
        EXPECT_FALSE(IsIntegerArray(other));
}

TEST(IsComplexArray, WantsAComplexObjectOrATextOfOneInEveryElement)
{
    MessageRecorder messages;
    EXPECT_TRUE(IsComplexArray(Row<Ref<clsComplex>>({Scalar(1, 2), Scalar(0, 0)})));
    EXPECT_TRUE(IsComplexArray(Row<std::string>({"1+i", "2"})));
    EXPECT_TRUE(IsComplexArray(Row<Variant>({Scalar(1, 2), "i", "3"})));
    const Ref<clsComplex> tagged = Scalar(1, 2);
    tagged->TypeOfMatrix = "r";
    for (const Variant& other :
         {Variant(Row<Ref<clsComplex>>({Scalar(1, 2), Ref<clsComplex>()})),
          Variant(Row<Ref<clsComplex>>({tagged})), Variant(Row<Variant>({RealMatrix({{1.0}})})),
          Variant(Row<Variant>({Variant()})), Variant(Row<std::string>({"i", "j"})),
          Variant(Row<Variant>({Scalar(1, 2), 3.0})), Variant(Row<double>({1.5})),
          Variant(Row<std::int32_t>({1})), Variant(Scalar(1, 2)), Variant("i"), Variant()})
        EXPECT_FALSE(IsComplexArray(other));
    EXPECT_EQ(messages.shown, Shown{});
}

TEST(ArrayQuestions, AreTrueOfAnArrayWithoutElements)
{
    EXPECT_TRUE(IsNumericArray(Array<double>()));
    EXPECT_TRUE(IsIntegerArray(Array<double>()));
    EXPECT_TRUE(IsComplexArray(Array<Ref<clsComplex>>()));
    EXPECT_TRUE(IsAllZero(Array<double>()));
}

TEST(IsComplexText, TakesTheFormsOfAComplexNumber)
{
    for (const char* text :
         {"i",       "-i",      "+i",      "2i",     "-2.5i",      "3 i",   "  3 i  ",
          "1+2i",    "1-2i",    "1+i",     "1-i",    "-1.5-.5i",   "1e-3i", "1e3-2i",
          "1-2e+5i", "1-2e-5i", "1-2E+5i", "1-2e5i", "1e-3-2e-5i", "- 2i",  "1 + 2i",
          "1 - 2 i", "12",      " -1e5 ",  "0.5",    "+ i"})
        EXPECT_TRUE(IsComplexText(text)) << '"' << text << '"';
}

TEST(IsComplexText, RefusesOtherTexts)
{
    for (const char* text :
         {"",     " ",        "abc",    "1+2", "1+2j", "i2",   "2ii",     "ai",    "1*2i",  "x+2i",
          "1+xi", "1+2.3.4i", "1+2 3i", "++i", "e+5i", "1e+i", "abce+5i", "1+-2i", "1.5.i", "I"})
        EXPECT_FALSE(IsComplexText(text)) << '"' << text << '"';
}

TEST(IsComplexText, TakesNumbersAndComplexObjectsToo)
{
    MessageRecorder messages;
    EXPECT_TRUE(IsComplexText(2.5));
    EXPECT_TRUE(IsComplexText(Scalar(1, 2)));
    EXPECT_FALSE(IsComplexText({}));
    EXPECT_FALSE(IsComplexText(Row<std::string>({"i"})));
    EXPECT_EQ(messages.shown, Shown{});
}

TEST(IsComplexText, ShowsAMessageForAnotherObject)
{
    MessageRecorder messages;
    EXPECT_FALSE(IsComplexText(RealMatrix({{1.0}})));
    EXPECT_FALSE(IsComplexText(test::TextMatrix({{"i"}})));
    EXPECT_EQ(messages.shown,
              (Shown{Plain("Incorrect type of object."), Plain("Incorrect type of object.")}));
    EXPECT_EQ(Raised([] { IsComplexText(Ref<clsComplex>()); }), 91);
}

TEST(IsAllZero, AsksAValueOrEveryElement)
{
    for (const Variant& zero :
         {Variant(0), Variant(-0.0), Variant("0.0"), Variant(Row<double>({0.0, -0.0})),
          Variant(Array<std::int32_t>(2, 3)), Variant(Row<std::string>({"0", "0e5"})),
          Variant(Row<Variant>({0, "0", Scalar(0, 0)})), Variant(Scalar(0, 0))})
        EXPECT_TRUE(IsAllZero(zero));
    for (const Variant& other :
         {Variant(), Variant(1e-300), Variant("zero"), Variant(kNan),
          Variant(Row<double>({0.0, 1e-300})), Variant(Row<Variant>({0, Variant()})),
          Variant(Row<Ref<clsComplex>>({Scalar(0, 1)})), Variant(RealMatrix({{0.0}}))})
        EXPECT_FALSE(IsAllZero(other));
}

TEST(LengthOf, IsTheLongerSide)
{
    EXPECT_EQ(LengthOf(*RealMatrix({{1, 2, 3}})), 3);
    EXPECT_EQ(LengthOf(*RealMatrix({{1}, {2}})), 2);
    EXPECT_EQ(LengthOf(*RealMatrix({{1, 2}, {3, 4}})), 2);
    EXPECT_EQ(LengthOf(clsMatrix()), 0);
}

TEST(GetSizeOfArray, CountsRowsAndColumns)
{
    Array<double> shifted;
    shifted.ReDim({-1, 2}, {5, 6});
    const Ref<clsLong> sizes = GetSizeOfArray(shifted);
    EXPECT_EQ(Values(*sizes), (std::vector<std::int32_t>{4, 2}));
    EXPECT_EQ(test::ShapeOf(*sizes), test::Sized(1, 2));
    EXPECT_EQ(Values(*GetSizeOfArray(Array<std::string>(7))), (std::vector<std::int32_t>{1, 7}));
    EXPECT_EQ(Raised([] { GetSizeOfArray(Array<double>()); }), 9);
}

TEST(GetSizeOfArray, ShowsAMessageForWhatIsNoArray)
{
    MessageRecorder messages;
    EXPECT_FALSE(GetSizeOfArray(1.0));
    EXPECT_FALSE(GetSizeOfArray(LongMatrix({{1}})));
    const auto message = Plain("Error using  GetSizeOfArray . Type of Parrametr must be array.");
    EXPECT_EQ(messages.shown, (Shown{message, message}));
}

} // namespace
} // namespace lumora
