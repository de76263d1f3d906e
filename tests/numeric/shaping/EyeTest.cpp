#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

const ShownMessage kTitle =
    Titled("Error using Eye", "Unknown command option. Imposible argument must be size()");

Ref<clsMatrix> Eye(const Variant& n, const Variant& second = {})
{
    return clsMatrix().clsEye(n, second);
}

/// Ones on the main diagonal and zeros elsewhere, read element by element.
void ExpectIdentity(const clsMatrix& eye, std::int32_t rows, std::int32_t columns)
{
    EXPECT_EQ(ShapeOf(eye), Sized(rows, columns));
    for (std::int32_t i = 1; i <= rows; ++i)
        for (std::int32_t j = 1; j <= columns; ++j)
            EXPECT_EQ(eye.Real(i, j), i == j ? 1.0 : 0.0) << i << ", " << j;
}

TEST(Eye, OfThreeIsTheIdentity)
{
    EXPECT_EQ(Values(*Eye(3.0)), (std::vector<double>{1, 0, 0, 0, 1, 0, 0, 0, 1}));
    ExpectIdentity(*Eye(std::int32_t{1}), 1, 1);
    ExpectIdentity(*Eye(std::int16_t{6}), 6, 6);
}

TEST(Eye, OfTwoSizesHasOnesAsFarAsTheSmaller)
{
    EXPECT_EQ(Values(*Eye(2.0, 3.0)), (std::vector<double>{1, 0, 0, 1, 0, 0}));
    ExpectIdentity(*Eye(3.0, 2.0), 3, 2);
    ExpectIdentity(*Eye(1.0, 4.0), 1, 4);
    ExpectIdentity(*Eye(4.0, 1.0), 4, 1);
}

TEST(Eye, TakesTheAnswerOfASizeQuery)
{
    ExpectIdentity(*Eye(LongMatrix({{2, 5}})), 2, 5);
    ExpectIdentity(*Eye(RealMatrix({{3, 1}})), 3, 1);
    ExpectIdentity(*Eye(TextMatrix({{"4", "2"}})), 4, 2);
}

TEST(Eye, RoundsItsSizesHalfToEven)
{
    ExpectIdentity(*Eye(2.5), 2, 2);
    ExpectIdentity(*Eye(3.5, 1.49), 4, 1);
    ExpectIdentity(*Eye(RealMatrix({{1.5, 2.5}})), 2, 2);
    ExpectIdentity(*Eye(" 2 ", "3"), 2, 3);
}

TEST(Eye, RefusesAnotherObjectWithOneMessage)
{
    clsVariant values;
    values.Initial_matrix(2, 2);
    const Variant refused[] = {
        LongMatrix({{2}, {2}}),    RealMatrix({{2}}), RealMatrix({{1, 2, 3}}),
        MakeRef<clsMatrix>(),      Scalar(2, 2),      TextMatrix({{"a", "b"}, {"c", "d"}}),
        values.CopyObjectVariant()};
    for (const Variant& n : refused) {
        MessageRecorder ok;
        const Ref<clsMatrix> sentinel = Eye(n);
        EXPECT_EQ(ok.Take(), Shown{kTitle});
        EXPECT_EQ(Values(*sentinel), std::vector<double>{-1});
        MessageRecorder cancel(MessageAnswer::Cancel);
        EXPECT_FALSE(Eye(n));
        EXPECT_EQ(cancel.Take(), Shown{kTitle});
    }
}

TEST(Eye, RefusesAnyObjectBesideASecondSize)
{
    MessageRecorder ok;
    EXPECT_EQ(Values(*Eye(LongMatrix({{2, 2}}), 2.0)), std::vector<double>{-1});
    EXPECT_EQ(ok.Take(), Shown{kTitle});
    MessageRecorder cancel(MessageAnswer::Cancel);
    EXPECT_FALSE(Eye(LongMatrix({{2, 2}}), 2.0));
    EXPECT_EQ(cancel.Take(), Shown{kTitle});
}

TEST(Eye, StopsAtWhatIsNoSize)
{
    const MessageRecorder silent;
    EXPECT_EQ(Raised([] { Eye(0.0); }), 9);
    EXPECT_EQ(Raised([] { Eye(0.5); }), 9);
    EXPECT_EQ(Raised([] { Eye(-1.0, 2.0); }), 9);
    EXPECT_EQ(Raised([] { Eye(2.0, 0.0); }), 9);
    EXPECT_EQ(Raised([] { Eye(3e9); }), 6);
    EXPECT_EQ(Raised([] { Eye("two"); }), 13);
    EXPECT_EQ(Raised([] { Eye(Variant()); }), 13);
    EXPECT_EQ(Raised([] { Eye(Row<double>({1, 2})); }), 13);
    EXPECT_EQ(Raised([] { Eye(2.0, RealMatrix({{2}})); }), 13);
    EXPECT_EQ(Raised([] { Eye(ComplexMatrix({{1, 2}})); }), 13);
    EXPECT_EQ(Raised([] { Eye(TextMatrix({{"a", "2"}})); }), 13);
    EXPECT_EQ(Raised([] { Eye(Ref<clsMatrix>()); }), 91);
    EXPECT_TRUE(silent.shown.empty());
}

} // namespace
} // namespace lumora
