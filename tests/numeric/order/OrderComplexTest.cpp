#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "numeric/order/MinMax.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumora {
namespace {

using namespace test;

Complex Told(const Ref<clsComplex>& z)
{
    return {z->Real, z->Image};
}

TEST(OrderComplex, ComparesMagnitudesAndThenAngles)
{
    // 5, 5, 5 and sqrt(2): angles 0, about 0.93 and -0.93.
    const Ref<clsComplexMatrix> m = ComplexMatrix({{{3, 4}, {5, 0}}, {{3, -4}, {1, 1}}});
    EXPECT_EQ(Told(m->Min()), Complex(1, 1));
    EXPECT_EQ(Told(m->Max()), Complex(3, 4));
    EXPECT_EQ(Told(ComplexMatrix({{{3, 4}, {5, 0}, {3, -4}}})->Min()), Complex(3, -4));
    EXPECT_EQ(Told(ComplexMatrix({{2, -2}})->Max()), Complex(-2, 0));
    EXPECT_EQ(Told(ObjectMatrix({{2, -2}})->Min()), Complex(2, 0));
}

/// The rule once more; on small halves the squares are exact.
bool IsBelow(Complex a, Complex b)
{
    const double ma = a.real() * a.real() + a.imag() * a.imag();
    const double mb = b.real() * b.real() + b.imag() * b.imag();
    if (ma != mb) return ma < mb;
    return std::atan2(a.imag(), a.real()) < std::atan2(b.imag(), b.real());
}

template <class M> Complex At(const M& m, std::int32_t i, std::int32_t j)
{
    if constexpr (std::same_as<M, clsComplexMatrix>)
        return {m.Real(i, j), m.Image(i, j)};
    else
        return Told(m.Real(i, j));
}

struct Place {
    Complex value;
    double row = 1;
    double column = 1;
};
template <class M> Place PlainScan(const M& m, bool smallest)
{
    Place place{At(m, 1, 1)};
    for (std::int32_t i = 1; i <= m.size1; ++i)
        for (std::int32_t j = 1; j <= m.size2; ++j) {
            const Complex x = At(m, i, j);
            if (smallest ? IsBelow(x, place.value) : IsBelow(place.value, x))
                place = {x, 1.0 * i, 1.0 * j};
        }
    return place;
}

template <class M> void ExpectOrder(const M& m)
{
    const Place min = PlainScan(m, true);
    const Place max = PlainScan(m, false);
    EXPECT_EQ(Told(m.Min()), min.value);
    EXPECT_EQ(Told(m.Max()), max.value);
    const Ref<M> both = m.Minmax();
    EXPECT_EQ(ShapeOf(*both), Sized(1, 6));
    EXPECT_EQ(Values(*both), (std::vector<Complex>{min.value, max.value, min.row, max.row,
                                                   min.column, max.column}));
}

/// The elements of a MinDim, whichever class holds them.
std::vector<Complex> ValuesOf(const Variant& held)
{
    if (held.Is<Ref<clsComplexMatrix>>()) return Values(*held.As<Ref<clsComplexMatrix>>());
    if (held.Is<Ref<clsMatrixComplex>>()) return Values(*held.As<Ref<clsMatrixComplex>>());
    std::vector<Complex> values;
    for (const double x : Values(*held.As<Ref<clsMatrix>>()))
        values.emplace_back(x, 0.0);
    return values;
}

template <class M> void ExpectOrderOfLines(const M& m, int dimention)
{
    const Variant told(std::int32_t{dimention});
    const std::vector<Complex> min = ValuesOf(m.MinDim(told));
    const std::vector<Complex> max = ValuesOf(m.MaxDim(told));
    const std::vector<std::int32_t> min_at = Values(*m.MinIndex(told));
    const std::vector<std::int32_t> max_at = Values(*m.MaxIndex(told));
    const std::int32_t lines = dimention == 1 ? m.size2 : m.size1;
    ASSERT_EQ(min.size(), static_cast<std::size_t>(lines));
    for (std::int32_t line = 1; line <= lines; ++line) {
        const Ref<M> cut = dimention == 1 ? m.OutMatrix(1, line, m.size1, line)
                                          : m.OutMatrix(line, 1, line, m.size2);
        const Place least = PlainScan(*cut, true);
        const Place most = PlainScan(*cut, false);
        const auto k = static_cast<std::size_t>(line - 1);
        EXPECT_EQ(min[k], least.value);
        EXPECT_EQ(max[k], most.value);
        EXPECT_EQ(min_at[k], dimention == 1 ? least.row : least.column);
        EXPECT_EQ(max_at[k], dimention == 1 ? most.row : most.column);
    }
}

TEST(OrderComplex, AgreesWithThePlainScanInBothClasses)
{
    constexpr std::uint32_t kSeed = 4505;
    RandomMatrices random(kSeed);
    for (std::int32_t rows = 2; rows <= 6; ++rows)
        for (std::int32_t columns = 2; columns <= 6; ++columns) {
            SCOPED_TRACE("seed " + std::to_string(kSeed) + ", " + std::to_string(rows) + " by " +
                         std::to_string(columns));
            ExpectOrder(*random.Complexes(rows, columns));
            ExpectOrder(*random.Objects(rows, columns));
            ExpectOrder(*random.Complexes(1, columns));
            ExpectOrder(*random.Objects(rows, 1));
            for (const int dimention : {1, 2}) {
                ExpectOrderOfLines(*random.Complexes(rows, columns), dimention);
                ExpectOrderOfLines(*random.Objects(rows, columns), dimention);
            }
        }
}

TEST(OrderComplex, GivesARealMatrixWhereNoImaginaryPartIsLeft)
{
    const Ref<clsComplexMatrix> m = ComplexMatrix({{{1, 0}, {0, 9}}, {{0, 5}, {2, 0}}});
    const Variant min = m->MinDim(1.0);
    EXPECT_EQ(Values(*min.As<Ref<clsMatrix>>()), (std::vector<double>{1, 2}));
    EXPECT_EQ(ShapeOf(*min.As<Ref<clsMatrix>>()), Sized(1, 2));
    EXPECT_EQ(Values(*m->MaxDim(1.0).As<Ref<clsComplexMatrix>>()),
              (std::vector<Complex>{{0, 5}, {0, 9}}));
    const Ref<clsMatrixComplex> objects = ObjectMatrix({{{1, 0}, {0, 9}}, {{0, 5}, {2, 0}}});
    EXPECT_EQ(ShapeOf(*objects->MinDim(2.0).As<Ref<clsMatrix>>()), Sized(2, 1));
    EXPECT_EQ(Values(*objects->MaxDim(2.0).As<Ref<clsMatrixComplex>>()),
              (std::vector<Complex>{{0, 9}, {0, 5}}));
}

TEST(OrderComplex, ComparesPairByPairWithEveryKindOfOperand)
{
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{0, 2}, {3, 0}}});
    const std::vector<Complex> min = {{1, 0}, {3, 0}};
    const std::vector<Complex> max = {{0, 2}, {-4, 0}};
    const Ref<clsMatrix> r = RealMatrix({{1, -4}});
    const Ref<clsLong> l = LongMatrix({{1, -4}});
    const Ref<clsMatrixComplex> mc = ObjectMatrix({{1, -4}});
    EXPECT_EQ(Values(*c->MinCC(*ComplexMatrix({{1, -4}}))), min);
    EXPECT_EQ(Values(*c->MaxCC(*ComplexMatrix({{1, -4}}))), max);
    EXPECT_EQ(Values(*c->MinCD(*r)), min);
    EXPECT_EQ(Values(*c->MaxCD(*r)), max);
    EXPECT_EQ(Values(*c->MinCL(*l)), min);
    EXPECT_EQ(Values(*c->MaxCL(*l)), max);
    EXPECT_EQ(Values(*c->MinMatrixComplex(*mc)), min);
    EXPECT_EQ(Values(*c->MaxMatrixComplex(*mc)), max);
    EXPECT_EQ(Values(*c->MinNum(-2.5)), (std::vector<Complex>{{0, 2}, {-2.5, 0}}));
    EXPECT_EQ(Values(*c->MaxNum(-2.5)), (std::vector<Complex>{{-2.5, 0}, {3, 0}}));
    EXPECT_EQ(Values(*c->MinComplex(*Scalar(0, -2))), (std::vector<Complex>{{0, -2}, {0, -2}}));
    EXPECT_EQ(Values(*c->MaxComplex(*Scalar(0, -2))), (std::vector<Complex>{{0, 2}, {3, 0}}));
    EXPECT_EQ(ShapeOf(*c->MinCD(*r)), Sized(1, 2));
}

TEST(OrderComplex, OfElementObjectsGivesElementObjectsOfItsOwn)
{
    const Ref<clsMatrixComplex> m = ObjectMatrix({{{0, 2}, {3, 0}}});
    const std::vector<Complex> min = {{1, 0}, {3, 0}};
    const std::vector<Complex> max = {{0, 2}, {-4, 0}};
    const Ref<clsMatrixComplex> a = ObjectMatrix({{1, -4}});
    EXPECT_EQ(Values(*m->MinMCMC(*a)), min);
    EXPECT_EQ(Values(*m->MaxMCMC(*a)), max);
    EXPECT_EQ(Values(*m->MinMCD(*RealMatrix({{1, -4}}))), min);
    EXPECT_EQ(Values(*m->MaxMCD(*RealMatrix({{1, -4}}))), max);
    EXPECT_EQ(Values(*m->MinMCL(*LongMatrix({{1, -4}}))), min);
    EXPECT_EQ(Values(*m->MaxMCL(*LongMatrix({{1, -4}}))), max);
    EXPECT_EQ(Values(*m->MinNum(-2.5)), (std::vector<Complex>{{0, 2}, {-2.5, 0}}));
    EXPECT_EQ(Values(*m->MaxNum(-2.5)), (std::vector<Complex>{{-2.5, 0}, {3, 0}}));
    EXPECT_EQ(Values(*m->MinComplex(*Scalar(0, -2))), (std::vector<Complex>{{0, -2}, {0, -2}}));
    EXPECT_EQ(Values(*m->MaxComplex(*Scalar(0, -2))), (std::vector<Complex>{{0, 2}, {3, 0}}));
    m->MaxMCMC(*a)->Real(1, 1)->Real = 9;
    m->MinMCMC(*a)->Real(1, 1)->Real = 9;
    m->Max()->Real = 9;
    EXPECT_EQ(Values(*m), (std::vector<Complex>{{0, 2}, {3, 0}}));
    EXPECT_EQ(Values(*a), (std::vector<Complex>{1, -4}));
}

TEST(OrderComplex, OfOtherSizesShowsOneMessageAndIsEmpty)
{
    const Ref<clsComplexMatrix> c = ComplexMatrix({{1, 2}, {3, 4}});
    const Ref<clsMatrixComplex> mc = ObjectMatrix({{1, 2}, {3, 4}});
    const Ref<clsMatrix> r = RealMatrix({{1}});
    const Ref<clsLong> l = LongMatrix({{1, 2}});
    const Ref<clsComplexMatrix> other = ComplexMatrix({{1}, {2}});
    const Ref<clsMatrixComplex> other_objects = ObjectMatrix({{1, 2, 3}});
    MessageRecorder recorder;
    EXPECT_FALSE(c->MinCC(*other));
    EXPECT_FALSE(c->MaxCC(*other));
    EXPECT_FALSE(c->MinCD(*r));
    EXPECT_FALSE(c->MaxCD(*r));
    EXPECT_FALSE(c->MinCL(*l));
    EXPECT_FALSE(c->MaxCL(*l));
    EXPECT_FALSE(c->MinMatrixComplex(*other_objects));
    EXPECT_FALSE(c->MaxMatrixComplex(*other_objects));
    EXPECT_FALSE(mc->MinMCMC(*other_objects));
    EXPECT_FALSE(mc->MaxMCMC(*other_objects));
    EXPECT_FALSE(mc->MinMCD(*r));
    EXPECT_FALSE(mc->MaxMCD(*r));
    EXPECT_FALSE(mc->MinMCL(*l));
    EXPECT_FALSE(mc->MaxMCL(*l));
    EXPECT_EQ(recorder.Take(), Shown(14, Plain("Matrix dimensions must agree.")));
}

TEST(OrderComplex, NeverAsksTheAngleUnderAPositiveTolerance)
{
    const Ref<clsComplexMatrix> m = ComplexMatrix({{-2, 2}});
    EXPECT_EQ(Told(m->Min()), Complex(2, 0));
    EXPECT_EQ(Told(m->Min(1e-9)), Complex(-2, 0));
    EXPECT_EQ(Values(*m->MinIndex(Variant(), 1e-9)), std::vector<std::int32_t>{1});
    EXPECT_EQ(Values(*m->MinNum(2.0, 1e-9)), (std::vector<Complex>{-2, 2}));
    EXPECT_EQ(Values(*m->MinNum(2.0)), (std::vector<Complex>{2, 2}));
}

TEST(OrderComplex, LetsTheAngleDecideWithinTheBandOfANegativeTolerance)
{
    // Squared magnitudes 4 and 4.41 lie within a band of 0.5; the angles are pi and 0.
    const Ref<clsMatrixComplex> m = ObjectMatrix({{-2, 2.1}});
    EXPECT_EQ(Told(m->Min()), Complex(-2, 0));
    EXPECT_EQ(Told(m->Min(-0.5)), Complex(2.1, 0));
    EXPECT_EQ(Told(m->Max(-0.5)), Complex(-2, 0));
}

TEST(OrderComplex, StopsAtWhatCannotBeCompared)
{
    clsMatrixComplex missing;
    missing.Initial_matrix(1, 2);
    EXPECT_EQ(Raised([&] { missing.Min(); }), 91);
    EXPECT_EQ(Raised([&] { missing.All(); }), 91);
    EXPECT_EQ(Raised([&] { ObjectMatrix({{1, 2}})->MinMCMC(missing); }), 91);
    EXPECT_EQ(Raised([] { ComplexMatrix({{{1e200, 0}, {1, 0}}})->Max(); }), 6);
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Told(ComplexMatrix({{{1, 0}, {infinite, 0}}})->Max()).real(), infinite);
}

} // namespace
} // namespace lumora
