#include "overfilter/OverFilterPlan.h"

#include "overfilter/ClsRemoveOverPolynom.h"
#include "overfilter/OverFiles.h"
#include "overfilter/RemoveOverStream.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

TEST(OverFilterPlan, TellsTheRatesAtWhichTheFilterCanBeSetUp)
{
    EXPECT_EQ(OverFilterPlan::kLowestRate, 919);      // an order of 0.50014; 918 gives 0.4996
    EXPECT_EQ(OverFilterPlan::kHighestRate, 2463135); // 24575 and 8192 samples
    ClsRemoveOverPolynom filter;
    const auto raised = [&](std::int32_t rate_hz) {
        return Raised([&] { SetUpForRate(filter, rate_hz); });
    };
    EXPECT_EQ(raised(OverFilterPlan::kLowestRate), 0);
    EXPECT_EQ(raised(OverFilterPlan::kHighestRate), 0);
    EXPECT_EQ(filter.BufferLen(), 32767);
    EXPECT_EQ(raised(OverFilterPlan::kLowestRate - 1), kSubscript);
    EXPECT_EQ(raised(OverFilterPlan::kHighestRate + 1), kOverflow);
}

TEST(OverFilterPlan, TellsTheShortestSoundThatRuns)
{
    const TempFolder folder;
    const auto raised = [&](std::int64_t samples) {
        Source source;
        source.numbers.assign(static_cast<std::size_t>(samples), 1000);
        const std::string in = folder.Write("in.wav", FileOf(source));
        return Raised([&] { RemoveOverStream(in, folder / "out.wav", OverFilterLength::Kept); });
    };
    EXPECT_EQ(raised(OverFilterPlan::kLeastSamples), 0);
    EXPECT_EQ(raised(OverFilterPlan::kLeastSamples - 1), kSubscript);
}

} // namespace
} // namespace lumora
