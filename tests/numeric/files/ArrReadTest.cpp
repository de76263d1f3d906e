#include "numeric/files/ArrFiles.h"
#include "support/Limits.h"
#include "support/Raised.h"

#include <sys/resource.h>

namespace lumora::test {
namespace {

using ReadArr = ArrFiles;

constexpr std::int64_t kMost = 2147483647;

/// The text of the run-time error that `action` raises.
template <class Action> std::string Told(Action&& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return {};
}

const clsMatrix& Real(const Variant& value)
{
    return *value.As<Ref<clsMatrix>>();
}

TEST_F(ReadArr, MakesTheClassThatTheTagNames)
{
    const Variant real = Read(ArrHead(2, 2, 3) + Doubles({1, 3, 2, 4}));
    EXPECT_EQ(ShapeOf(Real(real)), Sized(2, 2));
    EXPECT_EQ(Values(Real(real)), (std::vector<double>{1, 3, 2, 4}));
    EXPECT_EQ(Real(real).Name, "");

    const Variant whole = Read(ArrHead(1, 3, 7) + Longs({5, -6, 7}));
    EXPECT_EQ(ShapeOf(*whole.As<Ref<clsLong>>()), Sized(1, 3));
    EXPECT_EQ(Values(*whole.As<Ref<clsLong>>()), (std::vector<std::int32_t>{5, -6, 7}));

    const Variant complex = Read(ArrHead(2, 1, 4) + Doubles({1, 2}) + Doubles({3, 4}));
    EXPECT_EQ(ShapeOf(*complex.As<Ref<clsComplexMatrix>>()), Sized(2, 1));
    EXPECT_EQ(Values(*complex.As<Ref<clsComplexMatrix>>()), (std::vector<Complex>{{1, 3}, {2, 4}}));

    const Variant texts = Read(ArrHead(2, 2, 5) + Texts({"La", "", "S\xF6l", "\x80"}));
    EXPECT_EQ(ShapeOf(*texts.As<Ref<clsString>>()), Sized(2, 2));
    EXPECT_EQ(Values(*texts.As<Ref<clsString>>()),
              (std::vector<std::string>{"La", "", "Söl", "€"}));
}

TEST_F(ReadArr, MakesThePlainArrayThatTheLastByteNames)
{
    const std::string row = ArrHead(1, 2, 100);
    EXPECT_EQ(Read(row + Doubles({1, 2}) + "r"), Variant(Row({1.0, 2.0})));
    EXPECT_EQ(Read(row + Texts({"a", "\xDF"}) + "5"), Variant(Row<std::string>({"a", "ß"})));
    EXPECT_EQ(Read(row + Le64(1) + Le64(-2) + "c"), Variant(Row<Currency>({{1}, {-2}})));
    EXPECT_EQ(Read(row + Doubles({1.5, 2}) + "d"), Variant(Row<Date>({{1.5}, {2}})));
    EXPECT_EQ(Read(row + Longs({1, -2}) + "l"), Variant(Row<std::int32_t>({1, -2})));
    EXPECT_EQ(Read(row + LeSingle(1.5F) + LeSingle(2) + "s"), Variant(Row({1.5F, 2.0F})));
    EXPECT_EQ(Read(row + Shorts({1, -2}) + "i"), Variant(Row<std::int16_t>({1, -2})));
    EXPECT_EQ(Read(row + Raw({7, 255}) + "b"), Variant(Row<std::uint8_t>({7, 255})));
}

TEST_F(ReadArr, GivesAPlainArrayTwoDimensionsUnlessItIsOneRow)
{
    EXPECT_EQ(Read(ArrHead(2, 3, 100) + Raw({1, 4, 2, 5, 3, 6}) + "b"),
              Variant(Table<std::uint8_t>({{1, 2, 3}, {4, 5, 6}})));
    EXPECT_EQ(Read(ArrHead(2, 1, 100) + Raw({1, 2}) + "b"),
              Variant(Table<std::uint8_t>({{1}, {2}})));
}

TEST_F(ReadArr, AnswersWhatAFileHoldsWhereAskedForItsKind)
{
    const struct {
        std::string bytes;
        const char* name;
    } kinds[] = {
        {ArrHead(9, 9, 3), "clsMatrix"},        {ArrHead(9, 9, 4), "clsComplexMatrix"},
        {ArrHead(9, 9, 5), "clsString"},        {ArrHead(9, 9, 7), "clsLong"},
        {ArrHead(9, 9, 100) + "r", "double"},   {ArrHead(9, 9, 100) + "5", "string"},
        {ArrHead(9, 9, 100) + "c", "currency"}, {ArrHead(9, 9, 100) + "d", "date"},
        {ArrHead(9, 9, 100) + "l", "long"},     {ArrHead(9, 9, 100) + "s", "single"},
        {ArrHead(9, 9, 100) + "i", "integer"},  {ArrHead(9, 9, 100) + "b", "byte"},
    };
    const Variant asks[] = {1.0, std::string(), std::int16_t{0}, Row({1.0})};
    for (const auto& [bytes, name] : kinds)
        for (const Variant& ask : asks)
            EXPECT_EQ(Read(bytes, {}, {}, ask), Variant(std::string(name)));
}

TEST_F(ReadArr, IsEmptyForUnknownTagsAndLetters)
{
    for (const Variant& ask : {Variant(), Variant(1.0)}) {
        for (const int tag : {0, 1, 2, 6, 8, 99, 101, -3, -999})
            EXPECT_TRUE(Read(ArrHead(1, 1, tag) + Doubles({1}), {}, {}, ask).IsEmpty()) << tag;
        for (const char* letter : {"L", "R", "x", "t", "\xFF"})
            EXPECT_TRUE(Read(ArrHead(1, 1, 100) + Doubles({1}) + letter, {}, {}, ask).IsEmpty());
        EXPECT_TRUE(Read(ArrHead(1, 1, 100), {}, {}, ask).IsEmpty());
    }
    EXPECT_EQ(messages_.Take(), Shown{});
}

TEST_F(ReadArr, IsEmptyForAFileThatEndsAheadOfItsTag)
{
    const std::string whole = ArrHead(1, 1, 3);
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_TRUE(Read(whole.substr(0, length)).IsEmpty()) << length;
    std::string name = folder_ / "objects.arr";
    WriteArr(name, ObjectMatrix({{{1, 2}}}), "");
    EXPECT_TRUE(lumora::ReadArr(name).IsEmpty());
}

TEST_F(ReadArr, ReadsARangeOfRows)
{
    const std::string bytes = ArrHead(4, 2, 3) + Doubles({1, 2, 3, 4, 5, 6, 7, 8});
    const Variant middle = Read(bytes, 2, 3);
    EXPECT_EQ(ShapeOf(Real(middle)), Sized(2, 2));
    EXPECT_EQ(Values(Real(middle)), (std::vector<double>{2, 3, 6, 7}));
    const Variant one = Read(bytes, 4, 4);
    EXPECT_EQ(ShapeOf(Real(one)), Sized(1, 2));
    EXPECT_EQ(Values(Real(one)), (std::vector<double>{4, 8}));
    EXPECT_EQ(Values(Real(Read(bytes, 3))), (std::vector<double>{3, 4, 7, 8}));
    EXPECT_EQ(Values(Real(Read(bytes, {}, 1))), (std::vector<double>{1, 5}));
}

TEST_F(ReadArr, ReadsARangeOfColumnsOfASingleRow)
{
    const Variant part = Read(ArrHead(1, 5, 3) + Doubles({1, 2, 3, 4, 5}), 2, 4);
    EXPECT_EQ(ShapeOf(Real(part)), Sized(1, 3));
    EXPECT_EQ(Values(Real(part)), (std::vector<double>{2, 3, 4}));
}

TEST_F(ReadArr, ReadsARangeOfASingleColumn)
{
    const Variant part = Read(ArrHead(4, 1, 3) + Doubles({1, 2, 3, 4}), 2, 3);
    EXPECT_EQ(ShapeOf(Real(part)), Sized(2, 1));
    EXPECT_EQ(Values(Real(part)), (std::vector<double>{2, 3}));
}

TEST_F(ReadArr, TakesAnEndThatIsNotThereForTheDefault)
{
    const std::string rows = ArrHead(3, 2, 3) + Doubles({1, 2, 3, 4, 5, 6});
    const std::vector<double> all = {1, 2, 3, 4, 5, 6};
    for (const std::int32_t first : {0, -1, 4, -2147483647 - 1, 2147483647})
        EXPECT_EQ(Values(Real(Read(rows, first))), all) << first;
    for (const std::int32_t last : {0, -1, 4, 2147483647})
        EXPECT_EQ(Values(Real(Read(rows, {}, last))), all) << last;
    EXPECT_EQ(Values(Real(Read(rows, 3, 9))), (std::vector<double>{3, 6}));
    const std::string row = ArrHead(1, 3, 3) + Doubles({1, 2, 3});
    EXPECT_EQ(Values(Real(Read(row, 4, 2))), (std::vector<double>{1, 2}));
    EXPECT_EQ(Values(Real(Read(row, 2, 4))), (std::vector<double>{2, 3}));
}

TEST_F(ReadArr, FailsWhereTheRangeEndsAheadOfItsBeginning)
{
    EXPECT_EQ(Raised([&] { Read(ArrHead(3, 1, 3) + Doubles({1, 2, 3}), 3, 2); }), 9);
    EXPECT_EQ(Raised([&] { Read(ArrHead(1, 3, 7) + Longs({1, 2, 3}), 2, 1); }), 9);
}

TEST_F(ReadArr, IgnoresTheRangeOfOtherTags)
{
    const std::string texts = ArrHead(1, 2, 5) + Texts({"a", "b"});
    EXPECT_EQ(Values(*Read(texts, 2, 1).As<Ref<clsString>>()),
              (std::vector<std::string>{"a", "b"}));
    const std::string complex = ArrHead(1, 2, 4) + Doubles({1, 2, 3, 4});
    EXPECT_EQ(Values(*Read(complex, 2, 2).As<Ref<clsComplexMatrix>>()),
              (std::vector<Complex>{{1, 3}, {2, 4}}));
    EXPECT_EQ(Read(ArrHead(1, 2, 100) + Raw({1, 2}) + "b", 2, 2),
              Variant(Row<std::uint8_t>({1, 2})));
}

TEST_F(ReadArr, ReadsTheSameRangesOfWholeNumbersAsOfOthers)
{
    for (const std::int32_t rows : {1, 2, 3, 5})
        for (const std::int32_t columns : {1, 2, 4}) {
            std::string longs, doubles;
            for (std::int32_t k = 1; k <= rows * columns; ++k) {
                longs += Le32(k);
                doubles += LeDouble(k);
            }
            const std::int32_t lines = rows == 1 ? columns : rows;
            for (std::int32_t first = 1; first <= lines; ++first)
                for (std::int32_t last = first; last <= lines; ++last) {
                    const Variant a = Read(ArrHead(rows, columns, 7) + longs, first, last);
                    const Variant b = Read(ArrHead(rows, columns, 3) + doubles, first, last);
                    std::vector<double> expected;
                    for (std::int32_t j = 1; j <= columns; ++j)
                        for (std::int32_t i = 1; i <= rows; ++i) {
                            const std::int32_t line = rows == 1 ? j : i;
                            if (line >= first && line <= last)
                                expected.push_back((j - 1) * rows + i);
                        }
                    EXPECT_EQ(Values(Real(b)), expected);
                    const auto whole = Values(*a.As<Ref<clsLong>>());
                    EXPECT_EQ(std::vector<double>(whole.begin(), whole.end()), expected);
                    EXPECT_EQ(ShapeOf(*a.As<Ref<clsLong>>()), ShapeOf(Real(b)));
                }
        }
}

TEST_F(ReadArr, ForcesItsEndingBehindTheFirstDotOfThePath)
{
    const std::string bytes = ArrHead(1, 1, 3) + Doubles({7});
    folder_.Write("x.arr", bytes);
    for (const char* given : {"x", "x.arr", "x.tmp", "x.", "x.a.b.c", "x.b/file.arr"}) {
        std::string name = folder_ / given;
        EXPECT_EQ(Values(Real(lumora::ReadArr(name))), std::vector<double>{7}) << given;
        EXPECT_EQ(name, folder_ / "x.arr");
    }
}

TEST_F(ReadArr, ReadsNotWhatWriteArrWroteUnderAForeignEnding)
{
    std::string written = folder_ / "x.tmp";
    WriteArr(written, RealMatrix({{1}}), "");
    std::string read = written;
    EXPECT_EQ(Raised([&] { lumora::ReadArr(read); }), 52);
    EXPECT_EQ(read, folder_ / "x.arr");
    EXPECT_EQ(messages_.Take(),
              Shown{FileError("Error using fopen_Rudo.", " Cannot open specifid file for input "
                                                         "because file not exist.")});
}

TEST_F(ReadArr, TakesAPathAsItIsWhereToldTo)
{
    WriteArrTo(folder_ / "x.tmp", RealMatrix({{1}}), "");
    EXPECT_EQ(Values(Real(ReadArrFrom(folder_ / "x.tmp"))), std::vector<double>{1});
    EXPECT_EQ(ReadArrFrom(folder_ / "x.tmp", {}, {}, 1.0), Variant(std::string("clsMatrix")));
}

TEST_F(ReadArr, FailsForSizesBelowOne)
{
    for (const int tag : {3, 4, 5, 7, 100})
        for (const auto& [rows, columns] :
             {std::pair{0, 1}, {1, 0}, {0, 0}, {-1, 1}, {2, -3}, {-1, -1}, {-2147483647, 2}}) {
            const std::string bytes = ArrHead(rows, columns, tag) + std::string(64, '\0') + "b";
            EXPECT_EQ(Raised([&] { Read(bytes); }), 9) << tag << " " << rows << " " << columns;
            EXPECT_FALSE(Read(bytes, {}, {}, 1.0).IsEmpty());
        }
}

TEST_F(ReadArr, HasZerosForTheNumbersThatAShortFileLacks)
{
    // Bytes of which none is zero, so that a number that is cut would show.
    const std::string third = LeDouble(1.0 / 3.0);
    const std::string odd = Le32(0x01020304);
    for (std::size_t length = 0; length <= 4 * third.size(); ++length) {
        const std::string bytes = (third + third + third + third).substr(0, length);
        const std::size_t whole = length / third.size();
        std::vector<double> numbers(4, 0.0);
        std::fill_n(numbers.begin(), whole, 1.0 / 3.0);
        const Variant real = Read(ArrHead(2, 2, 3) + bytes);
        EXPECT_EQ(Values(Real(real)), numbers) << length;
        EXPECT_EQ(ShapeOf(Real(real)), Sized(2, 2));
        const Variant complex = Read(ArrHead(1, 2, 4) + bytes);
        EXPECT_EQ(Values(*complex.As<Ref<clsComplexMatrix>>()),
                  (std::vector<Complex>{{numbers[0], numbers[2]}, {numbers[1], numbers[3]}}));
        // The letter of a plain array is none of its elements.
        Array<Currency> money(4);
        std::fill_n(money.Span().begin(), whole, Currency{0x3FD5555555555555});
        EXPECT_EQ(Read(ArrHead(1, 4, 100) + bytes + "c"), Variant(money));
    }
    for (std::size_t length = 0; length <= 6 * odd.size(); ++length) {
        std::vector<std::int32_t> numbers(6, 0);
        std::fill_n(numbers.begin(), length / odd.size(), 0x01020304);
        const Variant whole =
            Read(ArrHead(2, 3, 7) + (odd + odd + odd + odd + odd + odd).substr(0, length));
        EXPECT_EQ(Values(*whole.As<Ref<clsLong>>()), numbers) << length;
    }
    EXPECT_EQ(Read(ArrHead(1, 3, 100) + Raw({7}) + "b"), Variant(Row<std::uint8_t>({7, 0, 0})));
    EXPECT_EQ(Read(ArrHead(1, 3, 100) + "b"), Variant(Row<std::uint8_t>({0, 0, 0})));
}

TEST_F(ReadArr, HasWhatIsThereOfTheTextsOfAShortFile)
{
    using Words = std::vector<std::string>;
    const std::string texts = Texts({"do", "re", "", "fa"});
    const std::pair<std::size_t, Words> cuts[] = {
        {0, {"", "", "", ""}},       {1, {"", "", "", ""}},        {2, {"", "", "", ""}},
        {3, {"d", "", "", ""}},      {4, {"do", "", "", ""}},      {5, {"do", "", "", ""}},
        {7, {"do", "r", "", ""}},    {10, {"do", "re", "", ""}},   {12, {"do", "re", "", ""}},
        {13, {"do", "re", "", "f"}}, {14, {"do", "re", "", "fa"}},
    };
    for (const auto& [length, words] : cuts) {
        const Variant read = Read(ArrHead(2, 2, 5) + texts.substr(0, length));
        EXPECT_EQ(Values(*read.As<Ref<clsString>>()), words) << length;
        EXPECT_EQ(ShapeOf(*read.As<Ref<clsString>>()), Sized(2, 2));
    }
    EXPECT_EQ(Read(ArrHead(1, 2, 100) + Texts({"a", "b"}).substr(0, 5) + "5"),
              Variant(Row<std::string>({"a", ""})));
}

TEST_F(ReadArr, HasZerosForAnArrayWhoseTypeNameTheWriterDidNotKnow)
{
    std::string name = folder_ / "dates.arr";
    EXPECT_EQ(WriteArr(name, Row<Date>({{1.5}, {2.5}}), "date"), 13);
    EXPECT_EQ(lumora::ReadArr(name), Variant(Row<Date>({{0}, {0}})));
    EXPECT_EQ(WriteArr(name, Table<std::int32_t>({{1, 2}, {3, 4}}), "length"), 13);
    EXPECT_EQ(lumora::ReadArr(name), Variant(Table<std::int32_t>({{0, 0}, {0, 0}})));
    EXPECT_EQ(WriteArr(name, Row({1.5}), "number"), 13);
    EXPECT_TRUE(lumora::ReadArr(name).IsEmpty()); // "n" is no letter
}

TEST_F(ReadArr, HasZerosForTheRowsOfARangeThatAShortFileLacks)
{
    const std::string bytes = ArrHead(3, 2, 3) + Doubles({1, 2, 3, 4});
    EXPECT_EQ(Values(Real(Read(bytes, 1, 2))), (std::vector<double>{1, 2, 4, 0}));
    EXPECT_EQ(Values(Real(Read(bytes, 2, 3))), (std::vector<double>{2, 3, 0, 0}));
    EXPECT_EQ(Values(Real(Read(ArrHead(1, 9, 3) + Doubles({1, 2}), 8, 9))),
              (std::vector<double>{0, 0}));
}

TEST_F(ReadArr, TellsHowMuchOfItsPromiseAFileHolds)
{
    const auto extent = [&](const std::string& bytes) {
        ArrExtent told;
        ReadArrFrom(folder_.Write("m.arr", bytes), 1, 1, {}, &told);
        EXPECT_EQ(told.IsShort(), told.held != told.promised);
        return std::pair(told.held, told.promised);
    };
    using Pair = std::pair<std::int64_t, std::int64_t>;
    EXPECT_EQ(extent(ArrHead(3, 2, 3) + Doubles({1, 2, 3, 4}) + "1234567"), Pair(4, 6));
    EXPECT_EQ(extent(ArrHead(3, 1, 3) + Doubles({1, 2, 3, 4})), Pair(3, 3));
    EXPECT_EQ(extent(ArrHead(1, 2, 4) + Doubles({1, 2, 3})), Pair(3, 4));
    EXPECT_EQ(extent(ArrHead(1, 5, 7)), Pair(0, 5));
    EXPECT_EQ(extent(ArrHead(1, 3, 5) + Texts({"", "a", "bc"}).substr(0, 8)), Pair(2, 3));
    EXPECT_EQ(extent(ArrHead(1, 3, 5) + Texts({"", "a", "bc"})), Pair(3, 3));
    EXPECT_EQ(extent(ArrHead(1, 3, 100) + Raw({1, 2}) + "b"), Pair(2, 3));
    EXPECT_EQ(extent(ArrHead(1, 3, 6) + Doubles({1})), Pair(0, 0));
}

TEST_F(ReadArr, TakesNoMemoryForSizesThatLie)
{
    rusage before = {};
    getrusage(RUSAGE_SELF, &before);
    for (const int tag : {3, 4, 5, 7, 100})
        for (const auto& sizes : {std::pair{kMost, kMost},
                                  {kMost, std::int64_t{1}},
                                  {std::int64_t{1}, kMost},
                                  {kMost, std::int64_t{4}},
                                  {std::int64_t{65536}, std::int64_t{65536}},
                                  {std::int64_t{10000}, std::int64_t{10000}}})
            EXPECT_EQ(Raised([&] {
                          Read(ArrHead(sizes.first, sizes.second, tag) + std::string(64, '\0') +
                               "r");
                      }),
                      62)
                << tag << " " << sizes.first << " " << sizes.second;
    rusage after = {};
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 16 * 1024); // KiB
}

TEST_F(ReadArr, MakesUp64MebibytesAndNotAnElementMore)
{
    constexpr std::int64_t kMostMadeUp = 64 << 20;
    const struct {
        int tag;
        const char* letter;
        std::int64_t made_up, in_file; // bytes of an element
    } kinds[] = {{3, "", 8, 8}, {4, "", 16, 16},  {5, "", 32, 2},
                 {7, "", 4, 4}, {100, "i", 2, 2}, {100, "5", 32, 2}};
    for (const auto& [tag, letter, made_up, in_file] : kinds) {
        const std::string one = std::string(static_cast<std::size_t>(in_file), '\0') + letter;
        const std::int64_t most = kMostMadeUp / made_up + 1;
        EXPECT_FALSE(Read(ArrHead(1, most, tag) + one).IsEmpty()) << tag << letter;
        const std::string lie = ArrHead(1, most + 1, tag) + one;
        EXPECT_EQ(Raised([&] { Read(lie); }), 62) << tag << letter;
    }
}

TEST_F(ReadArr, NamesTheFileInItsErrors)
{
    const std::string name = " (" + folder_ / "m.arr" + ")";
    EXPECT_EQ(Told([&] { Read(ArrHead(5000, 5000, 3)); }),
              "Run-time error '62': Input past end of file" + name);
    EXPECT_EQ(Told([&] { Read(ArrHead(0, 5, 3)); }),
              "Run-time error '9': Subscript out of range" + name);
}

TEST_F(ReadArr, PassesOverWhatFollowsTheElements)
{
    EXPECT_EQ(Values(Real(Read(ArrHead(1, 1, 3) + Doubles({1}) + "behind"))),
              std::vector<double>{1});
    EXPECT_EQ(Values(*Read(ArrHead(1, 1, 5) + Texts({"a", "b"})).As<Ref<clsString>>()),
              std::vector<std::string>{"a"});
    EXPECT_EQ(Read(ArrHead(1, 1, 100) + Raw({1, 2, 3}) + "b"), Variant(Row<std::uint8_t>({1})));
}

TEST_F(ReadArr, ReadsAFileThatMayOnlyBeRead)
{
    const std::string path = folder_.Write("m.arr", ArrHead(1, 1, 7) + Longs({3}));
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    const PermissionsCount counts;
    std::string name = path;
    EXPECT_EQ(Values(*lumora::ReadArr(name).As<Ref<clsLong>>()), std::vector<std::int32_t>{3});
    std::filesystem::permissions(path, std::filesystem::perms::none);
    EXPECT_EQ(Raised([&] { lumora::ReadArr(name); }), 70);
}

TEST_F(ReadArr, ClosesItsFileWhateverTheEnd)
{
    const std::ptrdiff_t before = OpenFileCount();
    Read(ArrHead(1, 1, 3) + Doubles({1}));
    Read(ArrHead(1, 1, 77));
    Read(ArrHead(1, 1, 3), {}, {}, 1.0);
    Raised([&] { Read(ArrHead(1, 9, 3)); });
    Raised([&] { Read(ArrHead(1, -9, 3)); });
    EXPECT_EQ(OpenFileCount(), before);
}

} // namespace
} // namespace lumora::test
