#include "numeric/Sounds.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <vector>

namespace lumora {
namespace {

using namespace test;

TEST(ScallProd, SumsProductsOfTwoStretchesInTheirOrder)
{
    const Ref<clsMatrix> x = RealMatrix({{1, 2, 3, 4, 5}});
    EXPECT_EQ(x->ScallProd(1, 1, 5.0), 55);
    EXPECT_EQ(x->ScallProd(1, 3, std::int32_t{3}), 1 * 3 + 2 * 4 + 3 * 5);
    EXPECT_EQ(x->ScallProd(4, 1, "2"), 4 * 1 + 5 * 2);
    const Sound noise = Noise(300, 4918);
    double sum = 0.0;
    for (std::size_t k = 0; k < 200; ++k)
        sum += noise[10 + k] * noise[90 + k];
    EXPECT_EQ(RowOf(noise)->ScallProd(11, 91, 200.0), sum);
}

TEST(ScallProd, RoundsItsLengthAndIsZeroWithoutOne)
{
    const Ref<clsMatrix> x = RealMatrix({{1, 2, 3, 4, 5}});
    EXPECT_EQ(x->ScallProd(1, 1, 2.5), x->ScallProd(1, 1, 2.0));
    EXPECT_EQ(x->ScallProd(1, 1, 3.5), x->ScallProd(1, 1, 4.0));
    EXPECT_EQ(x->ScallProd(1, 1, 0.0), 0);
    EXPECT_EQ(x->ScallProd(-7, 99, -3.0), 0);
    EXPECT_EQ(Raised([&] { x->ScallProd(1, 1, "long"); }), 13);
}

TEST(ScallProd, IsZeroUnlessTheReceiverIsARow)
{
    EXPECT_EQ(RealMatrix({{1}, {2}})->ScallProd(1, 1, 2.0), 0);
    EXPECT_EQ(RealMatrix({{1, 2}, {3, 4}})->ScallProd(1, 1, 2.0), 0);
    EXPECT_EQ(RealMatrix({{1}, {2}})->ScallProd(1, 1, "no number"), 0); // which nobody looks at
    EXPECT_EQ(MakeRef<clsMatrix>()->ScallProd(1, 1, 1.0), 0);
}

TEST(ScallProd, StopsOutsideTheRowAndAtALoneElement)
{
    const Ref<clsMatrix> x = RealMatrix({{1, 2, 3}});
    EXPECT_EQ(Raised([&] { x->ScallProd(0, 1, 1.0); }), 9);
    EXPECT_EQ(Raised([&] { x->ScallProd(1, 0, 1.0); }), 9);
    EXPECT_EQ(Raised([&] { x->ScallProd(1, 3, 2.0); }), 9);
    EXPECT_EQ(Raised([&] { x->ScallProd(2, 1, 3.0); }), 9);
    EXPECT_EQ(Raised([&] { x->ScallProd(kMost32, kMost32, static_cast<double>(kMost32)); }), 9);
    EXPECT_EQ(Raised([&] { RealMatrix({{2}})->ScallProd(1, 1, 1.0); }), 9);
    EXPECT_EQ(RealMatrix({{2}})->ScallProd(1, 1, 0.0), 0);
    EXPECT_EQ(Raised([&] { RealMatrix({{1e200, 1}})->ScallProd(1, 1, 2.0); }), 6);
}

TEST(SoundMinusAverage1, TakesTheMeanOfTheFirstSamplesFromARow)
{
    const Ref<clsMatrix> x = RealMatrix({{1, 3, 5, 9}});
    EXPECT_EQ(Values(*x->SoundMinusAverage1(4.0)), (Sound{-3.5, -1.5, 0.5, 4.5}));
    EXPECT_EQ(Values(*x->SoundMinusAverage1(2.0)), (Sound{-1, 1, 3, 7}));
    EXPECT_EQ(Values(*x->SoundMinusAverage1("2.5")), (Sound{-1, 1, 3, 7}));
    EXPECT_EQ(ShapeOf(*x->SoundMinusAverage1(2.0)), Sized(1, 4));
    EXPECT_EQ(Values(*x), (Sound{1, 3, 5, 9}));
}

TEST(SoundMinusAverage1, OfAColumnComputesTheFirstSampleOnly)
{
    const Ref<clsMatrix> x = RealMatrix({{1}, {3}, {5}, {9}});
    EXPECT_EQ(Values(*x->SoundMinusAverage1(4.0)), (Sound{-3.5, 0, 0, 0}));
    EXPECT_EQ(ShapeOf(*x->SoundMinusAverage1(4.0)), Sized(4, 1));
}

TEST(SoundMinusAverage1, StopsAtACountThatIsNoPartOfTheVector)
{
    const Ref<clsMatrix> x = RealMatrix({{1, 3}});
    EXPECT_EQ(Raised([&] { x->SoundMinusAverage1(3.0); }), 9);
    EXPECT_EQ(Raised([&] { x->SoundMinusAverage1(0.0); }), 11);
    EXPECT_EQ(Values(*x->SoundMinusAverage1(-1.0)), (Sound{1, 3}));
    EXPECT_EQ(Raised([&] { x->SoundMinusAverage1(Variant()); }), 13);
    EXPECT_EQ(Raised([&] { RealMatrix({{1, 2}, {3, 4}})->SoundMinusAverage1(1.0); }), 9);
    EXPECT_EQ(Raised([&] { MakeRef<clsMatrix>()->SoundMinusAverage1(1.0); }), 9);
    EXPECT_EQ(Raised([&] { RealMatrix({{1e308, 1e308}})->SoundMinusAverage1(2.0); }), 6);
    EXPECT_EQ(Raised([&] { RealMatrix({{-1.5e308, 1.5e308}})->SoundMinusAverage1(1.0); }), 6);
}

} // namespace
} // namespace lumora
