#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace lumora {
namespace {

using namespace test;

Variant At(const clsVariant& m, std::int32_t i, std::int32_t j)
{
    return m.Real(i, j);
}
template <class M> auto At(const M& m, std::int32_t i, std::int32_t j)
{
    if constexpr (std::same_as<M, clsComplexMatrix>)
        return Complex(m.Real(i, j), m.Image(i, j));
    else if constexpr (std::same_as<M, clsMatrixComplex>)
        return Complex(m.Real(i, j)->Real, m.Real(i, j)->Image);
    else
        return m.Real(i, j);
}

template <class M> void ExpectTransposed(const M& m, const M& t)
{
    EXPECT_EQ(ShapeOf(t), Sized(m.size2, m.size1));
    EXPECT_EQ(t.TypeOfMatrix, m.TypeOfMatrix);
    for (std::int32_t i = 1; i <= m.size1; ++i)
        for (std::int32_t j = 1; j <= m.size2; ++j)
            EXPECT_EQ(At(t, j, i), At(m, i, j)) << i << ", " << j;
}

/// One matrix of each class, all of the same sizes.
auto OneOfEach(RandomMatrices& random, std::int32_t rows, std::int32_t columns)
{
    return std::tuple(random.Real(rows, columns), random.Long(rows, columns),
                      random.Complexes(rows, columns), random.Objects(rows, columns),
                      random.Texts(rows, columns), random.Mixed(rows, columns));
}

template <class Visit> void ForShapes(Visit visit)
{
    constexpr std::uint32_t kSeed = 4401;
    RandomMatrices random(kSeed);
    for (const auto& [rows, columns] :
         {std::pair{1, 1}, {1, 5}, {5, 1}, {2, 3}, {4, 4}, {17, 3}, {3, 17}, {33, 16}, {40, 35}}) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", " + std::to_string(rows) + " by " +
                     std::to_string(columns));
        std::apply([&](const auto&... m) { (visit(*m), ...); }, OneOfEach(random, rows, columns));
    }
}

TEST(Transpose, ExchangesRowsAndColumnsInEveryClass)
{
    ForShapes([](const auto& m) { ExpectTransposed(m, *m.Transpose()); });
}

TEST(Transpose, TwiceIsTheMatrixItself)
{
    ForShapes([]<class M>(const M& m) {
        const Ref<M> twice = m.Transpose()->Transpose();
        EXPECT_EQ(ShapeOf(*twice), ShapeOf(m));
        for (std::int32_t i = 1; i <= m.size1; ++i)
            for (std::int32_t j = 1; j <= m.size2; ++j)
                EXPECT_EQ(At(*twice, i, j), At(m, i, j));
    });
}

TEST(Transpose, OfARowIsATwoDimensionalColumnAndBackAOneDimensionalRow)
{
    const Ref<clsMatrix> column = RealMatrix({{1, 2, 3}})->Transpose();
    EXPECT_EQ(ShapeOf(*column), (Shape{3, 1, 2}));
    EXPECT_EQ(ShapeOf(*column->Transpose()), (Shape{1, 3, 1}));
    EXPECT_EQ(Values(*column->Transpose()), (std::vector<double>{1, 2, 3}));
}

TEST(Transpose, OfOneElementIsACopy)
{
    const Ref<clsMatrix> one = RealMatrix({{7}});
    const Ref<clsMatrix> copy = one->Transpose();
    copy->Real(1, 1, 8);
    EXPECT_EQ(one->Real(1, 1), 7);
    EXPECT_EQ(ShapeOf(*copy), (Shape{1, 1, 1}));
}

TEST(Transpose, OfElementObjectsHasObjectsOfItsOwn)
{
    const Ref<clsMatrixComplex> m = ObjectMatrix({{{1, 2}, {3, 4}}});
    for (const Ref<clsMatrixComplex>& t : {m->Transpose(), m->CTranspose(), m->Conj()->Transpose()})
        t->Real(2, 1)->Real = 99;
    EXPECT_EQ(Values(*m), (std::vector<Complex>{{1, 2}, {3, 4}}));
}

TEST(Transpose, KeepsAMissingElementObjectMissing)
{
    clsMatrixComplex m;
    m.Initial_matrix(1, 2);
    EXPECT_EQ(ShapeOf(*m.Transpose()), Sized(2, 1));
    EXPECT_FALSE(m.Transpose()->Real(1, 1));
    EXPECT_EQ(Raised([&] { m.CTranspose(); }), 91);
    EXPECT_EQ(Raised([&] { m.Conj(); }), 91);
}

TEST(Transpose, OfValuesHasObjectsOfItsOwn)
{
    clsVariant m;
    m.Initial_matrix(1, 2);
    m.Real(1, 2, RealMatrix({{5}}));
    const Ref<clsVariant> t = m.Transpose();
    t->Elements()(2, 1).As<Ref<clsMatrix>>()->Real(1, 1, 6.0);
    EXPECT_EQ(m.Real(1, 2).As<Ref<clsMatrix>>()->Real(1, 1), 5.0);
}

TEST(Transpose, WithoutElementsRaisesError9)
{
    EXPECT_EQ(Raised([] { clsMatrix().Transpose(); }), 9);
    EXPECT_EQ(Raised([] { clsComplexMatrix().CTranspose(); }), 9);
    EXPECT_EQ(Raised([] { clsMatrixComplex().Transpose(); }), 9);
    EXPECT_EQ(Raised([] { clsVariant().CTranspose(); }), 9);
}

TEST(Transpose, RaisesError9WhereTheStoreDisagreesWithTheSizes)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2, 3}});
    m->size1 = 3;
    EXPECT_EQ(Raised([&] { m->Transpose(); }), 9);
    const Ref<clsComplexMatrix> c = ComplexMatrix({{1, 2, 3}});
    c->size2 = 2;
    EXPECT_EQ(Raised([&] { c->Transpose(); }), 9);
    EXPECT_EQ(Raised([&] { c->Conj(); }), 9);
}

TEST(CTranspose, IsTransposeWhereThereIsNoImaginaryPart)
{
    ForShapes([](const auto& m) {
        using M = std::remove_cvref_t<decltype(m)>;
        if constexpr (!std::same_as<M, clsComplexMatrix> && !std::same_as<M, clsMatrixComplex>)
            ExpectTransposed(m, *m.CTranspose());
    });
}

TEST(CTranspose, NegatesImaginaryParts)
{
    const std::vector<Complex> expected = {{1, -2}, {5, 6}, {3, -4}, {7, 0}};
    EXPECT_EQ(Values(*ComplexMatrix({{{1, 2}, {3, 4}}, {{5, -6}, {7, 0}}})->CTranspose()),
              (std::vector<Complex>{{1, -2}, {3, -4}, {5, 6}, {7, 0}}));
    EXPECT_EQ(Values(*ObjectMatrix({{{1, 2}, {5, -6}}, {{3, 4}, {7, 0}}})->CTranspose()), expected);
}

TEST(CTranspose, IsTheConjugateOfTheTranspose)
{
    RandomMatrices random(4402);
    const Ref<clsComplexMatrix> c = random.Complexes(7, 18);
    EXPECT_EQ(Values(*c->CTranspose()), Values(*c->Transpose()->Conj()));
    const Ref<clsMatrixComplex> mc = random.Objects(18, 7);
    EXPECT_EQ(Values(*mc->CTranspose()), Values(*mc->Conj()->Transpose()));
    EXPECT_EQ(ShapeOf(*mc->CTranspose()), Sized(7, 18));
}

TEST(Conj, CopiesARealMatrix)
{
    const Ref<clsMatrix> r = RealMatrix({{1, -2}, {3, 4}});
    const Ref<clsMatrix> copy = r->Conj();
    EXPECT_EQ(Values(*copy), Values(*r));
    copy->Real(1, 1, 9);
    EXPECT_EQ(r->Real(1, 1), 1);
    EXPECT_EQ(Values(*LongMatrix({{1, -2}})->Conj()), (std::vector<std::int32_t>{1, -2}));
}

TEST(Conj, NegatesImaginaryPartsInPlace)
{
    const std::vector<Complex> expected = {{1, -2}, {-3, 4}};
    const Ref<clsComplexMatrix> c = ComplexMatrix({{{1, 2}}, {{-3, -4}}});
    EXPECT_EQ(Values(*c->Conj()), expected);
    EXPECT_EQ(ShapeOf(*c->Conj()), Sized(2, 1));
    EXPECT_EQ(Values(*ObjectMatrix({{{1, 2}, {-3, -4}}})->Conj()), expected);
    EXPECT_EQ(Values(*c->Conj()->Conj()), Values(*c));
}

TEST(Conj, TurnsTheSignOfAZero)
{
    EXPECT_TRUE(std::signbit(ComplexMatrix({{{1, 0}}})->Conj()->Image(1, 1)));
}

} // namespace
} // namespace lumora
