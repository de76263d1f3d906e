#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "numeric/order/PairScan.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumora {
namespace {

using namespace test;

TEST(Max, OfEqualElementsIsFirstFoundAtTheFirst)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 3, 3}});
    EXPECT_EQ(m->Max(), 3);
    EXPECT_EQ(Values(*m->MaxIndex()), std::vector<std::int32_t>{2});
    EXPECT_EQ(ShapeOf(*m->MaxIndex()), Sized(1, 1));
}

TEST(MinDim, ByColumnIsARowAndByRowAColumn)
{
    const Ref<clsMatrix> m = RealMatrix({{4, 2, 9}, {1, 8, 3}});
    EXPECT_EQ(ShapeOf(*m->MinDim(1.0)), Sized(1, 3));
    EXPECT_EQ(Values(*m->MinDim(1.0)), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(Values(*m->MaxDim(1.0)), (std::vector<double>{4, 8, 9}));
    EXPECT_EQ(Values(*m->MinIndex(1.0)), (std::vector<std::int32_t>{2, 1, 2}));
    EXPECT_EQ(ShapeOf(*m->MinDim(2.0)), Sized(2, 1));
    EXPECT_EQ(Values(*m->MinDim(2.0)), (std::vector<double>{2, 1}));
    EXPECT_EQ(Values(*m->MaxDim(2.0)), (std::vector<double>{9, 8}));
    EXPECT_EQ(Values(*m->MaxIndex(2.0)), (std::vector<std::int32_t>{3, 2}));
}

TEST(MinDim, GoesAlongARowByDefaultAndDownColumnsOtherwise)
{
    EXPECT_EQ(Values(*RealMatrix({{3, 1, 2}})->MinDim()), std::vector<double>{1});
    EXPECT_EQ(Values(*RealMatrix({{3}, {1}, {2}})->MinDim()), std::vector<double>{1});
    EXPECT_EQ(Values(*RealMatrix({{3, 1}, {2, 5}})->MinDim()), (std::vector<double>{2, 1}));
    EXPECT_EQ(Values(*LongMatrix({{3, 1, 2}})->MaxIndex()), std::vector<std::int32_t>{1});
}

TEST(MinDim, AcrossAVectorIsTheVector)
{
    EXPECT_EQ(Values(*RealMatrix({{3, 1, 2}})->MinDim(1.0)), (std::vector<double>{3, 1, 2}));
    EXPECT_EQ(ShapeOf(*RealMatrix({{3, 1, 2}})->MinDim(1.0)), Sized(1, 3));
    EXPECT_EQ(Values(*RealMatrix({{3}, {1}})->MaxDim(2.0)), (std::vector<double>{3, 1}));
    EXPECT_EQ(ShapeOf(*RealMatrix({{3}, {1}})->MaxDim(2.0)), Sized(2, 1));
}

TEST(MinDim, RoundsItsDimentionAndKnowsNoOther)
{
    const Ref<clsMatrix> m = RealMatrix({{3, 1}, {2, 5}});
    EXPECT_EQ(Values(*m->MinDim(1.5)), Values(*m->MinDim(2.0)));
    EXPECT_EQ(Values(*m->MinDim("1")), Values(*m->MinDim(1.0)));
    const MessageRecorder silent;
    EXPECT_FALSE(m->MinDim(0.0));
    EXPECT_FALSE(m->MaxDim(3.0));
    EXPECT_FALSE(m->MinIndex(-1.0));
    EXPECT_FALSE(LongMatrix({{1}})->MaxIndex(3.0));
    EXPECT_TRUE(ComplexMatrix({{1}})->MinDim(3.0).IsEmpty());
    EXPECT_FALSE(TextMatrix({{"a"}})->MaxDim(0.0));
    EXPECT_FALSE(m->All(3.0));
    EXPECT_TRUE(silent.shown.empty());
    EXPECT_EQ(Raised([&] { m->MinDim("first"); }), 13);
}

/// The scan of which Min and Minmax tell: element by element, rows outer and columns inner.
struct Scan {
    double value;
    std::int32_t row = 1;
    std::int32_t column = 1;
};
template <class M> Scan PlainScan(const M& m, double sign)
{
    Scan scan{static_cast<double>(m.Real(1, 1))};
    for (std::int32_t i = 1; i <= m.size1; ++i)
        for (std::int32_t j = 1; j <= m.size2; ++j)
            if (sign * m.Real(i, j) < sign * scan.value)
                scan = {static_cast<double>(m.Real(i, j)), i, j};
    return scan;
}

template <class M> void ExpectOrder(const M& m)
{
    const Scan min = PlainScan(m, 1.0);
    const Scan max = PlainScan(m, -1.0);
    EXPECT_EQ(m.Min(), min.value);
    EXPECT_EQ(m.Max(), max.value);
    const Ref<clsMatrix> both = m.Minmax();
    EXPECT_EQ(ShapeOf(*both), Sized(1, 6));
    EXPECT_EQ(Values(*both),
              (std::vector<double>{min.value, max.value, 1.0 * min.row, 1.0 * max.row,
                                   1.0 * min.column, 1.0 * max.column}));
}

/// Each extreme is one of its line, none of the line goes beyond it, and none before it equals it.
template <class M> void ExpectOrderOfLines(const M& m, int dimention)
{
    const bool columns = dimention == 1;
    const auto min = m.MinDim(std::int32_t{dimention});
    const auto max = m.MaxDim(std::int32_t{dimention});
    const Ref<clsLong> min_at = m.MinIndex(std::int32_t{dimention});
    const Ref<clsLong> max_at = m.MaxIndex(std::int32_t{dimention});
    const Shape shape = columns ? Sized(1, m.size2) : Sized(m.size1, 1);
    EXPECT_EQ(ShapeOf(*min), shape);
    EXPECT_EQ(ShapeOf(*min_at), shape);
    const auto along = [columns](const auto& line, std::int32_t k) {
        return columns ? line.Real(1, k) : line.Real(k, 1);
    };
    for (std::int32_t line = 1; line <= (columns ? m.size2 : m.size1); ++line)
        for (std::int32_t k = 1; k <= (columns ? m.size1 : m.size2); ++k) {
            const auto x = columns ? m.Real(k, line) : m.Real(line, k);
            EXPECT_LE(along(*min, line), x);
            EXPECT_GE(along(*max, line), x);
            EXPECT_EQ(k == along(*min_at, line),
                      x == along(*min, line) && k <= along(*min_at, line));
            EXPECT_EQ(k == along(*max_at, line),
                      x == along(*max, line) && k <= along(*max_at, line));
        }
}

TEST(Order, AgreesWithThePlainScan)
{
    constexpr std::uint32_t kSeed = 4501;
    RandomMatrices random(kSeed);
    for (std::int32_t rows = 1; rows <= 7; ++rows)
        for (std::int32_t columns = 1; columns <= 7; ++columns)
            for (int round = 0; round < 3; ++round) {
                SCOPED_TRACE("seed " + std::to_string(kSeed) + ", " + std::to_string(rows) +
                             " by " + std::to_string(columns));
                ExpectOrder(*random.Real(rows, columns));
                ExpectOrder(*random.Long(rows, columns));
                for (const int dimention : {1, 2}) {
                    ExpectOrderOfLines(*random.Real(rows, columns), dimention);
                    ExpectOrderOfLines(*random.Long(rows, columns), dimention);
                }
            }
}

TEST(Order, OfNegatedElementsIsTheOppositeOne)
{
    RandomMatrices random(4502);
    for (int round = 0; round < 20; ++round) {
        const Ref<clsMatrix> m = random.Real(random.Whole(1, 6), random.Whole(1, 6));
        const Ref<clsMatrix> negated = m->CopyObject();
        for (std::int32_t i = 1; i <= m->size1; ++i)
            for (std::int32_t j = 1; j <= m->size2; ++j)
                negated->Real(i, j, -m->Real(i, j));
        EXPECT_EQ(-negated->Max(), m->Min());
        EXPECT_EQ(Values(*negated->MaxIndex(2.0)), Values(*m->MinIndex(2.0)));
    }
}

TEST(Order, LetsANaNStandOnlyWhereItComesFirst)
{
    const Ref<clsMatrix> m = RealMatrix({{5, 7}, {kNan, 1}});
    EXPECT_EQ(m->Min(), 1);
    EXPECT_EQ(m->Max(), 7);
    EXPECT_EQ(Values(*m->MinDim(1.0)), (std::vector<double>{5, 1}));
    EXPECT_TRUE(std::isnan(m->MinDim(2.0)->Real(2, 1)));
    EXPECT_TRUE(std::isnan(RealMatrix({{kNan, 1}, {2, 3}})->Max()));
}

TEST(Order, KeepsTheFirstOfTwoZeros)
{
    EXPECT_TRUE(std::signbit(RealMatrix({{1, -0.0}, {0.0, 2}})->Min()));
    EXPECT_FALSE(std::signbit(RealMatrix({{0.0, -0.0}})->Max()));
}

TEST(Minmax, OfAVectorComparesThreeTimesForTwoElements)
{
    constexpr std::uint32_t kSeed = 4503;
    RandomMatrices random(kSeed);
    for (std::size_t n = 1; n <= 60; ++n) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", length " + std::to_string(n));
        std::vector<double> x(n);
        for (double& value : x)
            value = random.Number();
        std::size_t comparisons = 0;
        std::size_t wins = 0;
        const PairScan found = ScanInPairs(x, [&](double a, double b) {
            ++comparisons;
            return a < b;
        });
        EXPECT_EQ(found.smallest,
                  static_cast<std::size_t>(std::min_element(x.begin(), x.end()) - x.begin()));
        EXPECT_EQ(found.largest,
                  static_cast<std::size_t>(std::max_element(x.begin(), x.end()) - x.begin()));
        // A new largest asks once more whether its pair is equal.
        for (std::size_t k = 1; k < n; ++k)
            if (x[k] > *std::max_element(x.begin(), x.begin() + static_cast<std::ptrdiff_t>(k)))
                ++wins;
        EXPECT_LE(comparisons, 3 * (n / 2) + wins);
        EXPECT_GE(comparisons, 3 * (n / 2));
    }
}

TEST(Minmax, TakesTheFirstOfEqualElementsRowByRow)
{
    EXPECT_EQ(Values(*RealMatrix({{2, 1}, {1, 2}})->Minmax()),
              (std::vector<double>{1, 2, 1, 1, 2, 1}));
    EXPECT_EQ(Values(*RealMatrix({{4, 4, 4, 4}})->Minmax()),
              (std::vector<double>{4, 4, 1, 1, 1, 1}));
    EXPECT_EQ(Values(*RealMatrix({{4}, {9}, {9}})->Minmax()),
              (std::vector<double>{4, 9, 1, 2, 1, 1}));
    EXPECT_EQ(Values(*RealMatrix({{7}})->Minmax()), (std::vector<double>{7, 7, 1, 1, 1, 1}));
}

TEST(Minmax, OfWholeNumbersIsAMatrixOfFloats)
{
    EXPECT_EQ(Values(*LongMatrix({{2, 1}, {1, 2}})->Minmax()),
              (std::vector<double>{1, 2, 1, 1, 2, 1}));
}

TEST(Pairwise, TakesTheSmallerOrLargerOfEachPair)
{
    const Ref<clsMatrix> a = RealMatrix({{1, 5}, {-3, 2.5}});
    EXPECT_EQ(Values(*a->MinRR(*RealMatrix({{2, 4}, {-3, 0}}))),
              Values(*RealMatrix({{1, 4}, {-3, 0}})));
    EXPECT_EQ(Values(*a->MaxRR(*RealMatrix({{2, 4}, {-3, 0}}))),
              Values(*RealMatrix({{2, 5}, {-3, 2.5}})));
    EXPECT_EQ(Values(*a->MinRL(*LongMatrix({{2, 4}, {-4, 3}}))),
              Values(*RealMatrix({{1, 4}, {-4, 2.5}})));
    EXPECT_EQ(Values(*a->MaxRL(*LongMatrix({{2, 4}, {-4, 3}}))),
              Values(*RealMatrix({{2, 5}, {-3, 3}})));
    EXPECT_EQ(Values(*LongMatrix({{1, 5}})->MinLL(*LongMatrix({{3, 2}}))),
              (std::vector<std::int32_t>{1, 2}));
    EXPECT_EQ(Values(*LongMatrix({{1, 5}})->MaxLL(*LongMatrix({{3, 2}}))),
              (std::vector<std::int32_t>{3, 5}));
}

TEST(Pairwise, ComparesEachElementWithANumber)
{
    EXPECT_EQ(Values(*RealMatrix({{1}, {5}})->MinNum(2.5)), (std::vector<double>{1, 2.5}));
    EXPECT_EQ(Values(*RealMatrix({{1}, {5}})->MaxRNum(2.5)), (std::vector<double>{2.5, 5}));
    EXPECT_EQ(ShapeOf(*RealMatrix({{1}, {5}})->MaxRNum(2.5)), Sized(2, 1));
    EXPECT_EQ(Values(*RealMatrix({{kNan, 1}})->MinNum(kNan))[1], 1);
}

TEST(Pairwise, RoundsANumberThatWinsAmongWholeNumbers)
{
    const Ref<clsLong> m = LongMatrix({{1, 3, 4}});
    EXPECT_EQ(Values(*m->MinNum(2.5)), (std::vector<std::int32_t>{1, 2, 2}));
    EXPECT_EQ(Values(*m->MinNum(3.6)), (std::vector<std::int32_t>{1, 3, 4}));
    EXPECT_EQ(Values(*m->MaxRNum(3.5)), (std::vector<std::int32_t>{4, 4, 4}));
    EXPECT_EQ(Values(*m->MinNum(1e10)), Values(*m));
    EXPECT_EQ(Raised([&] { m->MaxRNum(1e10); }), 6);
}

TEST(Pairwise, KeepsTheReceiversElementOfEqualOnes)
{
    const Ref<clsMatrix> plus = RealMatrix({{0.0}});
    const Ref<clsMatrix> minus = RealMatrix({{-0.0}});
    EXPECT_TRUE(std::signbit(minus->MinRR(*plus)->Real(1, 1)));
    EXPECT_TRUE(std::signbit(minus->MaxRR(*plus)->Real(1, 1)));
    EXPECT_FALSE(std::signbit(plus->MinNum(-0.0)->Real(1, 1)));
}

TEST(Pairwise, IsBelowBothAndOneOfThem)
{
    RandomMatrices random(4504);
    for (int round = 0; round < 20; ++round) {
        const std::int32_t rows = random.Whole(1, 5);
        const std::int32_t columns = random.Whole(1, 5);
        const Ref<clsMatrix> a = random.Real(rows, columns);
        const Ref<clsMatrix> b = random.Real(rows, columns);
        const Ref<clsMatrix> min = a->MinRR(*b);
        const Ref<clsMatrix> max = a->MaxRR(*b);
        EXPECT_EQ(ShapeOf(*min), ShapeOf(*a));
        EXPECT_EQ(Values(*b->MinRR(*a)), Values(*min));
        for (std::int32_t i = 1; i <= rows; ++i)
            for (std::int32_t j = 1; j <= columns; ++j) {
                EXPECT_LE(min->Real(i, j), max->Real(i, j));
                EXPECT_EQ(min->Real(i, j) + max->Real(i, j), a->Real(i, j) + b->Real(i, j));
            }
    }
}

TEST(Pairwise, OfOtherSizesShowsOneMessageAndIsEmpty)
{
    const Ref<clsMatrix> r = RealMatrix({{1, 2}, {3, 4}});
    const Ref<clsLong> l = LongMatrix({{1, 2}, {3, 4}});
    const Ref<clsMatrix> one = RealMatrix({{1}});
    const Ref<clsLong> long_row = LongMatrix({{1, 2}});
    MessageRecorder recorder;
    EXPECT_FALSE(r->MinRR(*one));
    EXPECT_FALSE(one->MaxRR(*r));
    EXPECT_FALSE(r->MinRL(*long_row));
    EXPECT_FALSE(r->MaxRL(*long_row));
    EXPECT_FALSE(l->MinLL(*long_row));
    EXPECT_FALSE(l->MaxLL(*long_row));
    EXPECT_EQ(recorder.Take(), Shown(6, Plain("Matrix dimensions must agree.")));
}

TEST(Pairwise, WithAComplexNumberIsComplex)
{
    // |3|^2 = 9, |-3|^2 = 9, |1 + 2i|^2 = 5; of 3 and -3 the angle decides: 0 is below pi.
    const Ref<clsMatrix> r = RealMatrix({{1, 3}, {-3, 0}});
    const Ref<clsComplexMatrix> min = r->MinComplexNum(*Scalar(1, 2));
    EXPECT_EQ(Values(*min), (std::vector<Complex>{{1, 0}, {1, 2}, {1, 2}, {0, 0}}));
    EXPECT_EQ(Values(*r->MaxComplexNum(*Scalar(1, 2))),
              (std::vector<Complex>{{1, 2}, {-3, 0}, {3, 0}, {1, 2}}));
    EXPECT_EQ(Values(*r->MinComplexNum(*Scalar(0, 3))),
              (std::vector<Complex>{{1, 0}, {0, 3}, {3, 0}, {0, 0}}));
    EXPECT_EQ(Values(*LongMatrix({{1, 3}})->MinComplexNum(*Scalar(1, 2))),
              (std::vector<Complex>{{1, 0}, {1, 2}}));
    EXPECT_EQ(Values(*LongMatrix({{1, 3}})->MaxComplexNum(*Scalar(1, 2))),
              (std::vector<Complex>{{1, 2}, {3, 0}}));
}

TEST(Order, WithoutElementsRaisesError9)
{
    const clsMatrix r;
    const clsLong l;
    EXPECT_EQ(Raised([&] { r.Min(); }), 9);
    EXPECT_EQ(Raised([&] { l.Max(); }), 9);
    EXPECT_EQ(Raised([&] { r.Minmax(); }), 9);
    EXPECT_EQ(Raised([&] { r.MinDim(); }), 9);
    EXPECT_EQ(Raised([&] { r.MaxDim(2.0); }), 9);
    EXPECT_EQ(Raised([&] { l.MinIndex(1.0); }), 9);
    EXPECT_EQ(Raised([&] { r.MinRR(r); }), 9);
    EXPECT_EQ(Raised([&] { r.MinNum(1.0); }), 9);
    EXPECT_EQ(Raised([&] { clsString().Min(); }), 9);
    EXPECT_EQ(Raised([&] { clsComplexMatrix().Max(); }), 9);
    EXPECT_EQ(Raised([&] { clsMatrixComplex().MinDim(); }), 9);
}

TEST(Order, RaisesError9WhereTheStoreDisagreesWithTheSizes)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2, 3}});
    m->size2 = 2;
    EXPECT_EQ(Raised([&] { m->Min(); }), 9);
    EXPECT_EQ(Raised([&] { m->MinDim(); }), 9);
    EXPECT_EQ(Raised([&] { RealMatrix({{1, 2}})->MinRR(*m); }), 9);
}

} // namespace
} // namespace lumora
