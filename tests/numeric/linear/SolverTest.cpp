#include "numeric/Matrices.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace lumora {
namespace {

using namespace test;

const ShownMessage kSingularShown = Plain("Matrix is singular to working precision.");

class RandomSystems {
public:
    explicit RandomSystems(std::uint32_t seed) : generator_(seed) {}

    Ref<clsMatrix> Matrix(std::int32_t rows, std::int32_t columns)
    {
        const Ref<clsMatrix> m = MakeRef<clsMatrix>();
        m->Initial_matrix(rows, columns);
        for (std::int32_t i = 1; i <= rows; ++i)
            for (std::int32_t j = 1; j <= columns; ++j)
                m->Real(i, j, value_(generator_));
        return m;
    }

private:
    std::mt19937 generator_;
    std::uniform_real_distribution<double> value_{-1.0, 1.0};
};

Ref<clsMatrix> Hilbert(std::int32_t n)
{
    const Ref<clsMatrix> m = MakeRef<clsMatrix>();
    m->Initial_matrix(n, n);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j)
            m->Real(i, j, 1.0 / (i + j - 1));
    return m;
}

/// The largest sum of the magnitudes of a row.
double Norm(const clsMatrix& m)
{
    double norm = 0.0;
    for (std::int32_t i = 1; i <= m.size1; ++i) {
        double sum = 0.0;
        for (std::int32_t j = 1; j <= m.size2; ++j)
            sum += std::abs(m.Real(i, j));
        norm = std::max(norm, sum);
    }
    return norm;
}

/// How far a*x is off b, beside the rounding of its own terms.
double Residual(const clsMatrix& a, const clsMatrix& x, const clsMatrix& b)
{
    return Norm(*a.MtimesR(x)->MinusR(b)) / (Norm(a) * Norm(x) * kEpsilon);
}

TEST(SolutionOfSistem, OfAnIdentityIsTheRightSide)
{
    const Ref<clsMatrix> a = RealMatrix({{3}, {-4}});
    const Ref<clsMatrix> x = RealMatrix({{1, 0}, {0, 1}})->SolutionOfSistem(*a);
    EXPECT_EQ(ShapeOf(*x), Sized(2, 1));
    EXPECT_EQ(Values(*x), Values(*a));
}

TEST(SolutionOfSistem, OfOneEquationIsAQuotient)
{
    const Ref<clsMatrix> x = RealMatrix({{4}})->SolutionOfSistem(*RealMatrix({{10}}));
    EXPECT_EQ(ShapeOf(*x), Sized(1, 1));
    EXPECT_EQ(x->Real(1, 1), 2.5);
}

TEST(SolutionOfSistem, SolvesAWorkedExample)
{
    // 2x + y - z = 8, -3x - y + 2z = -11, -2x + y + 2z = -3 has the solution 2, 3, -1.
    const Ref<clsMatrix> m = RealMatrix({{2, 1, -1}, {-3, -1, 2}, {-2, 1, 2}});
    const Ref<clsMatrix> x = m->SolutionOfSistem(*RealMatrix({{8}, {-11}, {-3}}));
    EXPECT_NEAR(x->Real(1, 1), 2.0, 1e-14);
    EXPECT_NEAR(x->Real(2, 1), 3.0, 1e-14);
    EXPECT_NEAR(x->Real(3, 1), -1.0, 1e-14);
    EXPECT_EQ(Values(*m), Values(*RealMatrix({{2, 1, -1}, {-3, -1, 2}, {-2, 1, 2}})));
}

TEST(SolutionOfSistem, TakesTheLargestPivot)
{
    const Ref<clsMatrix> swapped = RealMatrix({{0, 1}, {2, 0}});
    EXPECT_EQ(Values(*swapped->SolutionOfSistem(*RealMatrix({{3}, {8}}))),
              (std::vector<double>{4, 3}));
    // With the tiny pivot first, x would come out as 0.
    const Ref<clsMatrix> tiny = RealMatrix({{1e-20, 1}, {1, 1}});
    EXPECT_EQ(Values(*tiny->SolutionOfSistem(*RealMatrix({{1}, {2}}))),
              (std::vector<double>{1, 1}));
}

TEST(SolutionOfSistem, HasASmallResidualOnRandomSystems)
{
    RandomSystems random(41);
    for (std::int32_t n = 1; n <= 60; ++n) {
        const Ref<clsMatrix> m = random.Matrix(n, n);
        const Ref<clsMatrix> a = random.Matrix(n, 1);
        EXPECT_LE(Residual(*m, *m->SolutionOfSistem(*a), *a), 4.0 * n) << n;
    }
}

TEST(SolutionOfSistem, HasASmallResidualOnHilbertSystems)
{
    for (std::int32_t n = 1; n <= 12; ++n) {
        const Ref<clsMatrix> m = Hilbert(n);
        const Ref<clsMatrix> ones = MakeRef<clsMatrix>();
        ones->Initial_matrix(n, 1);
        for (std::int32_t i = 1; i <= n; ++i)
            ones->Real(i, 1, 1.0);
        EXPECT_LE(Residual(*m, *m->SolutionOfSistem(*ones), *ones), 2.0 * n) << n;
    }
}

TEST(SolutionOfSistem, KnowsNoUnits)
{
    // Rows and columns of very different size make no matrix singular.
    MessageRecorder recorder;
    EXPECT_EQ(
        Values(*RealMatrix({{1, 0}, {0, 1e-200}})->SolutionOfSistem(*RealMatrix({{1}, {3e-200}}))),
        (std::vector<double>{1, 3}));
    EXPECT_EQ(Values(*RealMatrix({{1, 1}, {0x1p-70, -0x1p-70}})
                          ->SolutionOfSistem(*RealMatrix({{3}, {0x1p-70}}))),
              (std::vector<double>{2, 1}));
    EXPECT_EQ(
        Values(
            *RealMatrix({{1, 0x1p-70}, {1, -0x1p-70}})->SolutionOfSistem(*RealMatrix({{3}, {1}}))),
        (std::vector<double>{2, 0x1p70}));
    EXPECT_TRUE(recorder.shown.empty());
}

TEST(SolutionOfSistem, OfASingularMatrixShowsItAndIsEmpty)
{
    for (const Ref<clsMatrix>& m : {RealMatrix({{1, 0, 2}, {3, 0, 4}, {5, 0, 7}}),
                                    RealMatrix({{1, 2, 0}, {3, 4, 0}, {5, 7, 0}}),
                                    RealMatrix({{1, 2, 3}, {0, 0, 0}, {4, 5, 7}}),
                                    RealMatrix({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}),
                                    RealMatrix({{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}),
                                    RealMatrix({{0.1, 0.2, 0.3}, {0.7, 1.4, 2.1}, {1, 5, 9}})}) {
        MessageRecorder recorder;
        EXPECT_FALSE(m->SolutionOfSistem(*RealMatrix({{1}, {2}, {3}})));
        EXPECT_FALSE(m->Inv());
        EXPECT_EQ(recorder.Take(), (Shown{kSingularShown, kSingularShown}));
    }
    MessageRecorder recorder;
    EXPECT_FALSE(RealMatrix({{0}})->SolutionOfSistem(*RealMatrix({{0}})));
    EXPECT_EQ(recorder.Take(), Shown{kSingularShown});
}

TEST(SolutionOfSistem, SeesAColumnThatIsTheSumOfTheOthers)
{
    // Whole numbers, so that the sum is exact; the others are far from depending on each other.
    std::mt19937 generator(42);
    std::uniform_int_distribution<std::int32_t> digit(-9, 9);
    for (std::int32_t n = 2; n <= 40; ++n)
        for (const std::int32_t sum : {1, n / 2 + 1, n}) {
            const Ref<clsMatrix> m = MakeRef<clsMatrix>();
            m->Initial_matrix(n, n);
            for (std::int32_t j = 1; j <= n; ++j)
                for (std::int32_t i = 1; i <= n && j != sum; ++i) {
                    m->Real(i, j, digit(generator) + (i == j ? 10 * n : 0));
                    m->Real(i, sum, m->Real(i, sum) + m->Real(i, j));
                }
            MessageRecorder recorder;
            EXPECT_FALSE(m->SolutionOfSistem(*RandomSystems(1).Matrix(n, 1))) << n << ", " << sum;
            EXPECT_FALSE(m->Inv()) << n << ", " << sum;
            EXPECT_EQ(recorder.Take(), (Shown{kSingularShown, kSingularShown}));
        }
}

TEST(SolutionOfSistem, NeedsASquareMatrix)
{
    const ShownMessage not_square =
        Plain("Error using ==> SolutionOfSistem Matrix must be square.");
    MessageRecorder recorder;
    EXPECT_FALSE(RealMatrix({{1, 2}, {3, 4}, {5, 6}})->SolutionOfSistem(*RealMatrix({{1}})));
    EXPECT_FALSE(RealMatrix({{1, 2}})->SolutionOfSistem(*RealMatrix({{1}})));
    EXPECT_EQ(recorder.Take(), (Shown{not_square, not_square}));
}

TEST(SolutionOfSistem, NeedsAColumnOfAsManyRows)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}, {3, 4}});
    MessageRecorder recorder;
    for (const Ref<clsMatrix>& a :
         {RealMatrix({{1, 2}}), RealMatrix({{1}}), RealMatrix({{1}, {2}, {3}}),
          RealMatrix({{1, 2}, {3, 4}}), MakeRef<clsMatrix>()})
        EXPECT_EQ(Raised([&] { m->SolutionOfSistem(*a); }), 9);
    EXPECT_EQ(Raised([] { clsMatrix().SolutionOfSistem(clsMatrix()); }), 9);
    EXPECT_EQ(Raised([] { clsMatrix().Inv(); }), 9);
    EXPECT_TRUE(recorder.shown.empty());
}

TEST(SolutionOfSistem, RaisesError6WhereFiniteElementsOverflow)
{
    EXPECT_EQ(Raised([] { RealMatrix({{1e-200}})->SolutionOfSistem(*RealMatrix({{1e200}})); }), 6);
    EXPECT_EQ(Raised([] { RealMatrix({{1e-310}})->Inv(); }), 6);
    EXPECT_EQ(RealMatrix({{kInfinity}})->SolutionOfSistem(*RealMatrix({{1}}))->Real(1, 1), 0.0);
    EXPECT_EQ(RealMatrix({{2}})->SolutionOfSistem(*RealMatrix({{kInfinity}}))->Real(1, 1),
              kInfinity);
    EXPECT_TRUE(std::isnan(RealMatrix({{NAN}})->Inv()->Real(1, 1)));
}

TEST(Inv, OfAWholeMatrixOfDeterminantOneIsWhole)
{
    EXPECT_EQ(Values(*RealMatrix({{2, 1}, {1, 1}})->Inv()),
              Values(*RealMatrix({{1, -1}, {-1, 2}})));
    EXPECT_EQ(Values(*RealMatrix({{0, 0, 1}, {1, 0, 0}, {0, 1, 0}})->Inv()),
              Values(*RealMatrix({{0, 1, 0}, {0, 0, 1}, {1, 0, 0}})));
    EXPECT_EQ(ShapeOf(*RealMatrix({{4}})->Inv()), Sized(1, 1));
    EXPECT_EQ(RealMatrix({{4}})->Inv()->Real(1, 1), 0.25);
}

TEST(Inv, TimesTheMatrixIsTheIdentity)
{
    RandomSystems random(43);
    for (std::int32_t n = 1; n <= 40; ++n) {
        const Ref<clsMatrix> m = random.Matrix(n, n);
        const Ref<clsMatrix> inverse = m->Inv();
        const Ref<clsMatrix> identity = m->clsEye(n);
        const double bound = 4.0 * n * kEpsilon * Norm(*m) * Norm(*inverse);
        EXPECT_EQ(ShapeOf(*inverse), Sized(n, n));
        EXPECT_LE(Norm(*m->MtimesR(*inverse)->MinusR(*identity)), bound) << n;
        EXPECT_LE(Norm(*inverse->MtimesR(*m)->MinusR(*identity)), bound) << n;
    }
}

TEST(Inv, OfAHilbertMatrixIsAsCloseAsItsConditionAllows)
{
    // The inverse has whole elements; that of order 4 is well known.
    const Ref<clsMatrix> expected = RealMatrix({{16, -120, 240, -140},
                                                {-120, 1200, -2700, 1680},
                                                {240, -2700, 6480, -4200},
                                                {-140, 1680, -4200, 2800}});
    const Ref<clsMatrix> inverse = Hilbert(4)->Inv();
    const double condition = Norm(*Hilbert(4)) * Norm(*expected);
    EXPECT_LE(Norm(*inverse->MinusR(*expected)), condition * kEpsilon * Norm(*expected));
}

TEST(Inv, NeedsASquareMatrix)
{
    MessageRecorder recorder;
    EXPECT_FALSE(RealMatrix({{1, 2}, {3, 4}, {5, 6}})->Inv());
    EXPECT_FALSE(RealMatrix({{1, 2, 3}})->Inv());
    const ShownMessage not_square = Plain("Error using ==> inv Matrix must be square.");
    EXPECT_EQ(recorder.Take(), (Shown{not_square, not_square}));
}

TEST(LeastSqures, FitsALine)
{
    // The line 1 + 2t through (0, 1), (1, 3), (2, 5), (3, 7).
    const Ref<clsMatrix> m = RealMatrix({{1, 0}, {1, 1}, {1, 2}, {1, 3}});
    const Ref<clsMatrix> x = m->LeastSqures(*RealMatrix({{1}, {3}, {5}, {7}}));
    EXPECT_EQ(ShapeOf(*x), Sized(2, 1));
    EXPECT_NEAR(x->Real(1, 1), 1.0, 1e-14);
    EXPECT_NEAR(x->Real(2, 1), 2.0, 1e-14);
    // (0, 0), (1, 1), (2, 1), (3, 2) lie best about 0.1 + 0.6 t.
    const Ref<clsMatrix> y = m->LeastSqures(*RealMatrix({{0}, {1}, {1}, {2}}));
    EXPECT_NEAR(y->Real(1, 1), 0.1, 1e-14);
    EXPECT_NEAR(y->Real(2, 1), 0.6, 1e-14);
}

TEST(LeastSqures, LeavesAResidualAtRightAnglesToTheColumns)
{
    RandomSystems random(44);
    for (std::int32_t n = 1; n <= 10; ++n) {
        const Ref<clsMatrix> m = random.Matrix(3 * n + 2, n);
        const Ref<clsMatrix> a = random.Matrix(3 * n + 2, 1);
        const Ref<clsMatrix> rest = m->MtimesR(*m->LeastSqures(*a))->MinusR(*a);
        EXPECT_LE(Norm(*m->Transpose()->MtimesR(*rest)), 1e-13) << n;
        EXPECT_GT(Norm(*rest), 1e-3) << n;
    }
}

TEST(LeastSqures, OfARowWorksOnTheTransposedOperands)
{
    // x = (1*3 + 2*5 + 3*8)/(1 + 4 + 9)
    const Ref<clsMatrix> x = RealMatrix({{1, 2, 3}})->LeastSqures(*RealMatrix({{3, 5, 8}}));
    EXPECT_EQ(ShapeOf(*x), Sized(1, 1));
    EXPECT_NEAR(x->Real(1, 1), 37.0 / 14.0, 1e-15);
    EXPECT_EQ(RealMatrix({{4}})->LeastSqures(*RealMatrix({{10}}))->Real(1, 1), 2.5);
}

TEST(LeastSqures, OfDependentColumnsIsSingular)
{
    MessageRecorder recorder;
    EXPECT_FALSE(RealMatrix({{1, 2}, {2, 4}, {3, 6}})->LeastSqures(*RealMatrix({{1}, {2}, {4}})));
    EXPECT_EQ(recorder.Take(), Shown{kSingularShown});
}

TEST(LeastSqures, OfOtherSizesShowsItAndIsEmpty)
{
    const ShownMessage inner =
        Plain("Error using ==> Mtimes(*) Inner matrix dimensions must agree.");
    MessageRecorder recorder;
    EXPECT_FALSE(RealMatrix({{1, 2}, {2, 5}, {3, 6}})->LeastSqures(*RealMatrix({{1}, {2}})));
    EXPECT_FALSE(RealMatrix({{1, 2, 3}})->LeastSqures(*RealMatrix({{1}, {2}, {3}})));
    EXPECT_EQ(recorder.Take(), (Shown{inner, inner}));
    EXPECT_EQ(Raised([] { clsMatrix().LeastSqures(*RealMatrix({{1}})); }), 9);
    // The receiver's own products come first, and overflow.
    EXPECT_EQ(Raised([] { RealMatrix({{1e200}, {1}})->LeastSqures(*RealMatrix({{1}})); }), 6);
}

} // namespace
} // namespace lumora
