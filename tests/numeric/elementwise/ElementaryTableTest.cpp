#include "numeric/Matrices.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>

namespace lumora::test {
namespace {

struct Function {
    Variant (*of_floats)(const clsMatrix&);
    Variant (*of_longs)(const clsLong&);
    template <class Lambda>
    // NOLINTNEXTLINE(google-explicit-constructor): a table of lambdas
    Function(Lambda lambda) : of_floats(lambda), of_longs(lambda)
    {
    }
};

// clang-format off
const std::map<std::string, Function> kFunctions = {
    {"SinM",   [](const auto& m) -> Variant { return m.SinM(); }},
    {"CosM",   [](const auto& m) -> Variant { return m.CosM(); }},
    {"TanM",   [](const auto& m) -> Variant { return m.TanM(); }},
    {"AtanM",  [](const auto& m) -> Variant { return m.AtanM(); }},
    {"ExpM",   [](const auto& m) -> Variant { return m.ExpM(); }},
    {"SqrM",   [](const auto& m) -> Variant { return m.SqrM(); }},
    {"AbsM",   [](const auto& m) -> Variant { return m.AbsM(); }},
    {"CotM",   [](const auto& m) -> Variant { return m.CotM(); }},
    {"SecM",   [](const auto& m) -> Variant { return m.SecM(); }},
    {"CscM",   [](const auto& m) -> Variant { return m.CscM(); }},
    {"SinhM",  [](const auto& m) -> Variant { return m.SinhM(); }},
    {"CoshM",  [](const auto& m) -> Variant { return m.CoshM(); }},
    {"SechM",  [](const auto& m) -> Variant { return m.SechM(); }},
    {"TanhM",  [](const auto& m) -> Variant { return m.TanhM(); }},
    {"CothM",  [](const auto& m) -> Variant { return m.CothM(); }},
    {"CschM",  [](const auto& m) -> Variant { return m.CschM(); }},
    {"AsinM",  [](const auto& m) -> Variant { return m.AsinM(); }},
    {"AcosM",  [](const auto& m) -> Variant { return m.AcosM(); }},
    {"AsecM",  [](const auto& m) -> Variant { return m.AsecM(); }},
    {"AcscM",  [](const auto& m) -> Variant { return m.AcscM(); }},
    {"AsinhM", [](const auto& m) -> Variant { return m.AsinhM(); }},
    {"AcschM", [](const auto& m) -> Variant { return m.AcschM(); }},
    {"AcoshM", [](const auto& m) -> Variant { return m.AcoshM(); }},
    {"AsechM", [](const auto& m) -> Variant { return m.AsechM(); }},
    {"AtanhM", [](const auto& m) -> Variant { return m.AtanhM(); }},
    {"AcothM", [](const auto& m) -> Variant { return m.AcothM(); }},
    {"AcotM",  [](const auto& m) -> Variant { return m.AcotM(); }},
    {"LogM",   [](const auto& m) -> Variant { return m.LogM(); }},
    {"Log2M",  [](const auto& m) -> Variant { return m.Log2M(); }},
    {"Log10M", [](const auto& m) -> Variant { return m.Log10M(); }},
    {"LogBaseM", [](const auto& m) -> Variant { return m.LogBaseM(3.0); }},
    {"Power",    [](const auto& m) -> Variant { return m.Power(2.5); }},
};
// clang-format on

/// The only element of a 1 by 1 result, and whether its class is the complex one.
struct Answer {
    Complex value;
    bool is_complex;
};

Answer AnswerOf(const Variant& result)
{
    if (result.Is<Ref<clsMatrix>>()) return {Values(*result.As<Ref<clsMatrix>>()).at(0), false};
    return {Values(*result.As<Ref<clsComplexMatrix>>()).at(0), true};
}

struct TableRow {
    std::string member;
    double argument, re, im, bound;
};

std::vector<TableRow> Table()
{
    std::ifstream file(LUMORA_SOURCE_DIR "/tests/numeric/octave/elementary.txt");
    std::vector<TableRow> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#')) continue;
        std::istringstream words(line);
        std::string argument, re, im, bound;
        TableRow row;
        words >> row.member >> argument >> re >> im >> bound;
        row.argument = std::strtod(argument.c_str(), nullptr);
        row.re = std::strtod(re.c_str(), nullptr);
        row.im = std::strtod(im.c_str(), nullptr);
        row.bound = std::strtod(bound.c_str(), nullptr);
        rows.push_back(row);
    }
    return rows;
}

TEST(ElementaryTable, HasRowsOfEveryFunction)
{
    std::set<std::string> members;
    for (const TableRow& row : Table())
        members.insert(row.member);
    for (const auto& [member, function] : kFunctions)
        EXPECT_TRUE(members.contains(member)) << member;
}

TEST(ElementaryTable, IsMetWithinTheBoundOfEachFormula)
{
    MessageRecorder messages;
    for (const TableRow& row : Table()) {
        SCOPED_TRACE(row.member + " of " + std::to_string(row.argument));
        const Function function = kFunctions.at(row.member);
        const Answer answer = AnswerOf(function.of_floats(*RealMatrix({{row.argument}})));
        EXPECT_EQ(answer.is_complex, row.im != 0.0);
        EXPECT_NEAR(answer.value.real(), row.re, row.bound);
        EXPECT_NEAR(answer.value.imag(), row.im, row.bound);
    }
    EXPECT_EQ(messages.shown, Shown());
}

TEST(ElementaryTable, IsMetByWholeNumbersWithTheSameBits)
{
    MessageRecorder messages;
    int compared = 0;
    for (const TableRow& row : Table()) {
        if (std::abs(row.argument) > 1e9 || row.argument != std::round(row.argument)) continue;
        SCOPED_TRACE(row.member + " of " + std::to_string(row.argument));
        const Function function = kFunctions.at(row.member);
        const auto whole = static_cast<std::int32_t>(row.argument);
        const Answer answer = AnswerOf(function.of_longs(*LongMatrix({{whole}})));
        const Answer of_float = AnswerOf(function.of_floats(*RealMatrix({{row.argument}})));
        EXPECT_EQ(answer.is_complex, of_float.is_complex);
        EXPECT_EQ(answer.value, of_float.value);
        ++compared;
    }
    EXPECT_GT(compared, 100);
    EXPECT_EQ(messages.shown, Shown());
}

} // namespace
} // namespace lumora::test
