#include "numeric/Matrices.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumora::test {
namespace {

TEST(Overflow, OfWholeNumbersStartsOneBeyondTheRange)
{
    const auto most = LongMatrix({{kMost32}});
    const auto least = LongMatrix({{kLeast32}});
    EXPECT_EQ(Values(*most->PlusL(*LongMatrix({{0}}))), (std::vector<std::int32_t>{kMost32}));
    EXPECT_EQ(Raised([&] { most->PlusL(*LongMatrix({{1}})); }), 6);
    EXPECT_EQ(Values(*least->MinusL(*LongMatrix({{0}}))), (std::vector<std::int32_t>{kLeast32}));
    EXPECT_EQ(Raised([&] { least->MinusL(*LongMatrix({{1}})); }), 6);
    EXPECT_EQ(Raised([&] { least->TimesL(*LongMatrix({{-1}})); }), 6);
    EXPECT_EQ(Raised([&] { LongMatrix({{65536}})->MtimesLongNum(32768); }), 6);
    EXPECT_EQ(Values(*LongMatrix({{-65536}})->MtimesLongNum(32768)),
              (std::vector<std::int32_t>{kLeast32}));
}

TEST(Overflow, OfWholeProductsIsLookedForAtEveryPartialSum)
{
    // The whole sum would fit; the sum up to the second product does not.
    const auto row = LongMatrix({{kMost32, 1, -1}});
    EXPECT_EQ(Raised([&] { row->MtimesL(*LongMatrix({{1}, {1}, {1}})); }), 6);
    // Neither does a single product, although another would take it back.
    EXPECT_EQ(Raised([&] {
                  LongMatrix({{kMost32, kMost32}})->MtimesL(*LongMatrix({{2}, {-2}}));
              }),
              6);
    EXPECT_EQ(Values(*row->MtimesL(*LongMatrix({{1}, {-1}, {-1}}))),
              (std::vector<std::int32_t>{kMost32}));
}

TEST(Overflow, OfFloatsIsAnErrorInEveryElement)
{
    // Far behind the first elements, so that no place in a block is special.
    Ref<clsMatrix> long_row = MakeRef<clsMatrix>();
    long_row->Initial_matrix(1, 5000);
    for (const std::int32_t j : {1, 1024, 1025, 4999, 5000}) {
        long_row->Real(1, j, 1e308);
        EXPECT_EQ(Raised([&] { long_row->PlusR(*long_row); }), 6) << j;
        EXPECT_EQ(Raised([&] { long_row->TimesNum(10.0); }), 6) << j;
        EXPECT_EQ(Raised([&] { long_row->MinusNum(-1e308); }), 6) << j;
        EXPECT_EQ(Raised([&] { long_row->RdivideNum(0.01); }), 6) << j;
        long_row->Real(1, j, 0.0);
    }
    EXPECT_EQ(Raised([&] { long_row->PlusR(*long_row); }), 0);
}

TEST(Overflow, OfEitherComplexPartIsAnError)
{
    EXPECT_EQ(Raised([] {
                  ComplexMatrix({{{1e200, 1}}})->TimesC(*ComplexMatrix({{{1e200, 1}}}));
              }),
              6);
    EXPECT_EQ(Raised([] {
                  ComplexMatrix({{{0, 1e308}}})->PlusC(*ComplexMatrix({{{0, 1e308}}}));
              }),
              6);
    EXPECT_EQ(Raised([] { Scalar(1e308, 0)->PlusNum(1e308); }), 6);
    EXPECT_EQ(Raised([] { Scalar(1e200, 1e200)->MtimesComplexNum(clsComplex(1e200, 1e200)); }), 6);
}

TEST(Overflow, OfAMatrixProductIsAnError)
{
    const auto a = RealMatrix({{1, 2}, {1e200, 1e200}});
    EXPECT_EQ(Raised([&] { a->MtimesR(*RealMatrix({{1, 1e200}, {1, -1e200}})); }), 6);
    EXPECT_EQ(Values(*a->MtimesR(*RealMatrix({{1, 1}, {1, -1}}))),
              (std::vector<double>{3, 2e200, -1, 0}));
}

TEST(Overflow, IsNotWhatComesOfInfiniteOperands)
{
    const auto infinite = RealMatrix({{kInfinity, 1}});
    EXPECT_EQ(Values(*infinite->PlusR(*RealMatrix({{1, 1}}))), (std::vector<double>{kInfinity, 2}));
    EXPECT_TRUE(std::isnan(Values(*infinite->MinusR(*infinite))[0]));
    EXPECT_EQ(Values(*infinite->MtimesR(*RealMatrix({{1}, {1}}))),
              (std::vector<double>{kInfinity}));
    // One infinite element does not excuse another that overflows.
    EXPECT_EQ(Raised([] { RealMatrix({{kInfinity, 1e308}})->TimesNum(10.0); }), 6);
}

} // namespace
} // namespace lumora::test
