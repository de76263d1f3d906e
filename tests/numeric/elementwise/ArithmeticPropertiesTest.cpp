#include "numeric/Random.h"

#include <gtest/gtest.h>

#include <random>

namespace lumora::test {
namespace {

/// Elements whose sums and products are rounded, so that an equality shows equal bits.
Ref<clsMatrix> Noise(std::mt19937_64& random, std::int32_t rows, std::int32_t columns)
{
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    Ref<clsMatrix> m = MakeRef<clsMatrix>();
    m->Initial_matrix(rows, columns);
    for (std::int32_t j = 1; j <= columns; ++j)
        for (std::int32_t i = 1; i <= rows; ++i)
            m->Real(i, j, uniform(random));
    return m;
}

class Properties : public testing::TestWithParam<int> {
protected:
    RandomMatrices some_{static_cast<std::uint32_t>(GetParam())};
    std::mt19937_64 random_{static_cast<std::uint64_t>(GetParam())};
    std::int32_t rows_ = some_.Whole(1, 6);
    std::int32_t inner_ = some_.Whole(1, 6);
    std::int32_t columns_ = some_.Whole(1, 6);
};

TEST_P(Properties, SumsAndElementWiseProductsCommuteToTheLastBit)
{
    const auto a = Noise(random_, rows_, columns_);
    const auto b = Noise(random_, rows_, columns_);
    EXPECT_EQ(Values(*a->PlusR(*b)), Values(*b->PlusR(*a)));
    EXPECT_EQ(Values(*a->TimesR(*b)), Values(*b->TimesR(*a)));
    const auto z = some_.Complexes(rows_, columns_);
    EXPECT_EQ(Values(*a->PlusC(*z)), Values(*z->PlusR(*a)));
    EXPECT_EQ(Values(*a->TimesC(*z)), Values(*z->TimesR(*a)));
}

TEST_P(Properties, TheTransposeOfAProductIsTheProductOfTheTransposesExchanged)
{
    const auto a = Noise(random_, rows_, inner_);
    const auto b = Noise(random_, inner_, columns_);
    EXPECT_EQ(Values(*a->MtimesR(*b)->Transpose()),
              Values(*b->Transpose()->MtimesR(*a->Transpose())));
    const auto y = some_.Complexes(rows_, inner_);
    const auto z = some_.Complexes(inner_, columns_);
    EXPECT_EQ(Values(*y->MtimesC(*z)->CTranspose()),
              Values(*z->CTranspose()->MtimesC(*y->CTranspose())));
}

TEST_P(Properties, TheIdentityLeavesAProductAsItIs)
{
    const auto a = Noise(random_, rows_, columns_);
    const clsMatrix any;
    EXPECT_EQ(Values(*any.clsEye(rows_)->MtimesR(*a)), Values(*a));
    EXPECT_EQ(Values(*a->MtimesR(*any.clsEye(columns_))), Values(*a));
}

TEST_P(Properties, TheProductDistributesOverSums)
{
    // Halves and small whole numbers: nothing is rounded.
    const auto a = some_.Real(rows_, inner_);
    const auto b = some_.Real(inner_, columns_);
    const auto c = some_.Real(inner_, columns_);
    EXPECT_EQ(Values(*a->MtimesR(*b->PlusR(*c))), Values(*a->MtimesR(*b)->PlusR(*a->MtimesR(*c))));
}

TEST_P(Properties, MinusTakesPlusBackAndRdivideTakesTimesBack)
{
    const auto a = some_.Real(rows_, columns_);
    const auto b = some_.Real(rows_, columns_);
    EXPECT_EQ(Values(*a->PlusR(*b)->MinusR(*b)), Values(*a));
    const auto two = RealMatrix({{2}});
    EXPECT_EQ(Values(*a->TimesR(*two)->RdivideR(*two)), Values(*a));
}

TEST_P(Properties, WholeNumbersComputeAsFloatsDo)
{
    const auto a = some_.Long(rows_, inner_);
    const auto b = some_.Long(inner_, columns_);
    const auto c = some_.Long(rows_, inner_);
    const auto floats = [](const clsLong& m) {
        Ref<clsMatrix> wide = MakeRef<clsMatrix>();
        wide->CopyObjectLongToDouble(m);
        return wide;
    };
    EXPECT_EQ(Values(*floats(*a->MtimesL(*b))), Values(*floats(*a)->MtimesR(*floats(*b))));
    EXPECT_EQ(Values(*floats(*a->TimesL(*c))), Values(*floats(*a)->TimesR(*floats(*c))));
    EXPECT_EQ(Values(*floats(*a->MinusL(*c))), Values(*floats(*a)->MinusR(*floats(*c))));
}

TEST_P(Properties, BothComplexClassesComputeTheSame)
{
    const auto y = some_.Complexes(rows_, columns_);
    const auto z = some_.Complexes(rows_, columns_);
    Ref<clsMatrixComplex> y_objects = MakeRef<clsMatrixComplex>();
    Ref<clsMatrixComplex> z_objects = MakeRef<clsMatrixComplex>();
    y_objects->CopyObject_C(*y);
    z_objects->CopyObject_C(*z);
    EXPECT_EQ(Values(*y_objects->TimesMC(*z_objects)), Values(*y->TimesC(*z)));
    EXPECT_EQ(Values(*y_objects->PlusMC(*z_objects)), Values(*y->PlusC(*z)));
}

TEST_P(Properties, ARowResultIsOneDimensionalAndTheRestIsNot)
{
    const auto a = Noise(random_, rows_, inner_);
    const auto b = Noise(random_, inner_, columns_);
    EXPECT_EQ(ShapeOf(*a->MtimesR(*b)), Sized(rows_, columns_));
    EXPECT_EQ(ShapeOf(*a->PlusR(*a)), Sized(rows_, inner_));
    EXPECT_EQ(ShapeOf(*a->SinM()), Sized(rows_, inner_));
    EXPECT_EQ(ShapeOf(*a->Transpose()), Sized(inner_, rows_));
}

INSTANTIATE_TEST_SUITE_P(Seed, Properties, testing::Range(1, 41));

} // namespace
} // namespace lumora::test
