#include "cli/CommandRun.h"
#include "numeric/Matrices.h"
#include "numeric/files/ArrFile.h"
#include "support/LittleEndian.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <csignal>
#include <fcntl.h>
#include <limits>
#include <sys/resource.h>
#include <unistd.h>

namespace lumora::test {
namespace {

using Json = nlohmann::json;
using Names = std::vector<std::string>;

class ArrCommand : public testing::Test {
protected:
    CommandResult Run(
        Names words, const std::function<void()>& before = [] {}) const
    {
        words.insert(words.begin(), "arr");
        return Lumora(std::move(words), {folder_.Path().string(), before});
    }

    /// What a run prints that must succeed and complain of nothing.
    std::string Printed(const Names& words) const
    {
        const CommandResult result = Run(words);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err, "");
        return result.out;
    }

    /// The one line of complaint of a run that must fail and print nothing.
    std::string Complaint(const Names& words, int status = 1) const
    {
        const CommandResult result = Run(words);
        EXPECT_EQ(result.status, status) << result.out;
        EXPECT_EQ(result.out, "");
        return result.err;
    }

    std::string Kept(const std::string& name, const Variant& value,
                     const std::string& type_name = {}) const
    {
        WriteArrTo(folder_ / name, value, type_name);
        return name;
    }

    /// The table that `text` makes, as the complaint of from-csv or nothing.
    std::string Refused(const std::string& text, const std::string& as) const
    {
        folder_.Write("t.csv", text);
        const std::string line = Complaint({"from-csv", "t.csv", "t.arr", "--as", as});
        EXPECT_EQ(NamesIn(folder_.Path().string()), Names{"t.csv"});
        return line;
    }

    TempFolder folder_;
};

TEST_F(ArrCommand, ShowsClassSizesAndElements)
{
    Kept("m.arr", RealMatrix({{1, 2.5}, {-30, 4}}));
    EXPECT_EQ(Printed({"show", "m.arr"}), "m.arr: clsMatrix, 2 by 2\n"
                                          "    1.0000    2.5000\n"
                                          "  -30.0000    4.0000\n");
    Kept("l.arr", LongMatrix({{1, -20, 3}}));
    EXPECT_EQ(Printed({"show", "l.arr"}), "l.arr: clsLong, 1 by 3\n"
                                          "    1  -20    3\n");
    Kept("o.arr", LongMatrix({{0, 0}, {0, -1}}));
    EXPECT_EQ(Printed({"show", "o.arr"}), "o.arr: clsLong, 2 by 2\n"
                                          "   0   0\n"
                                          "   0  -1\n");
    Kept("z.arr", ComplexMatrix({{{1, -2}, {3, 4}}}));
    EXPECT_EQ(Printed({"show", "z.arr"}), "z.arr: clsComplexMatrix, 1 by 2\n"
                                          "   1.0 - 2.0i   3.0 + 4.0i\n");
    Kept("w.arr", RealMatrix({{1, -20, 300}}));
    EXPECT_EQ(Printed({"show", "w.arr"}), "w.arr: clsMatrix, 1 by 3\n"
                                          "     1.0   -20.0   300.0\n");
    Kept("s.arr", TextMatrix({{"Zoë", "b"}, {"", "long"}}));
    EXPECT_EQ(Printed({"show", "s.arr"}), "s.arr: clsString, 2 by 2\n"
                                          "  Zoë  b\n"
                                          "       long\n");
    Kept("b.arr", Row<std::uint8_t>({7, 255}), "byte");
    EXPECT_EQ(Printed({"show", "b.arr"}), "b.arr: array of byte, 1 by 2\n"
                                          "     7   255\n");
}

TEST_F(ArrCommand, CutsALargeTableInTheMiddleUnlessAllIsWanted)
{
    const Ref<clsLong> m = MakeRef<clsLong>();
    m->Initial_matrix(25, 11);
    for (std::int32_t i = 1; i <= 25; ++i)
        for (std::int32_t j = 1; j <= 11; ++j)
            m->Real(i, j, 100 * i + j);
    Kept("m.arr", m);
    const std::string cut = Printed({"show", "m.arr"});
    EXPECT_NE(cut.find("  1001   1002   1003   1004  ...   1008   1009   1010   1011\n  ...\n"
                       "   1601"),
              std::string::npos)
        << cut;
    EXPECT_TRUE(cut.ends_with("2511\nleft out: 5 rows and 3 columns; --all shows them\n"));
    const std::string all = Printed({"show", "m.arr", "--all"});
    EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 26);
    EXPECT_NE(all.find("   1305   1306   1307"), std::string::npos);
    EXPECT_EQ(all.find("..."), std::string::npos);
    EXPECT_EQ(Printed({"show", "m.arr"}), cut); // and again
}

TEST_F(ArrCommand, CutsALongTextInTheMiddleUnlessAllIsWanted)
{
    const std::string whole = std::string(30, 'a') + "é" + std::string(30, 'b');
    Kept("s.arr", TextMatrix({{whole, "x\ny"}}));
    const std::string cut = Printed({"show", "s.arr"});
    EXPECT_EQ(cut, "s.arr: clsString, 1 by 2\n  " + std::string(19, 'a') + "..." +
                       std::string(18, 'b') + "  x?y\n");
    EXPECT_EQ(Printed({"show", "s.arr", "--all"}),
              "s.arr: clsString, 1 by 2\n  " + whole + "  x?y\n");
}

TEST_F(ArrCommand, ShowsTheSameToAProgram)
{
    const double inf = std::numeric_limits<double>::infinity();
    Kept("m.arr", RealMatrix({{0.1, inf}, {-inf, std::nan("")}}));
    const Json expected = {{"results",
                            {{{"file", "m.arr"},
                              {"notes", Json::array()},
                              {"ok", true},
                              {"class", "clsMatrix"},
                              {"rows", 2},
                              {"columns", 2},
                              {"elements", {{0.1, "Inf"}, {"-Inf", "NaN"}}}}}}};
    EXPECT_EQ(Json::parse(Printed({"show", "m.arr", "--json"})), expected);
    Kept("z.arr", ComplexMatrix({{{1, -2}}}));
    EXPECT_EQ(Json::parse(Printed({"show", "z.arr", "--json"}))["results"][0]["elements"],
              Json({{{{"re", 1.0}, {"im", -2.0}}}}));
    Kept("s.arr", Row<std::string>({"Zoë", ""}), "string");
    EXPECT_EQ(Json::parse(Printed({"show", "s.arr", "--json"}))["results"][0]["elements"],
              Json::array({Json::array({"Zoë", ""})}));
}

TEST_F(ArrCommand, WritesNumbersThatReadBackToTheBit)
{
    Kept("m.arr", RealMatrix({{0.1, 1e300, -0.0}, {1.0 / 3.0, 5e-324, 1e22}}));
    EXPECT_EQ(Printed({"to-csv", "m.arr"}), "0.1,1e+300,-0\n0.3333333333333333,5e-324,1e+22\n");
    EXPECT_EQ(Printed({"to-csv", "m.arr", "m.csv"}), "m.arr -> m.csv: clsMatrix, 2 by 3\n");
    EXPECT_EQ(Printed({"from-csv", "m.csv", "n.arr", "--as", "matrix"}),
              "m.csv -> n.arr: clsMatrix, 2 by 3\n");
    EXPECT_EQ(BytesOf(folder_ / "n.arr"), BytesOf(folder_ / "m.arr"));
}

TEST_F(ArrCommand, TakesEveryClassToATableAndBack)
{
    const double inf = std::numeric_limits<double>::infinity();
    const struct {
        const char* as;
        Variant value;
    } tables[] = {
        {"matrix", RealMatrix({{inf}, {-inf}, {7}})},
        {"long", LongMatrix({{2147483647, -2147483647 - 1}, {0, -1}})},
        {"string", TextMatrix({{"a,b", "\"q\""}, {"", " blank "}, {"x\ny", "Ÿ€\r\n"}})},
        {"string", TextMatrix({{""}, {""}})},
        {"complex", ComplexMatrix({{{1.5, -2}, {-0.0, -0.0}}, {{inf, -inf}, {1e-300, 1e300}}})},
    };
    for (const auto& [as, value] : tables) {
        Kept("a.arr", value);
        Printed({"to-csv", "a.arr", "a.csv", "--force"});
        Printed({"from-csv", "a.csv", "b.arr", "--as", as, "--force"});
        EXPECT_EQ(BytesOf(folder_ / "b.arr"), BytesOf(folder_ / "a.arr")) << as;
    }
}

TEST_F(ArrCommand, WritesPlainArraysAsTables)
{
    Kept("c.arr", Row<Currency>({{12345}, {-5}, {-20000}}), "currency");
    EXPECT_EQ(Printed({"to-csv", "c.arr"}), "1.2345,-0.0005,-2.0000\n");
    Kept("d.arr", Row<Date>({{1.25}}), "data");
    EXPECT_EQ(Printed({"to-csv", "d.arr"}), "1.25\n");
    Kept("f.arr", Row({0.1F}), "single");
    EXPECT_EQ(Printed({"to-csv", "f.arr"}), "0.1\n");
    Kept("b.arr", Table<std::uint8_t>({{1, 2}, {3, 4}}), "byte");
    EXPECT_EQ(Printed({"to-csv", "b.arr"}), "1,2\n3,4\n");
}

TEST_F(ArrCommand, ReadsTablesOfOtherPrograms)
{
    folder_.Write("t.csv", "\xEF\xBB\xBF 1 ,+2\r\n\r\n\"3\",4e0\r\n\n");
    Printed({"from-csv", "t.csv", "t.arr", "--as", "long"});
    EXPECT_EQ(Values(*ReadArrFrom(folder_ / "t.arr").As<Ref<clsLong>>()),
              (std::vector<std::int32_t>{1, 3, 2, 4}));
    folder_.Write("z.csv", "i,1 - 2i,nan,-inf+i");
    Printed({"from-csv", "z.csv", "z.arr", "--as", "complex"});
    EXPECT_EQ(Printed({"to-csv", "z.arr"}), "0+1i,1-2i,NaN+0i,-Inf+1i\n");
}

TEST_F(ArrCommand, SaysWhereATableIsWrong)
{
    const std::string t = "lumora: t.csv: ";
    EXPECT_EQ(Refused("1,2\n3,x\n", "matrix"),
              t + "line 2, cell 2: \"x\" is no number; mend it, or choose --as string\n");
    EXPECT_EQ(Refused("1,2\n\n3\n", "matrix"),
              t + "line 3 has 1 cells, and line 1 has 2; make them even\n");
    EXPECT_EQ(Refused("1,\n", "matrix"),
              t + "line 1, cell 2: \"\" is no number; mend it, or choose --as string\n");
    EXPECT_EQ(Refused("1.5\n", "long"),
              t + "line 1, cell 1: \"1.5\" is no whole number; round it, or choose --as matrix\n");
    for (const char* number : {"2147483648", "-2147483649", "1e20", "Inf"})
        EXPECT_EQ(Refused(number, "long"), t + "line 1, cell 1: \"" + number +
                                               "\" does not fit 32 bits; choose --as matrix\n");
    EXPECT_EQ(Refused("1+\n", "complex"), t + "line 1, cell 1: \"1+\" is no complex number; write "
                                              "it as 1-2i, or choose --as string\n");
    EXPECT_EQ(Refused("\"a\nb\",c\nd,\"\n", "string"),
              t + "line 3: a quote is opened and not closed; close it\n");
    EXPECT_EQ(Refused("\"a\"b\n", "string"),
              t + "line 1: something follows a closing quote; double the quotes inside a text\n");
    EXPECT_EQ(Refused("fine,Жук\n", "string"),
              t + "line 1, cell 2: \"Жук\" has a character that a matrix file cannot hold (it has "
                  "those of Windows-1252, and the table must be UTF-8); write it otherwise\n");
    EXPECT_EQ(Refused(std::string(65536, 'x'), "string"),
              t + "line 1, cell 1: \"" + std::string(40, 'x') +
                  "\" is longer than the 65535 bytes that a text in a matrix file can have; "
                  "shorten it\n");
    EXPECT_EQ(Refused("\n\r\n", "matrix"), t + "holds only empty lines; there is no table in it\n");
    EXPECT_EQ(Refused("", "matrix"), t + "is empty; there is no table in it\n");
}

TEST_F(ArrCommand, SaysWhatIsWrongWithAMatrixFile)
{
    const auto complaint = [&](const std::string& bytes) {
        folder_.Write("m.arr", bytes);
        const std::string line = Complaint({"show", "m.arr"});
        EXPECT_EQ(Complaint({"to-csv", "m.arr", "m.csv"}), line);
        EXPECT_EQ(Complaint({"to-csv", "m.arr"}), line);
        EXPECT_EQ(NamesIn(folder_.Path().string()), Names{"m.arr"});
        return line;
    };
    const std::string m = "lumora: m.arr: ";
    EXPECT_EQ(complaint("no matrix file"), m + "is no matrix file: its tag or letter is unknown\n");
    EXPECT_EQ(complaint(""), m + "is empty; there is no matrix in it\n");
    EXPECT_EQ(complaint(Le32(10000) + Le32(10000) + Le32(3) + LeDouble(1)),
              m + "ends long before its sizes say; it is damaged or no matrix file\n");
    EXPECT_EQ(complaint(Le32(0) + Le32(1) + Le32(3) + LeDouble(1)),
              m + "its sizes are not above zero; it is damaged or no matrix file\n");
    EXPECT_EQ(Complaint({"show", "x.arr"}),
              "lumora: x.arr: there is no such file; check the name\n");
    EXPECT_EQ(Complaint({"show", "."}), "lumora: .: is a folder; name the files in it\n");
}

TEST_F(ArrCommand, ShowsWhatIsThereOfAFileThatIsCutShort)
{
    const std::string real = Le32(3) + Le32(1) + Le32(3) + LeDouble(1.5) + LeDouble(2) + "cut";
    const std::string texts = Le32(1) + Le32(3) + Le32(5) + Le16(2) + "do" + Le16(4) + "re";
    const std::string complex =
        Le32(2) + Le32(1) + Le32(4) + LeDouble(1) + LeDouble(2) + LeDouble(3);
    const struct {
        std::string bytes, shown, csv, note;
    } files[] = {
        {real, "clsMatrix, 3 by 1\n   1.5000\n   2.0000\n   0.0000\n", "1.5\n2\n0\n",
         "2 of 3 numbers; the others are taken as 0"},
        {texts, "clsString, 1 by 3\n  do  re\n", "do,re,\"\"\n",
         "1 of 3 texts; what is missing is left empty"},
        {complex, "clsComplexMatrix, 2 by 1\n   1.0 + 3.0i\n   2.0 + 0.0i\n", "1+3i\n2+0i\n",
         "3 of 4 numbers, real parts first; the others are taken as 0"},
    };
    for (const auto& [bytes, shown, csv, note] : files) {
        folder_.Write("m.arr", bytes);
        const std::string text = "the file is cut short: it holds " + note;
        const std::string line = "lumora: m.arr: " + text + "\n";
        const CommandResult show = Run({"show", "m.arr"});
        EXPECT_EQ(show.status, 0);
        EXPECT_EQ(show.out, "m.arr: " + shown);
        EXPECT_EQ(show.err, line);
        const CommandResult table = Run({"to-csv", "m.arr"});
        EXPECT_EQ(table.status, 0);
        EXPECT_EQ(table.out, csv);
        EXPECT_EQ(table.err, line);
        const Json result = Json::parse(Printed({"show", "m.arr", "--json"}))["results"][0];
        EXPECT_EQ(result["notes"], Json::array({text}));
        EXPECT_EQ(result["ok"], true);
    }
}

TEST_F(ArrCommand, OpensExactlyTheFileNamed)
{
    Kept("keys", LongMatrix({{1}}));
    Kept("a.b.tmp", LongMatrix({{2}}));
    EXPECT_EQ(Printed({"to-csv", "keys"}), "1\n");
    EXPECT_EQ(Printed({"to-csv", "a.b.tmp"}), "2\n");
    folder_.Write("t.csv", "3");
    Printed({"from-csv", "t.csv", "plain", "--as", "long"});
    EXPECT_EQ(NamesIn(folder_.Path().string()), (Names{"a.b.tmp", "keys", "plain", "t.csv"}));
}

TEST_F(ArrCommand, KeepsAFileThatExistsUnlessForced)
{
    Kept("m.arr", LongMatrix({{1}}));
    folder_.Write("t.csv", "2");
    const std::string exists = " exists already; give another name, or --force to replace it\n";
    EXPECT_EQ(Complaint({"from-csv", "t.csv", "m.arr", "--as", "long"}),
              "lumora: t.csv: m.arr" + exists);
    EXPECT_EQ(Complaint({"to-csv", "m.arr", "t.csv"}), "lumora: m.arr: t.csv" + exists);
    EXPECT_EQ(BytesOf(folder_ / "t.csv"), "2");
    Printed({"to-csv", "m.arr", "t.csv", "--force"});
    EXPECT_EQ(BytesOf(folder_ / "t.csv"), "1\n");
}

TEST_F(ArrCommand, LeavesTheOldFileWhereTheTableIsWrong)
{
    Kept("m.arr", LongMatrix({{1}}));
    const std::string before = BytesOf(folder_ / "m.arr");
    folder_.Write("t.csv", "1\nx\n");
    Complaint({"from-csv", "t.csv", "m.arr", "--as", "long", "--force"});
    EXPECT_EQ(BytesOf(folder_ / "m.arr"), before);
    EXPECT_EQ(NamesIn(folder_.Path().string()), (Names{"m.arr", "t.csv"}));
}

TEST_F(ArrCommand, LeavesNothingBehindOnAFullDisk)
{
    const Ref<clsMatrix> m = MakeRef<clsMatrix>();
    m->Initial_matrix(1, 5000);
    Kept("m.arr", m);
    folder_.Write("t.csv", std::string(5000, '1'));
    const auto small = [] {
        const rlimit limit = {2048, 2048};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    const Names before = NamesIn(folder_.Path().string());
    for (const Names& words : {Names{"to-csv", "m.arr", "new.csv"},
                               Names{"from-csv", "t.csv", "new.arr", "--as", "string"}}) {
        const CommandResult result = Run(words, small);
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find("the result does not fit"), std::string::npos) << result.err;
        EXPECT_EQ(NamesIn(folder_.Path().string()), before);
    }
}

TEST_F(ArrCommand, LeavesNothingBehindWhenItIsStopped)
{
    // Large enough that the signal comes while the table is read.
    std::string text;
    for (int k = 0; k < 400'000; ++k)
        text += "1,2,3,4,5\n";
    folder_.Write("t.csv", text);
    Names words = LumoraWords({"arr", "from-csv", "t.csv", "m.arr", "--as", "complex"});
    RunningCommand command(words, {folder_.Path().string()});
    while (NamesIn(folder_.Path().string()).size() == 1) {
    }
    command.Signal(SIGINT);
    const CommandResult result = command.Wait();
    EXPECT_EQ(result.status, 130);
    EXPECT_EQ(result.err, "lumora: stopped; nothing was written\n");
    EXPECT_EQ(NamesIn(folder_.Path().string()), Names{"t.csv"});
}

TEST_F(ArrCommand, TellsAProgramHowItWent)
{
    folder_.Write("t.csv", "1,2\n");
    const Json made =
        Json::parse(Printed({"from-csv", "t.csv", "m.arr", "--as", "long", "--json"}));
    EXPECT_EQ(made, Json({{"results",
                           {{{"file", "t.csv"},
                             {"output", "m.arr"},
                             {"notes", Json::array()},
                             {"ok", true},
                             {"class", "clsLong"},
                             {"rows", 1},
                             {"columns", 2}}}}}));
    const CommandResult failed = Run({"to-csv", "x.arr", "x.csv", "--json"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.err, "");
    EXPECT_EQ(Json::parse(failed.out),
              Json({{"results",
                     {{{"file", "x.arr"},
                       {"output", "x.csv"},
                       {"notes", Json::array()},
                       {"ok", false},
                       {"error", "there is no such file; check the name"}}}}}));
}

TEST_F(ArrCommand, WrongUsageStartsNothing)
{
    folder_.Write("t.csv", "1");
    const struct {
        Names words;
        const char* told;
    } usages[] = {
        {{}, "say what to do: lumora arr show, to-csv or from-csv"},
        {{"look", "t.csv"}, "say what to do: lumora arr show, to-csv or from-csv"},
        {{"show"}, "name a matrix file"},
        {{"show", "a", "b"}, "too many names"},
        {{"to-csv", "a", "b", "c"}, "too many names"},
        {{"to-csv", "a", "--json"}, "with --json the table needs a file of its own: name it"},
        {{"from-csv", "t.csv", "--as", "long"}, "name a table and the matrix file to make of it"},
        {{"from-csv", "t.csv", "m.arr"},
         "say what to make of the table: --as matrix, long, string or complex"},
        {{"from-csv", "t.csv", "m.arr", "--as", "byte"},
         "say what to make of the table: --as matrix, long, string or complex"},
        {{"from-csv", "t.csv", "./t.csv", "--as", "long", "--force"},
         "./t.csv is the input as well; give the result another name"},
    };
    for (const auto& [words, told] : usages)
        EXPECT_EQ(Complaint(words, 2), std::string("lumora: ") + told +
                                           "\nlumora: lumora help and lumora help COMMAND tell "
                                           "more\n");
    EXPECT_EQ(BytesOf(folder_ / "t.csv"), "1");
    EXPECT_EQ(NamesIn(folder_.Path().string()), Names{"t.csv"});
}

TEST_F(ArrCommand, ReportsAStandardOutputThatIsFull)
{
    Kept("m.arr", LongMatrix({{1}}));
    for (const char* action : {"show", "to-csv"}) {
        const CommandResult result =
            Run({action, "m.arr"}, [] { dup2(open("/dev/full", O_WRONLY), STDOUT_FILENO); });
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err, "lumora: the answer could not be written to standard output\n");
    }
}

} // namespace
} // namespace lumora::test
