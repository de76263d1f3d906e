#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <filesystem>
#include <sys/resource.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class Limits : public testing::Test {
protected:
    /// Silence of so many bytes that takes no room on the disk; `ahead` goes between head and data.
    std::string Silence(const FormatSpec& format, std::int64_t bytes,
                        const std::string& ahead = "") const
    {
        const std::string head = Wave(FormatChunk(format) + ahead + Chunk("data", "", bytes));
        std::string path = folder_.Write("in.wav", head);
        fs::resize_file(path, head.size() + static_cast<std::size_t>(bytes));
        return path;
    }

    CommandResult Run(const std::string& in, const Surroundings& around = {}) const
    {
        return Lumora({"pitch", in, folder_ / "out.wav", "--tones", "1"}, around);
    }
    CommandResult Declip(const std::string& in, const Surroundings& around = {}) const
    {
        return Lumora({"declip", in, folder_ / "out.wav", "--plot", folder_ / "out.png"}, around);
    }

    TempFolder folder_;
};

TEST_F(Limits, TheLowestAndTheHighestRateRun)
{
    for (const std::int32_t rate_hz : {2206, 820510}) {
        const std::string in = folder_.Write("in.wav", TuneWave(20000, 1, rate_hz));
        EXPECT_EQ(Run(in).status, 0) << rate_hz;
        EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", EngineResult(in, std::exp2(-1.0 / 6.0))));
        fs::remove(folder_ / "out.wav");
    }
}

TEST_F(Limits, TheLowestAndTheHighestRateRunThroughTheOverRangeFilter)
{
    for (const std::int32_t rate_hz : {919, 2463135}) {
        const std::string in = folder_.Write("in.wav", TuneWave(20000, 1, rate_hz));
        const CommandResult result = Declip(in);
        EXPECT_EQ(result.status, 0) << rate_hz << result.err;
        EXPECT_EQ(fs::file_size(folder_ / "out.wav"), 44U + 40000U);
        fs::remove(folder_ / "out.wav");
    }
}

TEST_F(Limits, AResultBeyondTwoGibibytesIsRefusedAhead)
{
    // 8 bits become 16: the result has twice the input's bytes.
    const CommandResult result = Run(Silence({.bits = 8, .rate_hz = 44100}, 0x41000000));
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("it lasts 6:52:08.322, and at most 6:45:47.886 of such a sound fit"),
              std::string::npos)
        << result.err;
    EXPECT_EQ(NamesIn(folder_.Path()), Names{"in.wav"});
}

TEST_F(Limits, MoreChunksThanTheEngineCountsAreRefusedAhead)
{
    // At 2206 Hz a chunk has 145 blocks of 22 samples, and 32,767 chunks are counted.
    constexpr std::int64_t kFirstTooLong = 32768LL * 145 * 22;
    const CommandResult result = Run(Silence({.bits = 8, .rate_hz = 2206}, kFirstTooLong));
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("it lasts 13:09:44.369, and at most 13:09:44.369"), std::string::npos)
        << result.err;
    EXPECT_EQ(NamesIn(folder_.Path()), Names{"in.wav"});
}

// A sanitizer takes more memory than the limit by itself.
#if defined(__has_feature)
#define LUMORA_SANITIZED __has_feature(address_sanitizer)
#else
#define LUMORA_SANITIZED 0
#endif
#if !LUMORA_SANITIZED
void HaveSmallMemory()
{
    const rlimit limit = {8 << 20, 8 << 20};
    setrlimit(RLIMIT_DATA, &limit);
}

TEST_F(Limits, ATableThatMemoryDoesNotHoldIsAClearLine)
{
    const std::string in = folder_.Write("in.csv", "");
    fs::resize_file(in, 30 << 20);
    const Names words = {"arr", "from-csv", in, folder_ / "out.arr", "--as", "matrix"};
    const CommandResult result = Lumora(words, {.before = HaveSmallMemory});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "lumora: " + in +
                              ": there is not enough memory; end other programs and run it "
                              "again\n");
    EXPECT_EQ(NamesIn(folder_.Path()), Names{"in.csv"});
}

TEST_F(Limits, AnHourNeedsNoMoreMemoryThanAMinute)
{
    constexpr std::int64_t kHour = 3600LL * 8000 * 2;
    const std::string as_it_is;
    const std::string converted = Chunk("LIST", "INFO");
    for (const std::string& ahead : {as_it_is, converted}) {
        const std::string in = Silence({.rate_hz = 8000}, kHour, ahead);
        const CommandResult result = Run(in, {.before = HaveSmallMemory});
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err.empty(), ahead.empty()) << result.err;
        EXPECT_EQ(fs::file_size(folder_ / "out.wav"), 58U + kHour);
        fs::remove(folder_ / "out.wav");
        const CommandResult filtered = Declip(in, {.before = HaveSmallMemory});
        EXPECT_EQ(filtered.status, 0) << filtered.err;
        EXPECT_EQ(fs::file_size(folder_ / "out.wav"), 44U + kHour);
        fs::remove(folder_ / "out.wav");
    }
}

TEST_F(Limits, NorDoRegionsWithoutNumberThatCannotBePredicted)
{
    // Of a constant nothing can be solved for: each peak has a message of its own.
    std::vector<std::int16_t> samples(6000000, 16384);
    for (std::size_t k = 30; k < samples.size(); k += 60)
        samples[k] = 29000;
    const std::string in =
        folder_.Write("in.wav", PlainWave({.rate_hz = 4000}, BytesOfSamples(samples)));
    const CommandResult result =
        Lumora({"declip", in, folder_ / "out.wav", "--json"}, {.before = HaveSmallMemory});
    EXPECT_EQ(result.status, 0) << result.err;
    const auto document = nlohmann::json::parse(result.out).at("results").at(0);
    EXPECT_GT(document.at("regions_left_unpredicted"), 99000);
}
#endif

} // namespace
} // namespace lumora::test
