#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

using Texts = std::vector<std::string>;

TEST(OrderString, ComparesByteByByte)
{
    const Ref<clsString> m = TextMatrix({{"b", "B", "a"}, {"", "ab", "\xC3\xA9"}});
    EXPECT_EQ(m->Min(), "");
    EXPECT_EQ(m->Max(), "\xC3\xA9");
    EXPECT_EQ(TextMatrix({{"b", "a", "B"}})->Min(), "B");
    EXPECT_EQ(TextMatrix({{"10", "9"}})->Max(), "9");
    EXPECT_EQ(TextMatrix({{"a", "ab"}})->Max(), "ab");
}

TEST(OrderString, GivesExtremesAndPlacesByColumnAndByRow)
{
    const Ref<clsString> m = TextMatrix({{"b", "x"}, {"a", "x"}, {"c", "w"}});
    EXPECT_EQ(Values(*m->MinDim(1.0)), (Texts{"a", "w"}));
    EXPECT_EQ(Values(*m->MaxDim()), (Texts{"c", "x"}));
    EXPECT_EQ(Values(*m->MinDim(2.0)), (Texts{"b", "a", "c"}));
    EXPECT_EQ(ShapeOf(*m->MaxDim(2.0)), Sized(3, 1));
    EXPECT_EQ(Values(*m->MaxIndex(1.0)), (std::vector<std::int32_t>{3, 1}));
    EXPECT_EQ(Values(*m->MinIndex(2.0)), (std::vector<std::int32_t>{1, 1, 1}));
}

TEST(OrderString, TellsTextsAndWholeNumbersInMinmax)
{
    const Ref<clsVariant> both = TextMatrix({{"b", "a"}, {"a", "c"}})->Minmax();
    EXPECT_EQ(ShapeOf(*both), Sized(1, 6));
    const Variant expected[] = {
        "a", "c", std::int32_t{1}, std::int32_t{2}, std::int32_t{2}, std::int32_t{2}};
    for (std::int32_t j = 1; j <= 6; ++j)
        EXPECT_EQ(both->Real(1, j), expected[j - 1]) << j;
}

TEST(OrderString, ComparesPairByPair)
{
    const Ref<clsString> m = TextMatrix({{"b"}, {"d"}});
    EXPECT_EQ(Values(*m->MinSS(*TextMatrix({{"a"}, {"e"}}))), (Texts{"a", "d"}));
    EXPECT_EQ(Values(*m->MaxSS(*TextMatrix({{"a"}, {"e"}}))), (Texts{"b", "e"}));
    EXPECT_EQ(Values(*m->MinString("c")), (Texts{"b", "c"}));
    EXPECT_EQ(Values(*m->MaxString("c")), (Texts{"c", "d"}));
    EXPECT_EQ(ShapeOf(*m->MaxString("c")), Sized(2, 1));
}

TEST(OrderString, OfOtherSizesShowsOneMessageAndIsEmpty)
{
    const Ref<clsString> m = TextMatrix({{"b"}, {"d"}});
    MessageRecorder recorder;
    EXPECT_FALSE(m->MinSS(*TextMatrix({{"a", "e"}})));
    EXPECT_EQ(recorder.Take(), Shown{Plain("Matrix dimensions must agree.")});
    EXPECT_FALSE(m->MaxSS(*TextMatrix({{"a"}})));
    EXPECT_EQ(recorder.Take(), Shown{Plain("Matrix dimensions must agree.")});
}

TEST(OrderString, FindsEveryExtremeAtItsFirstPlace)
{
    constexpr std::uint32_t kSeed = 4506;
    RandomMatrices random(kSeed);
    for (int round = 0; round < 30; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const Ref<clsString> m = random.Texts(random.Whole(1, 5), random.Whole(1, 5));
        const Texts texts = Values(*m);
        EXPECT_EQ(m->Min(), *std::min_element(texts.begin(), texts.end()));
        EXPECT_EQ(m->Max(), *std::max_element(texts.begin(), texts.end()));
        const Ref<clsString> min = m->MinDim(1.0);
        const Ref<clsLong> at = m->MinIndex(1.0);
        for (std::int32_t j = 1; j <= m->size2; ++j) {
            const Texts column = Values(*m->OutMatrix(1, j, m->size1, j));
            const auto least = std::min_element(column.begin(), column.end());
            EXPECT_EQ(min->Real(1, j), *least);
            EXPECT_EQ(at->Real(1, j), least - column.begin() + 1);
        }
    }
}

} // namespace
} // namespace lumora
