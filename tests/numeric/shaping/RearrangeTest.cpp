#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumora {
namespace {

using namespace test;

const ShownMessage kRows = Titled("Error using Rearrange", "Number of rows must be <=Size1 .");
const ShownMessage kColumns =
    Titled("Error using Rearrange", "Number of Columns must be <=Size2 .");

template <class M> Ref<M> Rearranged(const M& m, std::int32_t X, std::int32_t Y, std::int16_t s)
{
    return m.Rearrange(X, Y, s).template As<Ref<M>>();
}

/// Expansion along the first column: what one step of a determinant must leave alone.
double Determinant(const std::vector<std::vector<double>>& rows)
{
    if (rows.empty()) return 1.0;
    double sum = 0.0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        std::vector<std::vector<double>> rest;
        for (std::size_t k = 0; k < rows.size(); ++k)
            if (k != i) rest.emplace_back(rows[k].begin() + 1, rows[k].end());
        sum += (i % 2 == 0 ? 1.0 : -1.0) * rows[i][0] * Determinant(rest);
    }
    return sum;
}

double Determinant(const clsMatrix& m)
{
    std::vector<std::vector<double>> rows(static_cast<std::size_t>(m.size1));
    for (std::int32_t i = 1; i <= m.size1; ++i)
        for (std::int32_t j = 1; j <= m.size2; ++j)
            rows[static_cast<std::size_t>(i - 1)].push_back(m.Real(i, j));
    return Determinant(rows);
}

TEST(Rearrange, OfNeighboursTurnsTheSignOfTheOneThatMovesFromXToY)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}, {3, 4}});
    EXPECT_EQ(Values(*Rearranged(*m, 1, 2, 1)), Values(*RealMatrix({{3, 4}, {-1, -2}})));
    EXPECT_EQ(Values(*Rearranged(*m, 2, 1, 1)), Values(*RealMatrix({{-3, -4}, {1, 2}})));
    EXPECT_EQ(Values(*Rearranged(*m, 1, 2, 2)), Values(*RealMatrix({{2, -1}, {4, -3}})));
    EXPECT_EQ(Values(*Rearranged(*m, 2, 1, 2)), Values(*RealMatrix({{-2, 1}, {-4, 3}})));
    EXPECT_EQ(Values(*m), Values(*RealMatrix({{1, 2}, {3, 4}})));
}

TEST(Rearrange, OverAnEvenDistanceKeepsAllSigns)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}, {3, 4}, {5, 6}});
    EXPECT_EQ(Values(*Rearranged(*m, 1, 3, 1)), Values(*RealMatrix({{5, 6}, {3, 4}, {1, 2}})));
    EXPECT_EQ(Values(*Rearranged(*m, 2, 2, 1)), Values(*m));
}

TEST(Rearrange, OfWholeNumbersFollowsTheSameRule)
{
    const Ref<clsLong> m = LongMatrix({{1, 2, 3}, {4, 5, 6}});
    EXPECT_EQ(Values(*Rearranged(*m, 1, 2, 1)), Values(*LongMatrix({{4, 5, 6}, {-1, -2, -3}})));
    EXPECT_EQ(Values(*Rearranged(*m, 3, 2, 2)), Values(*LongMatrix({{1, -3, 2}, {4, -6, 5}})));
    EXPECT_EQ(Values(*Rearranged(*m, 1, 3, 2)), Values(*LongMatrix({{3, 2, 1}, {6, 5, 4}})));
}

TEST(Rearrange, KeepsTheDeterminantOverAnOddDistance)
{
    constexpr std::uint32_t kSeed = 4403;
    RandomMatrices random(kSeed);
    for (int round = 0; round < 50; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const Ref<clsMatrix> m = random.Real(4, 4);
        const std::int32_t x = random.Whole(1, 4);
        const std::int32_t y = random.Whole(1, 4);
        const double sign = x != y && (x - y) % 2 == 0 ? -1.0 : 1.0;
        // Halves of small whole numbers: every product and sum is exact.
        EXPECT_EQ(Determinant(*Rearranged(*m, x, y, 1)), sign * Determinant(*m));
        EXPECT_EQ(Determinant(*Rearranged(*m, x, y, 2)), sign * Determinant(*m));
    }
}

TEST(Rearrange, LeavesTheSignsOfComplexNumbersTextsAndValues)
{
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1, 2}, {3, 4}}, {{5, 6}, {7, 8}}});
    EXPECT_EQ(Values(*Rearranged(*c, 1, 2, 1)),
              Values(*ComplexMatrix({{{5, 6}, {7, 8}}, {{1, 2}, {3, 4}}})));
    EXPECT_EQ(Values(*Rearranged(*c, 1, 2, 2)),
              Values(*ComplexMatrix({{{3, 4}, {1, 2}}, {{7, 8}, {5, 6}}})));
    const Ref<clsString> s = TextMatrix({{"a", "b"}, {"c", "d"}});
    EXPECT_EQ(Values(*Rearranged(*s, 1, 2, 1)), Values(*TextMatrix({{"c", "d"}, {"a", "b"}})));
    clsVariant v;
    v.Initial_matrix(1, 2);
    v.Real(1, 1, 5.0);
    v.Real(1, 2, "x");
    const Ref<clsVariant> exchanged = Rearranged(v, 1, 2, 2);
    EXPECT_EQ(exchanged->Real(1, 1), Variant("x"));
    EXPECT_EQ(exchanged->Real(1, 2), Variant(5.0));
}

TEST(Rearrange, KeepsTheShapeOfItsReceiver)
{
    EXPECT_EQ(ShapeOf(*Rearranged(*RealMatrix({{1, 2, 3}}), 1, 3, 2)), (Shape{1, 3, 1}));
    EXPECT_EQ(ShapeOf(*Rearranged(*RealMatrix({{1}, {2}}), 1, 2, 1)), (Shape{2, 1, 2}));
    EXPECT_EQ(ShapeOf(*Rearranged(*ComplexMatrix({{1, 2, 3}}), 1, 1, 1)), (Shape{1, 3, 1}));
}

TEST(Rearrange, SetsAnotherSelectorToOneInTheCallersVariable)
{
    for (const std::int16_t other : {std::int16_t{0}, std::int16_t{3}, std::int16_t{-2}}) {
        std::int16_t s = other;
        const Variant result = RealMatrix({{1, 2}, {3, 4}})->Rearrange(1, 2, s);
        EXPECT_EQ(s, 1);
        EXPECT_EQ(Values(*result.As<Ref<clsMatrix>>()), Values(*RealMatrix({{3, 4}, {-1, -2}})));
    }
    std::int16_t columns = 2;
    RealMatrix({{1, 2}})->Rearrange(1, 2, columns);
    EXPECT_EQ(columns, 2);
    std::int16_t failing = 7;
    const MessageRecorder recorder;
    TextMatrix({{"a"}})->Rearrange(1, 2, failing);
    EXPECT_EQ(failing, 1);
}

template <class M> void ExpectRefused(const M& m)
{
    for (std::int16_t s : {std::int16_t{1}, std::int16_t{2}}) {
        const Shown one{s == 1 ? kRows : kColumns};
        const std::int32_t beyond = (s == 1 ? m.size1 : m.size2) + 1;
        for (const auto& [x, y] : {std::pair{beyond, 1}, {1, beyond}, {beyond, beyond}}) {
            MessageRecorder ok;
            EXPECT_EQ(Values(*m.Rearrange(x, y, s).template As<Ref<clsMatrix>>()),
                      std::vector<double>{-1});
            EXPECT_EQ(ok.Take(), one);
            MessageRecorder cancel(MessageAnswer::Cancel);
            EXPECT_TRUE(m.Rearrange(x, y, s).IsEmpty());
            EXPECT_EQ(cancel.Take(), one);
        }
    }
}

TEST(Rearrange, BeyondTheMatrixShowsItsMessageInEveryClass)
{
    RandomMatrices random(4404);
    ExpectRefused(*random.Real(2, 3));
    ExpectRefused(*random.Long(3, 2));
    ExpectRefused(*random.Complexes(1, 4));
    ExpectRefused(*random.Texts(4, 1));
    ExpectRefused(*random.Mixed(2, 2));
    ExpectRefused(clsMatrix());
}

TEST(Rearrange, BelowOneRaisesError9)
{
    const MessageRecorder silent;
    const Ref<clsMatrix> m = RealMatrix({{1, 2}, {3, 4}});
    std::int16_t rows = 1;
    std::int16_t columns = 2;
    EXPECT_EQ(Raised([&] { m->Rearrange(0, 1, rows); }), 9);
    EXPECT_EQ(Raised([&] { m->Rearrange(1, 0, columns); }), 9);
    EXPECT_EQ(Raised([&] { m->Rearrange(std::numeric_limits<std::int32_t>::min(), 1, rows); }), 9);
    EXPECT_TRUE(silent.shown.empty());
}

TEST(Rearrange, CannotNegateTheLeastWholeNumber)
{
    const std::int32_t least = std::numeric_limits<std::int32_t>::min();
    const Ref<clsLong> m = LongMatrix({{least, 1, 2}});
    EXPECT_EQ(Raised([&] { Rearranged(*m, 1, 2, 2); }), 6);
    EXPECT_EQ(Values(*Rearranged(*m, 2, 1, 2)), (std::vector<std::int32_t>{-1, least, 2}));
    EXPECT_EQ(Values(*Rearranged(*m, 1, 3, 2)), (std::vector<std::int32_t>{2, 1, least}));
}

} // namespace
} // namespace lumora
