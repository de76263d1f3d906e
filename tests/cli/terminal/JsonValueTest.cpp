#include "cli/terminal/JsonValue.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumora {
namespace {

TEST(JsonValue, IsWrittenAsItsKind)
{
    EXPECT_EQ(JsonValue().Line(), "null");
    EXPECT_EQ(JsonValue(true).Line(), "true");
    EXPECT_EQ(JsonValue(std::int16_t{-7}).Line(), "-7");
    EXPECT_EQ(JsonValue(std::numeric_limits<std::int64_t>::min()).Line(), "-9223372036854775808");
    EXPECT_EQ(JsonValue(std::size_t{12}).Line(), "12");
    EXPECT_EQ(JsonValue(0.1).Line(), "0.1");
    EXPECT_EQ(JsonValue(2.0).Line(), "2.0") << "a number that may have a fraction shows it";
    EXPECT_EQ(JsonValue("say \"a\"\n").Line(), R"("say \"a\"\n")");
    EXPECT_EQ(JsonValue(std::vector<std::string>{"a", "b"}).Line(), R"(["a","b"])");
    EXPECT_EQ(JsonValue::List().Line(), "[]");
    EXPECT_EQ(JsonValue::Object().Line(), "{}");
}

TEST(JsonValue, KeepsItsFieldsInTheOrderInWhichTheyWereSet)
{
    JsonValue object = {{"z", 1}, {"a", "x"}};
    object.Set("m", 2.5);
    object.Set("z", false);
    object.SetAll({{"b", {}}, {"a", "y"}});
    EXPECT_EQ(object.Line(), R"({"z":false,"a":"y","m":2.5,"b":null})");
}

TEST(JsonValue, StandsInOthersAsItIs)
{
    JsonValue list = JsonValue::List();
    list.Append({{"k", 1}});
    list.Append(JsonValue::List());
    const JsonValue document = {{"results", list}};
    list.Append(3);
    EXPECT_EQ(document.Line(), R"({"results":[{"k":1},[]]})") << "a copy is its own";
    EXPECT_EQ(document.Lines(),
              "{\n  \"results\": [\n    {\n      \"k\": 1\n    },\n    []\n  ]\n}");
}

TEST(JsonValue, ReadsBackWhatItHasWritten)
{
    for (const char* line : {R"({"z":[1,-2.5,1e-07,null],"a":{"b":"ä\\"}})", "18446744073709551615",
                             "0.30000000000000004", "1.0"})
        EXPECT_EQ(JsonValue::FromLine(line).Line(), line);
}

TEST(JsonValue, ReplacesBytesThatAreNoText)
{
    EXPECT_EQ(JsonValue("a\xff.wav").Line(), "\"a\xEF\xBF\xBD.wav\"");
    EXPECT_EQ(Utf8Text("a\xff\"\n"), "a\xEF\xBF\xBD\"\n");
}

} // namespace
} // namespace lumora
