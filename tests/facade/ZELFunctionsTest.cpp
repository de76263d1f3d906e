#include "facade/ZELFunctions.h"

#include "base/Paths.h"
#include "engine/BlockResampler.h"
#include "engine/PlainPipeline.h"
#include "engine/SoundFile.h"
#include "engine/SoundKinds.h"
#include "support/Arrays.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <concepts>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lumora {
namespace {

namespace fs = std::filesystem;
using test::Sound;

constexpr int kRate = 2206;

template <class Z>
concept LetsImitatePersentBeSet = requires(Z z)
{
    z.ImitatePersent() = std::int16_t{1};
};
static_assert(!LetsImitatePersentBeSet<ZELFunctions>, "it has a get only");
static_assert(std::same_as<decltype(ZELFunctions::Q_P), double>);
static_assert(std::same_as<decltype(ZELFunctions::SourceType), std::int16_t>);
static_assert(std::same_as<decltype(ZELFunctions::TargetSourceType), double>);
static_assert(std::same_as<decltype(ZELFunctions::SourceSmooth), std::int32_t>);
static_assert(std::same_as<decltype(ZELFunctions::NotePersent), std::int16_t>);
static_assert(std::same_as<decltype(ZELFunctions::StopProcess), std::int16_t>);

/// In a folder of its own, for the clean-up deletes files beside the program.
class Facade : public testing::Test {
protected:
    Facade() { SetProgramFolder(folder.Path()); }
    ~Facade() override { SetProgramFolder({}); }

    /// The last sample that the process keeps between runs.
    static void SetLastSample(double sample)
    {
        Array<double> dest;
        ResampleBlock(test::Row({sample}), 1.0, dest);
    }

    Sound Music(std::size_t channels, std::size_t count)
    {
        Sound sound;
        for (std::size_t channel = 0; channel < channels; ++channel)
            sound.push_back(test::Music(generator, count, kRate));
        return sound;
    }

    Sound Written() const { return test::ParseSoundFile(test::BytesOf(out)).sound; }

    test::Generator generator{12};
    test::TempFolder folder;
    test::MessageRecorder messages;
    ProgressBar bar;
    const std::string out = folder / "out.wav";
};

void ExpectAllClear(const ZELFunctions& object)
{
    for (double field :
         {object.TargetVT, object.TargetDP, object.TargetDPNew, object.TargetSourceType,
          object.SoundVT, object.SoundDP, object.Q_P, object.Q_VT, object.Nasality, object.Hoarse})
        EXPECT_EQ(field, 0.0);
    for (int field : {object.TargetGender, object.SoundGender, object.SourceSmooth})
        EXPECT_EQ(field, 0);
    for (int field : {object.SourceType, object.AnalPersent, object.ImitatePersent(),
                      object.NotePersent, object.TransformPersent, object.StopProcess})
        EXPECT_EQ(field, 0);
    for (const std::string& name : {object.InFileName, object.OutFileName, object.TargetFileName})
        EXPECT_EQ(name, "");
}

TEST_F(Facade, StartsWithEveryPropertyAtZeroOrEmpty)
{
    ExpectAllClear(ZELFunctions());
}

TEST_F(Facade, IsClearedByRefreshObj)
{
    ZELFunctions object;
    for (double* field : {&object.TargetVT, &object.TargetDP, &object.TargetDPNew,
                          &object.TargetSourceType, &object.SoundVT, &object.SoundDP, &object.Q_P,
                          &object.Q_VT, &object.Nasality, &object.Hoarse})
        *field = 1.5;
    for (std::int32_t* field : {&object.TargetGender, &object.SoundGender, &object.SourceSmooth})
        *field = 70000;
    for (std::int16_t* field : {&object.SourceType, &object.AnalPersent, &object.NotePersent,
                                &object.TransformPersent, &object.StopProcess})
        *field = 7;
    for (std::string* name : {&object.InFileName, &object.OutFileName, &object.TargetFileName})
        *name = "name";
    object.RefreshObj();
    ExpectAllClear(object);
}

TEST_F(Facade, SaysThatItNeedsAFileWhenTheNameIsEmptyOrNotThere)
{
    for (const std::string& name : {std::string(), folder / "missing.wav", folder / ""}) {
        ZELFunctions object;
        object.InFileName = name;
        object.OutFileName = out;
        int published = 0;
        object.PublishPercent = [&](std::int16_t) { ++published; };
        EXPECT_EQ(object.On_Note(bar), -1) << name;
        EXPECT_EQ(messages.Take(),
                  (test::Shown{{"For Analysing need Filename or Sound as clsmatrix", "Analysing",
                                MessageButtons::Ok, MessageIcon::Critical}}));
        EXPECT_EQ(published, 0);
        EXPECT_EQ(object.Q_P, 0.0) << "nothing is touched";
        EXPECT_FALSE(fs::exists(out));
    }
}

TEST_F(Facade, RunsMonoAndStereoByTheHeader)
{
    for (std::size_t channels : {1U, 2U}) {
        const Sound sound = Music(channels, 4000);
        ZELFunctions object;
        object.InFileName = folder.Write("in.wav", test::FileOf(sound, kRate));
        object.OutFileName = out;
        object.Q_P = 0.75;
        EXPECT_EQ(object.On_Note(bar), 0);
        test::PlainResampler plain;
        EXPECT_EQ(Written(), test::PlainRun(sound, kRate, 0.75, plain));
        EXPECT_EQ(object.Q_P, 0.75);
        EXPECT_EQ(bar.Value, 2);
        EXPECT_EQ(bar.Max, 2);
    }
    EXPECT_EQ(messages.shown, test::Shown{});
}

TEST_F(Facade, TakesAnyOtherCountOfChannelsForMono)
{
    ZELFunctions object;
    object.InFileName =
        folder.Write("in.wav", test::PlainWave({3, 16, kRate}, std::string(6000, 'a')));
    object.OutFileName = out;
    EXPECT_EQ(test::Raised([&] { object.On_Note(bar); }), static_cast<int>(ErrorNumber::Subscript));
    EXPECT_FALSE(fs::exists(out));
}

TEST_F(Facade, RunsAQuotientOfZeroAsOneAndKeepsIt)
{
    const Sound sound = Music(1, 440);
    ZELFunctions object;
    object.InFileName = folder.Write("in.wav", test::FileOf(sound, kRate));
    object.OutFileName = out;
    object.NotePersent = 55;
    object.StopProcess = 1;
    EXPECT_EQ(object.On_Note(bar), 0);
    EXPECT_EQ(object.Q_P, 1.0);
    EXPECT_EQ(object.NotePersent, 0);
    EXPECT_EQ(object.StopProcess, 1) << "stored only";
    std::vector<std::int16_t> delayed(23, 0);
    delayed.insert(delayed.end(), sound[0].begin(), sound[0].end());
    delayed.resize(440);
    EXPECT_EQ(Written()[0], delayed);
}

TEST_F(Facade, PublishesAHundredOnceMoreAtTheEnd)
{
    ZELFunctions object;
    object.InFileName = folder.Write("in.wav", test::FileOf(Music(1, 3190 + 100), kRate));
    object.OutFileName = out;
    std::vector<int> percents;
    object.PublishPercent = [&](std::int16_t percent) { percents.push_back(percent); };
    int pumped = 0;
    object.PumpEvents = [&] { ++pumped; };
    EXPECT_EQ(object.On_Note(bar), 0);
    EXPECT_EQ(percents, (std::vector{1, 50, 100, 100}));
    EXPECT_EQ(pumped, 3);
    EXPECT_EQ(bar.Value, 2);
}

TEST_F(Facade, RunsFromTheLastSampleOfTheRunBefore)
{
    const Sound sound = Music(1, 4000);
    ZELFunctions object;
    object.InFileName = folder.Write("in.wav", test::FileOf(sound, kRate));
    object.OutFileName = out;
    object.Q_P = 2.0;
    SetLastSample(0.0);
    test::PlainResampler plain;
    const Sound first = test::PlainRun(sound, kRate, 2.0, plain);
    const Sound second = test::PlainRun(sound, kRate, 2.0, plain);
    ASSERT_NE(first, second);
    object.On_Note(bar);
    EXPECT_EQ(Written(), first);
    ZELFunctions another;
    another.InFileName = object.InFileName;
    another.OutFileName = out;
    another.Q_P = 2.0;
    another.On_Note(bar);
    EXPECT_EQ(Written(), second) << "another object, the same process";
    SetLastSample(-1.0);
    object.On_Note(bar);
    EXPECT_EQ(Written()[0][0], -16384) << "halfway from -1 to silence";
}

TEST_F(Facade, RunsDirectlyWithoutAMessage)
{
    ZELFunctions object;
    object.OutFileName = out;
    object.InFileName = folder / "missing.wav";
    object.WsolaClsTest(bar);
    object.WsolaClsTest_Stereo(bar);
    EXPECT_EQ(messages.shown, test::Shown{});
    EXPECT_FALSE(fs::exists(out));
    object.InFileName = folder.Write("in.wav", test::FileOf(Music(2, 440), kRate));
    EXPECT_EQ(test::Raised([&] { object.WsolaClsTest(bar); }),
              static_cast<int>(ErrorNumber::Subscript));
    object.WsolaClsTest_Stereo(bar);
    EXPECT_EQ(Written().size(), 2U);
}

TEST_F(Facade, RefusesToWriteOverItsInput)
{
    const std::string bytes = test::FileOf(Music(1, 440), kRate);
    const std::string in = folder.Write("in.wav", bytes);
    fs::create_hard_link(in, folder / "same.wav");
    for (const std::string& name : {in, folder / "same.wav"}) {
        ZELFunctions object;
        object.InFileName = in;
        object.OutFileName = name;
        EXPECT_EQ(test::Raised([&] { object.On_Note(bar); }), 75) << name;
        EXPECT_EQ(test::BytesOf(in), bytes) << name;
    }
    EXPECT_EQ(messages.shown, test::Shown{});
}

TEST_F(Facade, TakesItsInputForTheFileThatTheReaderOpens)
{
    // The reader adds ".wav" to a name without a dot, the writer adds nothing.
    const std::string bytes = test::FileOf(Music(1, 440), kRate);
    folder.Write("song.wav", bytes);
    folder.Write("song", "beside it");
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    ZELFunctions object;
    object.InFileName = "song";
    object.OutFileName = "song.wav";
    EXPECT_EQ(test::Raised([&] { object.On_Note(bar); }), 75);
    EXPECT_EQ(test::BytesOf("song.wav"), bytes);
    object.OutFileName = "song";
    EXPECT_EQ(test::Raised([&] { object.On_Note(bar); }), 0);
    EXPECT_EQ(test::ParseSoundFile(test::BytesOf("song")).sound[0].size(), 440U);
    fs::current_path(before);
}

TEST_F(Facade, TellsWhetherTheInputOfTheLastRunLostBytes)
{
    ZELFunctions object;
    object.InFileName = folder.Write("in.wav", test::FileOf(Music(1, 5000), kRate));
    object.OutFileName = out;
    EXPECT_EQ(object.On_Note(bar), 0);
    EXPECT_FALSE(object.InputHasShrunk());
    object.PumpEvents = [&] { fs::resize_file(object.InFileName, 9000); };
    EXPECT_EQ(object.On_Note(bar), 0);
    EXPECT_TRUE(object.InputHasShrunk());
    EXPECT_EQ(object.On_Note(bar), 0); // short from the start, and as short at the end
    EXPECT_FALSE(object.InputHasShrunk());
}

TEST_F(Facade, DeletesTheWavesOfFourFoldersAtItsEnd)
{
    for (const char* name : {"PsolaTrans", "lpctrans", "ON_NOTE", "Synthsize", "Other"}) {
        folder.MakeFolder(name);
        for (const char* file : {"a.wav", "B.WAV", "c c.wav", "keep.txt", "wav", "d.wav.bak"})
            folder.Write(std::string(name) + "/" + file, "x");
        folder.MakeFolder(std::string(name) + "/folder.wav");
    }
    folder.Write("beside.wav", "x");
    {
        ZELFunctions object;
        EXPECT_TRUE(fs::exists(folder / "PsolaTrans/a.wav"));
    }
    for (const char* name : {"PsolaTrans", "lpctrans", "ON_NOTE", "Synthsize"}) {
        const std::string at = folder / name;
        for (const char* gone : {"/a.wav", "/B.WAV", "/c c.wav"})
            EXPECT_FALSE(fs::exists(at + gone)) << name << gone;
        for (const char* kept : {"/keep.txt", "/wav", "/d.wav.bak", "/folder.wav"})
            EXPECT_TRUE(fs::exists(at + kept)) << name << kept;
    }
    EXPECT_TRUE(fs::exists(folder / "Other/a.wav"));
    EXPECT_TRUE(fs::exists(folder / "beside.wav"));
}

TEST_F(Facade, DeletesNothingWhereTheProgramHasNotSetItsFolder)
{
    folder.MakeFolder("On_Note");
    const std::string wave = folder.Write("On_Note/a.wav", "x");
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    SetProgramFolder({});
    {
        ZELFunctions object;
    }
    fs::current_path(before);
    EXPECT_TRUE(fs::exists(wave));
    SetProgramFolder(folder.Path());
    {
        ZELFunctions object;
    }
    EXPECT_FALSE(fs::exists(wave));
}

TEST_F(Facade, EndsQuietlyWhereTheFoldersAreMissingOrNoFolders)
{
    folder.Write("On_Note", "a file of that name");
    EXPECT_NO_THROW({ ZELFunctions object; });
    EXPECT_TRUE(fs::exists(folder / "On_Note"));
    SetProgramFolder(folder / "missing");
    EXPECT_NO_THROW({ ZELFunctions object; });
    EXPECT_EQ(messages.shown, test::Shown{});
}

} // namespace
} // namespace lumora
