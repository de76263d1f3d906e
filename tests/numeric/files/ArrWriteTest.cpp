#include "numeric/files/ArrFiles.h"
#include "support/Limits.h"
#include "support/Raised.h"

#include <cmath>
#include <limits>

namespace lumora::test {
namespace {

using WriteArr = ArrFiles;

std::int32_t Call(std::string name, const Variant& obj, const std::string& type_name = {})
{
    return lumora::WriteArr(name, obj, type_name);
}

TEST_F(WriteArr, PutsAHeaderOfTwelveBytesAheadOfDoubles)
{
    const std::string bytes = Written(RealMatrix({{1.5, -2.0, 1e300}}));
    EXPECT_EQ(bytes.size(), 36U);
    EXPECT_EQ(bytes, Raw({1, 0, 0, 0, 3, 0, 0, 0, 3, 0, 0, 0}) + Doubles({1.5, -2.0, 1e300}));
}

TEST_F(WriteArr, StoresColumnAfterColumn)
{
    EXPECT_EQ(Written(RealMatrix({{1, 2}, {3, 4}})), ArrHead(2, 2, 3) + Doubles({1, 3, 2, 4}));
    EXPECT_EQ(Written(RealMatrix({{1}, {3}, {2}})), ArrHead(3, 1, 3) + Doubles({1, 3, 2}));
}

TEST_F(WriteArr, PutsWholeNumbersIntoFourBytes)
{
    EXPECT_EQ(Written(LongMatrix({{1, -2}, {2147483647, -2147483647 - 1}})),
              ArrHead(2, 2, 7) + Longs({1, 2147483647, -2, -2147483648LL}));
}

TEST_F(WriteArr, PutsAllRealPartsAheadOfAllImaginaryOnes)
{
    EXPECT_EQ(Written(ComplexMatrix({{{1, 5}, {2, 6}}, {{3, 7}, {4, 8}}})),
              ArrHead(2, 2, 4) + Doubles({1, 3, 2, 4}) + Doubles({5, 7, 6, 8}));
}

TEST_F(WriteArr, PutsALengthAheadOfEachText)
{
    EXPECT_EQ(Written(TextMatrix({{"Do", ""}, {"Re-Mi", "ß€"}})),
              ArrHead(2, 2, 5) +
                  Raw({2, 0, 'D', 'o', 5, 0, 'R', 'e', '-', 'M', 'i', 0, 0, 2, 0, 0xDF, 0x80}));
}

TEST_F(WriteArr, PutsTheKindOfAPlainArrayIntoTheLastByte)
{
    const std::string doubles = Written(Row({1.0, 2.0, 3.0}), "double");
    EXPECT_EQ(doubles.size(), 37U);
    EXPECT_EQ(doubles.back(), '\x72');
    EXPECT_EQ(doubles, ArrHead(1, 3, 100) + Doubles({1, 2, 3}) + "r");
}

TEST_F(WriteArr, KnowsEightKindsOfElements)
{
    const std::string head = ArrHead(1, 2, 100);
    const std::string text = "Fa";
    EXPECT_EQ(Written(Row<std::string>({text, "a"}), "string"), head + Texts({"Fa", "a"}) + "5");
    EXPECT_EQ(Written(Row<Currency>({{12345}, {-1}}), "currency"),
              head + Le64(12345) + Le64(-1) + "c");
    EXPECT_EQ(Written(Row<Date>({{1.25}, {-2.0}}), "data"), head + Doubles({1.25, -2}) + "d");
    EXPECT_EQ(Written(Row<std::int32_t>({-7, 70000}), "long"), head + Longs({-7, 70000}) + "l");
    EXPECT_EQ(Written(Row<float>({0.5F, -3.0F}), "single"),
              head + LeSingle(0.5F) + LeSingle(-3.0F) + "s");
    EXPECT_EQ(Written(Row<std::int16_t>({-2, 300}), "integer"), head + Shorts({-2, 300}) + "i");
    EXPECT_EQ(Written(Row<std::uint8_t>({0, 255}), "byte"), head + Raw({0, 255}) + "b");
}

TEST_F(WriteArr, CountsBoundsNotIndices)
{
    Array<std::int16_t> array;
    array.ReDim({-1, 1}, {5, 6});
    array(-1, 5) = 1;
    array(0, 5) = 2;
    array(1, 6) = 3;
    EXPECT_EQ(Written(array, "integer"), ArrHead(3, 2, 100) + Shorts({1, 2, 0, 0, 0, 3}) + "i");
}

TEST_F(WriteArr, IgnoresTheLetterCaseOfTheKind)
{
    EXPECT_EQ(Written(Row({1.0}), "DouBle"), Written(Row({1.0}), "double"));
    EXPECT_EQ(Written(Row<std::string>({"a"}), "STRING"), ArrHead(1, 1, 100) + Texts({"a"}) + "5");
}

TEST_F(WriteArr, ConvertsElementsOfOtherKinds)
{
    const std::string head = ArrHead(1, 2, 100);
    EXPECT_EQ(Written(Row({2.5, -3.5}), "integer"), head + Shorts({2, -4}) + "i");
    EXPECT_EQ(Written(Row({2.5, 254.6}), "byte"), head + Raw({2, 255}) + "b");
    EXPECT_EQ(Written(Row({1.0, 0.1}), "single"), head + LeSingle(1) + LeSingle(0.1F) + "s");
    EXPECT_EQ(Written(Row({1.23456, -0.5}), "currency"), head + Le64(12346) + Le64(-5000) + "c");
    EXPECT_EQ(Written(Row<Currency>({{15000}, {-1}}), "double"),
              head + Doubles({1.5, -0.0001}) + "r");
    EXPECT_EQ(Written(Row<std::int16_t>({1, -2}), "data"), head + Doubles({1, -2}) + "d");
    EXPECT_EQ(Written(Row<std::string>({"7", " -1.5"}), "double"), head + Doubles({7, -1.5}) + "r");
    EXPECT_EQ(Written(Row<Variant>({Variant(1.0), Variant(std::string("2"))}), "long"),
              head + Longs({1, 2}) + "l");
    EXPECT_EQ(Written(Row<Variant>({Variant(std::string("x")), Variant(std::string())}), "string"),
              head + Texts({"x", ""}) + "5");
}

TEST_F(WriteArr, WritesTheLetterAloneForAWordThatIsNoKind)
{
    // The writer's word for dates is "data"; "date" is the reader's.
    EXPECT_EQ(Written(Row<Date>({{1.0}, {2.0}}), "date"), ArrHead(1, 2, 100) + "d");
    EXPECT_EQ(Written(Row({1.0}), "Quad"), ArrHead(1, 1, 100) + "q");
    const Variant objects = Row<Ref<clsComplex>>({Scalar(1, 2)});
    EXPECT_EQ(Written(objects, "x"), ArrHead(1, 1, 100) + "x");
}

TEST_F(WriteArr, LeavesTheSizesAloneOfObjectsWithoutTag)
{
    const std::string name = folder_ / "m.arr";
    EXPECT_EQ(Call(name, ObjectMatrix({{{1, 2}, {3, 4}, {5, 6}}})), 0);
    EXPECT_EQ(BytesOf(name), Le32(1) + Le32(3));
    EXPECT_EQ(Call(name, MakeRef<clsVariant>()), 0);
    EXPECT_EQ(BytesOf(name), Le32(0) + Le32(0));
    const Ref<clsMatrix> odd = RealMatrix({{1}, {2}});
    odd->TypeOfMatrix = "R";
    EXPECT_EQ(Call(name, odd), 0);
    EXPECT_EQ(BytesOf(name), Le32(2) + Le32(1));
}

TEST_F(WriteArr, LeavesAnEmptyFileForWhatIsNeitherObjectNorArray)
{
    const std::string name = folder_.Write("m.arr", "old");
    EXPECT_EQ(Call(name, 1.5), 0);
    EXPECT_EQ(BytesOf(name), "");
    EXPECT_EQ(Call(folder_ / "n.arr", Variant()), 0);
    EXPECT_EQ(BytesOf(folder_ / "n.arr"), "");
}

TEST_F(WriteArr, AddsAnEndingToANameWithoutAnyDot)
{
    std::string plain = folder_ / "keys";
    EXPECT_EQ(lumora::WriteArr(plain, RealMatrix({{1}}), ""), 20);
    EXPECT_EQ(plain, folder_ / "keys.arr");
    EXPECT_EQ(BytesOf(plain).size(), 20U);
    std::string foreign = folder_ / "x.tmp";
    lumora::WriteArr(foreign, RealMatrix({{1}}), "");
    EXPECT_EQ(foreign, folder_ / "x.tmp");
    EXPECT_EQ(BytesOf(foreign).size(), 20U);
    std::string inside = folder_.MakeFolder("a.b") + "/keys";
    lumora::WriteArr(inside, RealMatrix({{1}}), "");
    EXPECT_EQ(BytesOf(folder_ / "a.b/keys").size(), 20U);
}

TEST_F(WriteArr, TakesAPathAsItIsWhereToldTo)
{
    EXPECT_EQ(WriteArrTo(folder_ / "keys", RealMatrix({{1}}), ""), 20);
    EXPECT_EQ(BytesOf(folder_ / "keys").size(), 20U);
}

TEST_F(WriteArr, ReplacesALongerFileByAShorterOne)
{
    Written(RealMatrix({{1, 2, 3, 4}}));
    EXPECT_EQ(Written(LongMatrix({{9}})), ArrHead(1, 1, 7) + Longs({9}));
}

TEST_F(WriteArr, LeavesItsOperandAsItWas)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 2}, {3, 4}});
    m->Name = "kept";
    Written(m);
    EXPECT_EQ(ShapeOf(*m), Sized(2, 2));
    EXPECT_EQ(Values(*m), (std::vector<double>{1, 3, 2, 4}));
    EXPECT_EQ(m->Name, "kept");
}

TEST_F(WriteArr, RefusesBeforeTheOldFileIsTouched)
{
    const std::string name = folder_.Write("m.arr", "old");
    const Ref<clsMatrix> liar = RealMatrix({{1, 2}});
    liar->size2 = 3;
    const Ref<clsMatrix> masked = RealMatrix({{1}});
    masked->TypeOfMatrix = "L";
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        Variant obj;
        const char* type_name;
        int error;
    } refusals[] = {
        {TextMatrix({{"fine", "Жук"}}), "", 5},
        {Row<std::string>({"fine", "\xFF"}), "string", 5},
        {Row({1.0}), "", 5},
        {TextMatrix({{std::string(65536, 'x')}}), "", 6},
        {Row({32767.6}), "integer", 6},
        {Row({2147483648.0}), "long", 6},
        {Row({-1.0}), "byte", 6},
        {Row({1e39}), "single", 6},
        {Row({1e15}), "currency", 6},
        {Row({nan}), "currency", 6},
        {MakeRef<clsMatrix>(), "", 9},
        {MakeRef<clsString>(), "", 9},
        {MakeRef<clsLong>(), "", 9},
        {MakeRef<clsComplexMatrix>(), "", 9},
        {Array<double>(), "double", 9},
        {liar, "", 9},
        {Row<std::string>({"seven"}), "double", 13},
        {Row({1.0}), "string", 13},
        {Row<Ref<clsComplex>>({Scalar(1, 2)}), "double", 13},
        {Row<Variant>({Variant()}), "double", 13},
        {Scalar(1, 2), "", 13},
        {masked, "", 13},
        {Ref<clsMatrix>(), "", 91},
    };
    for (const auto& [obj, type_name, error] : refusals) {
        EXPECT_EQ(Raised([&, &obj = obj, &type_name = type_name] { Call(name, obj, type_name); }),
                  error)
            << type_name;
        EXPECT_EQ(BytesOf(name), "old");
    }
    EXPECT_EQ(messages_.Take(), Shown{});
}

TEST_F(WriteArr, HoldsTextsUpTo65535Bytes)
{
    const std::string longest(65535, 'x');
    EXPECT_EQ(Written(TextMatrix({{longest}})), ArrHead(1, 1, 5) + Raw({0xFF, 0xFF}) + longest);
}

TEST_F(WriteArr, KeepsInfinitiesAndTheBitsOfZeroAndNaN)
{
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Written(RealMatrix({{inf, -inf, -0.0, nan}})),
              ArrHead(1, 4, 3) + Doubles({inf, -inf, -0.0, nan}));
}

TEST_F(WriteArr, TellsAFullDisk)
{
    const std::ptrdiff_t before = OpenFileCount();
    EXPECT_EQ(Raised([] { WriteArrTo("/dev/full", RealMatrix({{1, 2}}), ""); }), 61);
    const Ref<clsMatrix> large = MakeRef<clsMatrix>();
    large->Initial_matrix(1, 10000);
    const FileSizeLimit limit(4096);
    EXPECT_EQ(Raised([&] { Call(folder_ / "m.arr", large); }), 61);
    EXPECT_EQ(OpenFileCount(), before);
}

TEST_F(WriteArr, TellsWhereItMayNotWrite)
{
    namespace fs = std::filesystem;
    const std::string locked = folder_.MakeFolder("locked");
    folder_.Write("locked/m.arr", "old");
    fs::permissions(locked, fs::perms::owner_read | fs::perms::owner_exec);
    {
        const PermissionsCount counts;
        EXPECT_EQ(Raised([&] { Call(locked + "/m.arr", RealMatrix({{1}})); }), 70);
        EXPECT_EQ(Raised([&] { Call(locked + "/n.arr", RealMatrix({{1}})); }), 75);
    }
    fs::permissions(locked, fs::perms::owner_all);
    EXPECT_EQ(BytesOf(locked + "/m.arr"), "old");
    EXPECT_EQ(Raised([&] { Call(folder_ / "none/m.arr", RealMatrix({{1}})); }), 75);
    EXPECT_EQ(Raised([&] { Call(folder_.MakeFolder("f.arr"), RealMatrix({{1}})); }), 75);
}

} // namespace
} // namespace lumora::test
