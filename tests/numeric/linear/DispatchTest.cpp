#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora::test {
namespace {

const Shown kIncorrect{Plain("Incorrect type of object")};

/// The tag of the object in a result.
template <class M> bool Holds(const Variant& result)
{
    return result.Is<Ref<M>>();
}

TEST(Dispatch, TakesAnArrayOfWholeFloatsForWholeNumbers)
{
    const auto whole = LongMatrix({{10, 20, 30}});
    EXPECT_TRUE(Holds<clsLong>(whole->Plus(Row<double>({1.0, 2.0, 3.0}))));
    EXPECT_TRUE(Holds<clsMatrix>(whole->Plus(Row<double>({1.5, 2.0, 3.0}))));
    // And so a clsMatrix stops at an array of whole floats, but not at the next one.
    const auto real = RealMatrix({{10, 20}});
    EXPECT_EQ(Raised([&] { real->Plus(Row<double>({1.0, 2.0})); }), 13);
    EXPECT_TRUE(Holds<clsMatrix>(real->Plus(Row<double>({1.5, 2.0}))));
}

TEST(Dispatch, TakesTextsForWhatTheySpell)
{
    const auto whole = LongMatrix({{10, 20}});
    EXPECT_TRUE(Holds<clsLong>(whole->Minus(Row<std::string>({"1", " 2 "}))));
    EXPECT_TRUE(Holds<clsMatrix>(whole->Minus(Row<std::string>({"1.5", "2"}))));
    const Variant sum = RealMatrix({{1, 2}})->Plus(Row<std::string>({"1 - 2i", "i"}));
    ASSERT_TRUE(Holds<clsComplexMatrix>(sum));
    EXPECT_EQ(Values(*sum.As<Ref<clsComplexMatrix>>()), (std::vector<Complex>{{2, -2}, {2, 1}}));
    EXPECT_EQ(Values(*whole->Times(std::string("0.5")).As<Ref<clsMatrix>>()),
              (std::vector<double>{5, 10}));
}

TEST(Dispatch, GivesEmptyWithoutAMessageForAnArrayOfNoKind)
{
    MessageRecorder messages;
    EXPECT_TRUE(RealMatrix({{1}})->Plus(Row<std::string>({"one"})).IsEmpty());
    EXPECT_TRUE(RealMatrix({{1, 2}})->Plus(Row<Variant>({Scalar(1, 2), 3.0})).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST(Dispatch, RefusesWhatIsNoOperand)
{
    MessageRecorder messages;
    const auto check = [&](const auto& receiver) {
        for (const Variant& operand :
             {Variant(), Variant(std::string("abc")), Variant(TextMatrix({{"1"}})),
              Variant(MakeRef<clsVariant>())})
            for (const Variant& result :
                 {receiver->Plus(operand), receiver->Minus(operand), receiver->Times(operand),
                  receiver->MTimes(operand), receiver->Rdivide(operand)}) {
                EXPECT_TRUE(result.IsEmpty());
            }
        EXPECT_EQ(messages.Take(), Shown(20, kIncorrect[0]));
    };
    check(RealMatrix({{1}}));
    check(LongMatrix({{1}}));
    check(ComplexMatrix({{1}}));
    check(ObjectMatrix({{1}}));
    check(Scalar(1, 0));
}

TEST(Dispatch, GoesByTheTagAndFailsWhereItBeliesTheClass)
{
    const auto operand = RealMatrix({{1}});
    operand->TypeOfMatrix = "L";
    EXPECT_EQ(Raised([&] { RealMatrix({{1}})->Minus(operand); }), 13);
    operand->TypeOfMatrix = "cm";
    MessageRecorder messages;
    EXPECT_TRUE(RealMatrix({{1}})->Minus(operand).IsEmpty());
    EXPECT_EQ(messages.Take(), kIncorrect);
}

TEST(Dispatch, OfAnEmptyReferenceIsAMissingObject)
{
    EXPECT_EQ(Raised([] { RealMatrix({{1}})->Plus(Ref<clsMatrix>()); }), 91);
}

TEST(Dispatch, KeepsTheScalarOnItsSide)
{
    const auto row = RealMatrix({{1, 2}});
    const auto one = RealMatrix({{10}});
    EXPECT_EQ(Values(*one->MinusR(*row)), (std::vector<double>{9, 8}));
    EXPECT_EQ(Values(*row->MinusR(*one)), (std::vector<double>{-9, -8}));
    EXPECT_EQ(Values(*one->RdivideR(*row)), (std::vector<double>{10, 5}));
    EXPECT_EQ(Values(*Scalar(0, 2)->MinusR(*row)), (std::vector<Complex>{{-1, 2}, {-2, 2}}));
    EXPECT_EQ(Values(*Scalar(0, 2)->RdivideR(*row)), (std::vector<Complex>{{0, 2}, {0, 1}}));
}

TEST(Dispatch, OfObjectsWithoutElementsIsASubscriptError)
{
    const auto none = MakeRef<clsMatrix>();
    EXPECT_EQ(Raised([&] { none->MinusR(*none); }), 9);
    EXPECT_EQ(Raised([&] { none->MinusNum(1); }), 9);
    EXPECT_EQ(Raised([&] { RealMatrix({{1}})->MinusR(*none); }), 9);
    MessageRecorder messages;
    EXPECT_FALSE(RealMatrix({{1, 2}})->MinusR(*none));
    EXPECT_EQ(messages.Take().size(), 1U);
}

TEST(Dispatch, OfAStoreThatDisagreesWithItsSizesIsASubscriptError)
{
    const auto torn = RealMatrix({{1, 2}, {3, 4}});
    torn->size1 = 1;
    EXPECT_EQ(Raised([&] { torn->MinusR(*torn); }), 9);
    torn->size1 = 4;
    torn->size2 = 1;
    EXPECT_EQ(Raised([&] { torn->MinusNum(1); }), 9);
}

TEST(Dispatch, LeavesItsOperandsAlone)
{
    const auto a = RealMatrix({{1, 2}, {3, 4}});
    const auto b = RealMatrix({{5, 6}, {7, 8}});
    const Variant sum = a->Plus(b);
    sum.As<Ref<clsMatrix>>()->Real(1, 1, 99.0);
    EXPECT_EQ(Values(*a), (std::vector<double>{1, 3, 2, 4}));
    EXPECT_EQ(Values(*b), (std::vector<double>{5, 7, 6, 8}));
}

TEST(MembersThatStop, ComputeFirstSoThatOtherFailuresComeBefore)
{
    MessageRecorder messages;
    EXPECT_FALSE(RealMatrix({{1, 2}})->PlusL(*LongMatrix({{1}, {2}})));
    EXPECT_EQ(messages.Take(),
              Shown{Plain("Error using ==> Plus(*) Inner matrix dimensions must agree.")});
    EXPECT_EQ(Raised([] { RealMatrix({{1e308}})->PlusNum(1e308); }), 6);
    EXPECT_EQ(Raised([] { RealMatrix({{1}})->PlusNum(1); }), 13);
    EXPECT_EQ(Raised([] { LongMatrix({{1}})->PlusNum(1); }), 13);
    EXPECT_EQ(Raised([] { RealMatrix({{1}})->PlusLArray(Row<std::int32_t>({1})); }), 13);
    EXPECT_EQ(Raised([] { LongMatrix({{1}})->TimesLArray(Row<std::int32_t>({1})); }), 13);
    EXPECT_EQ(Raised([] { RealMatrix({{1}})->MtimesLArray(Row<std::int32_t>({1})); }), 13);
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST(ElementObjects, ThatAreMissingFailTheirOperations)
{
    const auto m = MakeRef<clsMatrixComplex>();
    m->Initial_matrix(1, 2);
    EXPECT_EQ(Raised([&] { m->PlusNum(1); }), 91);
    EXPECT_EQ(Raised([&] { RealMatrix({{1, 2}})->PlusMC(*m); }), 91);
}

TEST(ElementObjects, OfDifferentSizesShowTheMessageAndGiveEmpty)
{
    MessageRecorder messages;
    EXPECT_FALSE(ObjectMatrix({{1, 2}})->MinusMC(*ObjectMatrix({{1}, {2}})));
    EXPECT_EQ(messages.Take(),
              Shown{Plain("Error using ==> Minus(*) Inner matrix dimensions must agree.")});
}

} // namespace
} // namespace lumora::test
