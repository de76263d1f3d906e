#include "audio/Wavwrite.h"

#include "numeric/Matrices.h"
#include "support/EdgeNumbers.h"
#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace lumora {
namespace {

using namespace test;

/// Whatever goes wrong ahead of the writing, an older file of the name is as it was.
class WavwriteFault : public testing::Test {
protected:
    void TearDown() override
    {
        EXPECT_EQ(messages.Take(), Shown{});
        EXPECT_EQ(BytesOf(name), "precious");
        EXPECT_EQ(OpenFileCount(), open_before);
    }

    template <class... Arguments> void ExpectError(int number, const Arguments&... arguments)
    {
        EXPECT_EQ(Raised([&] { wavwrite(arguments...); }), number);
    }
    template <class... Arguments>
    void ExpectMessage(const ShownMessage& message, const Arguments&... arguments)
    {
        EXPECT_FALSE(wavwrite(arguments...));
        EXPECT_EQ(messages.Take(), Shown{message});
    }

    TempFolder folder;
    MessageRecorder messages;
    const std::string name = folder.Write("f.wav", "precious");
    const Variant y = Row<double>({0.5, -0.5});
    const std::ptrdiff_t open_before = OpenFileCount();
};

TEST_F(WavwriteFault, ASampleThatDoesNotFitOverflows)
{
    for (double bits : {8.0, 16.0, 32.0}) {
        for (double loud : {1.5, -1.5, 1e300, kInfinity, -kInfinity, kNan}) {
            ExpectError(6, Row<double>({0.5, loud, 0.25}), 8000.0, bits, name, 1.0);
            // It may stand in any channel and any piece.
            Ref<clsMatrix> many = MakeRef<clsMatrix>();
            many->Initial_matrix(3000, 2);
            many->Real(2999, 2, loud);
            ExpectError(6, Variant(many), 8000.0, bits, name, 1.0);
        }
        // No peak rule makes a number of these.
        for (double odd : {kNan, kInfinity, -kInfinity})
            ExpectError(6, Row<double>({0.5, odd, 0.25}), 8000.0, bits, name, 0.0);
    }
}

TEST_F(WavwriteFault, APeakOfOneOverflowsWhereNoStepIsTaken)
{
    ExpectError(6, Row<double>({1.0}), 8000.0, 16.0, name, 1.0);
    ExpectError(6, Row<double>({1.0}), 8000.0, 8.0, name, 1.0);
    ExpectError(6, Row<double>({1.0}), 8000.0, 12.0, name, 0.0);
    ExpectError(6, Row<double>({2.0}), 8000.0, 7.0, name, 0.0);
}

TEST_F(WavwriteFault, AnOverflowLeavesNoFile)
{
    ExpectError(6, Row<double>({1.0}), 8000.0, 16.0, folder / "new.wav", 1.0);
    EXPECT_FALSE(std::filesystem::exists(folder / "new.wav"));
}

TEST_F(WavwriteFault, WhatIsNoSignalHasItsMessage)
{
    for (const Variant& none : {Variant(), Variant(0.5), Variant("0.5"), Variant(std::int16_t{1})})
        ExpectMessage(Plain("Incorrect First parametr"), none, name);
}

TEST_F(WavwriteFault, OtherWidthsHaveTheirMessage)
{
    for (double bits : {24.0, 17.0, 20.0, 33.0, 64.0, 0.0, -1.0, -8.0, -16.0})
        ExpectMessage(Plain("Cannot write WAVE files with more than 16 bits/sample."), y, 8000.0,
                      bits, name);
    ExpectMessage(Plain("Cannot write WAVE files with more than 16 bits/sample."), y, 8000.0, 24.0,
                  folder / "new.wav");
    EXPECT_FALSE(std::filesystem::exists(folder / "new.wav"));
}

TEST_F(WavwriteFault, ASignalWithoutUsableElementsIsARunTimeError)
{
    ExpectError(9, Variant(MakeRef<clsMatrix>()), name);
    ExpectError(9, Array<double>(), name);
    ExpectError(91, Variant(Ref<clsMatrix>()), name);
    ExpectError(13, Variant(ComplexMatrix({{Complex(0.5, 0.0)}})), name);
    ExpectError(13, Variant(Scalar(0.5, 0.0)), name);
    ExpectError(13, Variant(TextMatrix({{"loud"}})), name);
    ExpectError(13, Row<std::string>({"loud"}), name);
    const Ref<clsMatrix> belied = RealMatrix({{0.5}, {0.25}});
    belied->size1 = 3;
    ExpectError(9, Variant(belied), name);
}

TEST_F(WavwriteFault, ArgumentsOfNoFormAreATypeMismatch)
{
    ExpectError(13, y, Variant());
    ExpectError(13, y, 8000.0);
    ExpectError(13, y, 8000.0, 16.0);
    ExpectError(13, y, 8000.0, 16.0, 1.0);
    ExpectError(13, y, name, 8000.0);
    ExpectError(13, y, Variant(RealMatrix({{1}})), name);
    ExpectError(13, y, 8000.0, 16.0, name, "loud");
    ExpectError(13, y, 8000.0, 16.0, name, 0.0, 1.0);
}

TEST_F(WavwriteFault, AHeaderFieldThatDoesNotFitOverflows)
{
    ExpectError(6, y, 3e9, name);
    ExpectError(6, y, 1.1e9, name); // 2 bytes a frame: 2.2e9 a second
    ExpectError(6, y, 8000.0, 40000.0, name);
    Ref<clsMatrix> wide = MakeRef<clsMatrix>();
    wide->Initial_matrix(3, 16384); // 32,768 bytes a frame
    ExpectError(6, Variant(wide), name);
}

TEST_F(WavwriteFault, ATargetThatCannotBeMadeShowsItsMessage)
{
    const ShownMessage no_output =
        FileError("Error using fopen.", " Cannot open  WAV file for output.");
    ExpectMessage(no_output, y, folder.MakeFolder("folder.wav"));
    ExpectMessage(no_output, y, folder / "no/folder/f.wav");
}

TEST_F(WavwriteFault, AFullTargetIsError61)
{
    ExpectError(61, y, "/dev/./full"); // a name without a dot would get an ending
}

TEST_F(WavwriteFault, AFileThatMayNotBeReplacedIsARunTimeError)
{
    const std::string locked = folder.MakeFolder("locked");
    const std::string file = folder.Write("locked/f.wav", "kept");
    chmod(locked.c_str(), 0555);
    {
        const PermissionsCount strict;
        ExpectError(70, y, file);
    }
    chmod(locked.c_str(), 0755);
    EXPECT_EQ(BytesOf(file), "kept");
}

} // namespace
} // namespace lumora
