#include "numeric/shaping/Cat.h"
#include "numeric/Matrices.h"
#include "numeric/Random.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <sstream>

namespace lumora {
namespace {

using namespace test;

const ShownMessage kDimention = Titled("Error using Cat", " CAT arguments  are not consistent.");
const ShownMessage kSizes = Titled("Error using Cat.", " Matrix dimensions are not consistent.");
const ShownMessage kNoOperand =
    Titled("Error using Cat", " Matrix dimensions  are not consistent.");

std::string Told(double re, double im)
{
    std::ostringstream out;
    out << re;
    if (im != 0.0) out << (im < 0.0 ? "" : "+") << im << 'i';
    return out.str();
}

/// An element as one writes it, whatever kind of matrix holds it.
std::string Told(const Variant& value)
{
    if (value.IsText()) return '"' + value.As<std::string>() + '"';
    if (value.IsNumber()) return Told(value.Number(), 0.0);
    const Ref<clsComplex> z = value.As<Ref<clsComplex>>();
    return Told(z->Real, z->Image);
}

struct Rectangle {
    std::string tag;
    Shape shape;
    std::vector<std::vector<std::string>> rows;
};

template <class M> std::string Told(const M& m, std::int32_t i, std::int32_t j)
{
    if constexpr (std::same_as<M, clsComplex>)
        return Told(m.Real, m.Image);
    else if constexpr (std::same_as<M, clsComplexMatrix>)
        return Told(m.Real(i, j), m.Image(i, j));
    else
        return Told(Variant(m.Real(i, j)));
}

/// What an object holds, read element by element.
Rectangle Told2D(const Variant& object)
{
    return object.Visit([]<class T>(const T& held) -> Rectangle {
        if constexpr (requires { held->TypeOfMatrix; }) {
            Rectangle told{held->TypeOfMatrix, {1, 1, 1}, {}};
            if constexpr (requires { held->size1; }) told.shape = ShapeOf(*held);
            for (std::int32_t i = 1; i <= told.shape.rows; ++i) {
                told.rows.emplace_back();
                for (std::int32_t j = 1; j <= told.shape.columns; ++j)
                    told.rows.back().push_back(Told(*held, i, j));
            }
            return told;
        } else {
            ADD_FAILURE() << "no object";
            return {};
        }
    });
}

/// One object of each kind, in the order of the table.
constexpr int kKinds = 7;
Variant OfKind(RandomMatrices& random, int kind, std::int32_t rows, std::int32_t columns)
{
    switch (kind) {
    case 0:
        return random.Real(rows, columns);
    case 1:
        return random.Long(rows, columns);
    case 2:
        return random.Complexes(rows, columns);
    case 3:
        return random.Objects(rows, columns);
    case 4:
        return Scalar(random.Number(), 1.5);
    case 5:
        return random.Texts(rows, columns);
    default:
        return random.Mixed(rows, columns);
    }
}
constexpr int kScalarKind = 4;

const std::string kResult[kKinds][kKinds] = {
    //          r     L     c     mc    ""    s    v
    /* r  */ {"r", "r", "c", "mc", "c", "v", "v"},
    /* L  */ {"r", "r", "c", "mc", "c", "v", "v"},
    /* c  */ {"c", "c", "c", "mc", "c", "v", "v"},
    /* mc */ {"mc", "mc", "mc", "mc", "mc", "v", "v"},
    /* "" */ {"c", "c", "c", "mc", "c", "v", "v"},
    /* s  */ {"v", "v", "v", "v", "v", "s", "v"},
    /* v  */ {"v", "v", "v", "v", "v", "v", "v"},
};

TEST(Cat, PutsEveryKindBesideAndBelowEveryKind)
{
    constexpr std::uint32_t kSeed = 4405;
    RandomMatrices random(kSeed);
    for (int a_kind = 0; a_kind < kKinds; ++a_kind)
        for (int b_kind = 0; b_kind < kKinds; ++b_kind)
            for (const std::int16_t dimention : {std::int16_t{1}, std::int16_t{2}}) {
                SCOPED_TRACE("seed " + std::to_string(kSeed) + ", kinds " + std::to_string(a_kind) +
                             ", " + std::to_string(b_kind) + ", dimention " +
                             std::to_string(dimention));
                const bool one = a_kind == kScalarKind || b_kind == kScalarKind;
                const std::int32_t across = one ? 1 : 3;
                const Variant a = dimention == 1 ? OfKind(random, a_kind, 2, across)
                                                 : OfKind(random, a_kind, across, 2);
                const Variant b = dimention == 1 ? OfKind(random, b_kind, 1, across)
                                                 : OfKind(random, b_kind, across, 1);
                Rectangle expected = Told2D(a);
                const Rectangle other = Told2D(b);
                if (dimention == 1) {
                    for (const auto& row : other.rows)
                        expected.rows.push_back(row);
                } else {
                    for (std::size_t i = 0; i < expected.rows.size(); ++i)
                        for (const std::string& element : other.rows[i])
                            expected.rows[i].push_back(element);
                }
                const Rectangle joint = Told2D(Cat(dimention, a, b));
                EXPECT_EQ(joint.rows, expected.rows);
                EXPECT_EQ(joint.tag, kResult[a_kind][b_kind]);
                EXPECT_EQ(joint.shape, Sized(static_cast<std::int32_t>(expected.rows.size()),
                                             static_cast<std::int32_t>(expected.rows[0].size())));
            }
}

TEST(Cat, OfTwoNumbersIsARowOrAColumn)
{
    const Ref<clsMatrix> row = Cat(2, 1.0, 2.0).As<Ref<clsMatrix>>();
    EXPECT_EQ(ShapeOf(*row), (Shape{1, 2, 1}));
    EXPECT_EQ(Values(*row), (std::vector<double>{1, 2}));
    const Ref<clsMatrix> column = Cat(1, std::int32_t{1}, 2.0F).As<Ref<clsMatrix>>();
    EXPECT_EQ(ShapeOf(*column), (Shape{2, 1, 2}));
    EXPECT_EQ(Values(*column), (std::vector<double>{1, 2}));
}

TEST(Cat, OfATextAndANumberHoldsBothAsTheyAre)
{
    const Ref<clsVariant> row = Cat(2, "a", std::int32_t{1}).As<Ref<clsVariant>>();
    EXPECT_EQ(row->Real(1, 1), Variant("a"));
    EXPECT_EQ(row->Real(1, 2), Variant(1.0));
    EXPECT_EQ(Values(*Cat(1, "a", "b").As<Ref<clsString>>()), (std::vector<std::string>{"a", "b"}));
    const Ref<clsVariant> whole = Cat(2, LongMatrix({{4}}), "a").As<Ref<clsVariant>>();
    EXPECT_EQ(whole->Real(1, 1), Variant(std::int32_t{4}));
}

TEST(Cat, TakesAnArrayForTheClassThatItsElementsCallFor)
{
    const Variant one = RealMatrix({{1}});
    Array<Variant> numbers(2);
    numbers(1) = 1.5;
    numbers(2) = "2";
    Array<Variant> complexes(2);
    complexes(1) = "1.5";
    complexes(2) = Scalar(2, 3);
    Array<Variant> mixed(2);
    mixed(1) = 1.5;
    mixed(2) = "two";
    Array<Variant> numbered(2); // a number is no complex element
    numbered(1) = 1.5;
    numbered(2) = Scalar(2, 3);
    const std::pair<Variant, std::string> cases[] = {{Row<double>({1.5, 2}), "r"},
                                                     {Row<double>({1, 2}), "r"},
                                                     {Row<std::int32_t>({1, 2}), "r"},
                                                     {Row<std::uint8_t>({1, 2}), "r"},
                                                     {Row<std::string>({"1", "2"}), "v"},
                                                     {Row({Scalar(1, 2), Scalar(3, 4)}), "c"},
                                                     {numbers, "r"},
                                                     {complexes, "c"},
                                                     {numbered, "v"},
                                                     {mixed, "v"}};
    for (const auto& [array, tag] : cases) {
        const Rectangle right = Told2D(Cat(2, one, array));
        EXPECT_EQ(right.tag, tag);
        EXPECT_EQ(right.shape, Sized(1, 3));
        EXPECT_EQ(right.rows[0][0], "1");
        const Rectangle left = Told2D(Cat(2, array, one));
        EXPECT_EQ(left.tag, tag);
        EXPECT_EQ(left.rows[0][2], "1");
        EXPECT_EQ((std::vector{right.rows[0][1], right.rows[0][2]}),
                  (std::vector{left.rows[0][0], left.rows[0][1]}));
    }
    EXPECT_EQ(Told2D(Cat(1, TextMatrix({{"x", "y"}}), Row<std::string>({"1", "2"}))).tag, "s");
    EXPECT_EQ(Told2D(Cat(2, Table<double>({{1}, {2}}), Table<double>({{3.5}, {4}}))).rows,
              (std::vector<std::vector<std::string>>{{"1", "3.5"}, {"2", "4"}}));
}

TEST(Cat, OfWholeNumberMatricesIsAMatrixOfFloats)
{
    EXPECT_EQ(Values(*Cat(1, LongMatrix({{1, 2}}), LongMatrix({{3, 4}})).As<Ref<clsMatrix>>()),
              (std::vector<double>{1, 3, 2, 4}));
}

TEST(Cat, SharesNoElementObjects)
{
    const Ref<clsMatrixComplex> a = ObjectMatrix({{{1, 2}}});
    const Ref<clsComplex> b = Scalar(3, 4);
    const Ref<clsMatrixComplex> joint = Cat(2, a, b).As<Ref<clsMatrixComplex>>();
    joint->Real(1, 1)->Real = 9;
    joint->Real(1, 2)->Real = 9;
    const Ref<clsVariant> values = Cat(2, a, "x").As<Ref<clsVariant>>();
    values->Elements()(1).As<Ref<clsComplex>>()->Real = 9;
    EXPECT_EQ(a->Real(1, 1)->Real, 1);
    EXPECT_EQ(b->Real, 3);
}

TEST(Cat, WithAnObjectWithoutElementsCopiesTheOther)
{
    const Variant empties[] = {MakeRef<clsMatrix>(),        MakeRef<clsLong>(),
                               MakeRef<clsComplexMatrix>(), MakeRef<clsMatrixComplex>(),
                               MakeRef<clsString>(),        MakeRef<clsVariant>()};
    for (const Variant& empty : empties) {
        const Ref<clsLong> whole = LongMatrix({{1, 2}});
        for (const Variant& result : {Cat(1, empty, whole), Cat(2, whole, empty)}) {
            const Ref<clsLong> copy = result.As<Ref<clsLong>>();
            EXPECT_EQ(Values(*copy), Values(*whole));
            EXPECT_FALSE(copy == whole);
        }
        EXPECT_EQ(Told2D(Cat(2, empty, "text")).tag, "s");
        EXPECT_EQ(Told2D(Cat(2, 5.0, empty)).tag, "r");
    }
    const Variant both = Cat(1, MakeRef<clsMatrix>(), MakeRef<clsLong>());
    EXPECT_EQ(both.As<Ref<clsLong>>()->size1, 0);
}

void ExpectFailure(std::int16_t dimention, const Variant& a, const Variant& b,
                   const ShownMessage& message)
{
    MessageRecorder ok;
    EXPECT_EQ(Values(*Cat(dimention, a, b).As<Ref<clsMatrix>>()), std::vector<double>{-1});
    EXPECT_EQ(ok.Take(), Shown{message});
    MessageRecorder cancel(MessageAnswer::Cancel);
    EXPECT_TRUE(Cat(dimention, a, b).IsEmpty());
    EXPECT_EQ(cancel.Take(), Shown{message});
}

TEST(Cat, ShowsOneMessageForSizesThatDoNotFitWhateverTheOperands)
{
    const Variant square = RealMatrix({{1, 2}, {3, 4}});
    const Variant row = RealMatrix({{1, 2, 3}});
    const Variant array = Row<double>({1.5, 2, 3});
    for (const std::int16_t dimention : {std::int16_t{1}, std::int16_t{2}}) {
        ExpectFailure(dimention, square, row, kSizes);
        ExpectFailure(dimention, row, square, kSizes);
        ExpectFailure(dimention, square, 5.0, kSizes);
        ExpectFailure(dimention, "text", square, kSizes);
        ExpectFailure(dimention, Scalar(1, 2), square, kSizes);
        ExpectFailure(dimention, square, array, kSizes);
        ExpectFailure(dimention, array, square, kSizes);
        ExpectFailure(dimention, array, Table<double>({{1, 2}, {3, 4}}), kSizes);
    }
}

TEST(Cat, RefusesAnotherDimention)
{
    for (const std::int16_t dimention : {std::int16_t{0}, std::int16_t{3}, std::int16_t{-1}}) {
        ExpectFailure(dimention, 1.0, 2.0, kDimention);
        ExpectFailure(dimention, MakeRef<clsMatrix>(), RealMatrix({{1}}), kDimention);
        ExpectFailure(dimention, RealMatrix({{1, 2}}), RealMatrix({{1}, {2}}), kDimention);
        ExpectFailure(dimention, Variant(), 2.0, kDimention);
    }
}

TEST(Cat, RefusesWhatIsNothingToJoin)
{
    const Ref<clsMatrix> strange = RealMatrix({{1}});
    strange->TypeOfMatrix = "cm";
    const Ref<clsMatrix> disguised = RealMatrix({{1}});
    disguised->TypeOfMatrix = "L";
    for (const Variant& nothing : {Variant(), Variant(strange), Variant(disguised)}) {
        ExpectFailure(1, nothing, 1.0, kNoOperand);
        ExpectFailure(2, 1.0, nothing, kNoOperand);
    }
}

TEST(Cat, StopsAtMissingObjects)
{
    EXPECT_EQ(Raised([] { Cat(1, Ref<clsMatrix>(), 1.0); }), 91);
    clsMatrixComplex missing;
    missing.Initial_matrix(1, 1);
    EXPECT_EQ(Raised([&] { Cat(1, Variant(MakeRef<clsMatrixComplex>(missing)), 1.0); }), 91);
    const Ref<clsMatrix> stale = RealMatrix({{1, 2, 3}});
    stale->size2 = 2;
    EXPECT_EQ(Raised([&] { Cat(1, stale, RealMatrix({{1, 2}})); }), 9);
}

TEST(Cat, IsUndoneByCuttingTheJointApart)
{
    constexpr std::uint32_t kSeed = 4406;
    RandomMatrices random(kSeed);
    for (int round = 0; round < 40; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const std::int32_t rows = random.Whole(1, 5);
        const std::int32_t left = random.Whole(1, 5);
        const std::int32_t right = random.Whole(1, 5);
        const Ref<clsComplexMatrix> a = random.Complexes(rows, left);
        const Ref<clsComplexMatrix> b = random.Complexes(rows, right);
        const Ref<clsComplexMatrix> beside = Cat(2, a, b).As<Ref<clsComplexMatrix>>();
        EXPECT_EQ(Values(*beside->OutMatrix(1, 1, rows, left)), Values(*a));
        EXPECT_EQ(Values(*beside->OutMatrix(1, left + 1, rows, left + right)), Values(*b));
        const Ref<clsComplexMatrix> below =
            Cat(1, a->Transpose(), b->Transpose()).As<Ref<clsComplexMatrix>>();
        EXPECT_EQ(Values(*below), Values(*beside->Transpose()));
        EXPECT_EQ(Values(*below->OutMatrix(1, 1, left, rows)), Values(*a->Transpose()));
    }
}

} // namespace
} // namespace lumora
