#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <complex>
#include <map>
#include <sstream>
#include <string>
#include <vector>

// Every class, operator, operand kind and pair of shapes, against a plain evaluation on complex
// long doubles that knows nothing of the classes.

namespace lumora::test {
namespace {

using Wide = std::complex<long double>;

struct Grid {
    int rows;
    int columns;
    std::vector<Wide> values; // column-major

    bool IsScalar() const { return rows == 1 && columns == 1; }
    Wide At(int i, int j) const { return values[static_cast<std::size_t>(i + j * rows)]; }
};

enum class Kind { R, L, C, MC, ComplexNum, Num, RArray, LArray, CArray };
constexpr Kind kKinds[] = {Kind::R,   Kind::L,      Kind::C,      Kind::MC,    Kind::ComplexNum,
                           Kind::Num, Kind::RArray, Kind::LArray, Kind::CArray};
const char* const kKindNames[] = {"R",   "L",      "C",      "MC",    "ComplexNum",
                                  "Num", "RArray", "LArray", "CArray"};

// The class that comes out: a tag, "z" for a clsComplex, "!" where the member stops. Columns in the
// order of Kind.
const std::map<std::string, std::map<std::string, std::string>> kResultClasses{
    {"r",
     {{"Plus", "r ! c c c ! r ! c"},
      {"Minus", "r r c c c r r r c"},
      {"Times", "r r c c c r r r c"},
      {"Mtimes", "r r c c c r r ! c"},
      {"Rdivide", "r r c c c r r r c"}}},
    {"L",
     {{"Plus", "r L c c c ! r L c"},
      {"Minus", "r L c c c r r L c"},
      {"Times", "r L c c c r r ! c"},
      {"Mtimes", "r L c c c r r L c"},
      {"Rdivide", "r r c c c r r r c"}}},
    {"c",
     {{"Plus", "c c c c c c c c c"},
      {"Minus", "c c c c c c c c c"},
      {"Times", "c c c c c c c c c"},
      {"Mtimes", "c c c c c c c c c"},
      {"Rdivide", "c c c c c c c c c"}}},
    {"mc",
     {{"Plus", "c c c mc c c c c c"},
      {"Minus", "c c c mc c c c c c"},
      {"Times", "c c c mc c c c c c"},
      {"Mtimes", "c c c mc c c c c c"},
      {"Rdivide", "c c c mc c c c c c"}}},
    {"z",
     {{"Plus", "c c c c z z c c c"},
      {"Minus", "c c c c z z c c c"},
      {"Times", "c c c c z z c c c"},
      {"Mtimes", "c c c c z z c c c"},
      {"Rdivide", "c c c c z z c c c"}}},
};

/// Small values that no operator rounds, none of them zero: whole, halves, or with both parts.
Grid GridOf(Kind kind, int rows, int columns, int seed)
{
    Grid p{rows, columns, {}};
    for (int k = 0; k < rows * columns; ++k) {
        const int n = (k * 7 + seed * 3) % 11 - 5;
        const long double whole = n == 0 ? 6 : n;
        switch (kind) {
        case Kind::L:
        case Kind::LArray:
            p.values.emplace_back(whole);
            break;
        case Kind::R:
        case Kind::Num:
        case Kind::RArray:
            p.values.emplace_back(whole + 0.5L);
            break;
        default:
            p.values.emplace_back(whole + 0.5L, (k * 5 + seed) % 7 - 3.25L);
        }
    }
    return p;
}

template <class T, class Convert> Array<T> ArrayFrom(const Grid& p, Convert convert)
{
    Array<T> array;
    if (p.rows == 1)
        array.ReDim({1, p.columns});
    else
        array.ReDim({1, p.rows}, {1, p.columns});
    for (std::size_t k = 0; k < p.values.size(); ++k)
        array.Span()[k] = convert(p.values[k]);
    return array;
}

Array<double> Doubles(const Grid& p, bool imaginary = false)
{
    return ArrayFrom<double>(
        p, [&](Wide z) { return static_cast<double>(imaginary ? z.imag() : z.real()); });
}

Array<std::int32_t> Longs(const Grid& p)
{
    return ArrayFrom<std::int32_t>(p, [](Wide z) { return static_cast<std::int32_t>(z.real()); });
}

Ref<clsComplex> ObjectFrom(Wide z)
{
    return Scalar(static_cast<double>(z.real()), static_cast<double>(z.imag()));
}

Variant Made(Kind kind, const Grid& p)
{
    switch (kind) {
    case Kind::R: {
        auto m = MakeRef<clsMatrix>();
        m->SetRealAll(Doubles(p));
        return m;
    }
    case Kind::L: {
        auto m = MakeRef<clsLong>();
        m->SetRealAll(Longs(p));
        return m;
    }
    case Kind::C: {
        auto m = MakeRef<clsComplexMatrix>();
        m->SetComplexAll(Doubles(p), Doubles(p, true));
        return m;
    }
    case Kind::MC: {
        auto m = MakeRef<clsMatrixComplex>();
        m->SetComplexAll(Doubles(p), Doubles(p, true));
        return m;
    }
    case Kind::ComplexNum:
        return ObjectFrom(p.values[0]);
    case Kind::Num:
        return static_cast<double>(p.values[0].real());
    case Kind::RArray:
        return Doubles(p);
    case Kind::LArray:
        return Longs(p);
    case Kind::CArray:
        return ArrayFrom<Ref<clsComplex>>(p, ObjectFrom);
    }
    return {};
}

Variant Called(const Variant& receiver, const std::string& stem, const Variant& operand)
{
    return receiver.Visit([&](const auto& held) -> Variant {
        if constexpr (requires { held->Plus(operand); }) {
            if (stem == "Plus") return held->Plus(operand);
            if (stem == "Minus") return held->Minus(operand);
            if (stem == "Times") return held->Times(operand);
            if (stem == "Mtimes") return held->MTimes(operand);
            return held->Rdivide(operand);
        }
        return {};
    });
}

Wide Computed(const std::string& stem, Wide a, Wide b)
{
    if (stem == "Plus") return a + b;
    if (stem == "Minus") return a - b;
    if (stem == "Rdivide") return a / b;
    return a * b;
}

/// No rows if the sizes do not fit.
Grid Expected(const std::string& stem, const Grid& a, const Grid& b)
{
    if (!a.IsScalar() && !b.IsScalar() && stem == "Mtimes") {
        if (a.columns != b.rows) return {};
        Grid p{a.rows, b.columns, {}};
        for (int j = 0; j < p.columns; ++j)
            for (int i = 0; i < p.rows; ++i) {
                Wide sum = 0;
                for (int k = 0; k < a.columns; ++k)
                    sum += a.At(i, k) * b.At(k, j);
                p.values.push_back(sum);
            }
        return p;
    }
    if (!a.IsScalar() && !b.IsScalar() && (a.rows != b.rows || a.columns != b.columns)) return {};
    const Grid& shape = a.IsScalar() ? b : a;
    Grid p{shape.rows, shape.columns, {}};
    for (std::size_t k = 0; k < shape.values.size(); ++k)
        p.values.push_back(
            Computed(stem, a.values[a.IsScalar() ? 0 : k], b.values[b.IsScalar() ? 0 : k]));
    return p;
}

/// Tag, sizes, dimensions and elements of a result.
struct Seen {
    std::string tag;
    Shape shape{};
    std::vector<Complex> values;
};

Seen Look(const Variant& result)
{
    return result.Visit([](const auto& held) -> Seen {
        if constexpr (
            requires { held->Elements(); } || requires { held->RealPart(); }) {
            Seen seen{held->TypeOfMatrix, ShapeOf(*held), {}};
            if constexpr (requires { Complex(test::Values(*held)[0]); })
                for (const auto& value : test::Values(*held))
                    seen.values.emplace_back(value);
            return seen;
        } else if constexpr (requires { held->Image; }) {
            return {"z", Sized(1, 1), {{held->Real, held->Image}}};
        } else {
            return {"not a matrix", {}, {}};
        }
    });
}

std::string WordOf(const std::string& words, std::size_t place)
{
    std::istringstream in(words);
    std::string word;
    for (std::size_t k = 0; k <= place; ++k)
        in >> word;
    return word;
}

struct Case {
    std::string receiver;
    Kind receiver_kind;
};
constexpr std::pair<int, int> kShapes[] = {{1, 1}, {1, 3}, {3, 1}, {2, 3}, {3, 2}, {3, 3}};

void Check(const Case& of, const std::string& stem, std::size_t kind, std::pair<int, int> shape_a,
           std::pair<int, int> shape_b)
{
    const Grid a = GridOf(of.receiver_kind, shape_a.first, shape_a.second, 1);
    const Grid b = GridOf(kKinds[kind], shape_b.first, shape_b.second, 2);
    const std::string wanted = WordOf(kResultClasses.at(of.receiver).at(stem), kind);
    SCOPED_TRACE(of.receiver + " " + stem + kKindNames[kind] + " " + std::to_string(a.rows) + "x" +
                 std::to_string(a.columns) + " with " + std::to_string(b.rows) + "x" +
                 std::to_string(b.columns));

    const Variant receiver = Made(of.receiver_kind, a);
    const Variant operand = Made(kKinds[kind], b);
    MessageRecorder messages;
    Variant result;
    const int raised = Raised([&] { result = Called(receiver, stem, operand); });
    const Grid expected = Expected(stem, a, b);
    if (expected.rows == 0) {
        EXPECT_EQ(raised, 0);
        EXPECT_TRUE(result.IsEmpty());
        EXPECT_EQ(messages.Take(), Shown{Plain("Error using ==> " + stem +
                                               "(*) Inner matrix dimensions must agree.")});
        return;
    }
    EXPECT_EQ(messages.Take(), Shown{});
    EXPECT_EQ(raised, wanted == "!" ? 13 : 0);
    if (raised != 0) return;
    const Seen seen = Look(result);
    EXPECT_EQ(seen.tag, wanted);
    EXPECT_EQ(seen.shape, Sized(expected.rows, expected.columns));
    ASSERT_EQ(seen.values.size(), expected.values.size());
    // Quotients are rounded three times at most; everything else is exact.
    const double tolerance = stem == "Rdivide" ? 4e-16 : 0.0;
    for (std::size_t k = 0; k < seen.values.size(); ++k) {
        const Wide value(seen.values[k].real(), seen.values[k].imag());
        EXPECT_LE(std::abs(value - expected.values[k]), tolerance * std::abs(expected.values[k]))
            << k << ": " << seen.values[k];
    }
}

class OperatorTable : public testing::TestWithParam<Case> {};

TEST_P(OperatorTable, EveryOperandGivesItsClassShapeAndValues)
{
    const Case& of = GetParam();
    for (const auto& [stem, classes] : kResultClasses.at(of.receiver))
        for (std::size_t kind = 0; kind < std::size(kKinds); ++kind)
            for (const auto& shape_a : kShapes)
                for (const auto& shape_b : kShapes) {
                    const bool lone_a = of.receiver == "z";
                    const bool lone_b =
                        kKinds[kind] == Kind::Num || kKinds[kind] == Kind::ComplexNum;
                    if (lone_a && shape_a != kShapes[0]) continue;
                    if (lone_b && shape_b != kShapes[0]) continue;
                    Check(of, stem, kind, shape_a, shape_b);
                }
}

INSTANTIATE_TEST_SUITE_P(Receiver, OperatorTable,
                         testing::Values(Case{"r", Kind::R}, Case{"L", Kind::L}, Case{"c", Kind::C},
                                         Case{"mc", Kind::MC}, Case{"z", Kind::ComplexNum}),
                         [](const auto& named) { return "tag_" + named.param.receiver; });

TEST(OperatorTable, MtimesLongNumStaysWhole)
{
    const Ref<clsLong> result = LongMatrix({{1, -2}, {3, 4}})->MtimesLongNum(5);
    EXPECT_EQ(test::Values(*result), (std::vector<std::int32_t>{5, 15, -10, 20}));
    EXPECT_EQ(result->TypeOfMatrix, "L");
}

} // namespace
} // namespace lumora::test
