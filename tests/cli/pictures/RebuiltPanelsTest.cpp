#include "cli/pictures/RebuiltPanels.h"

#include <gtest/gtest.h>

namespace lumora::test {
namespace {

/// A buffer of 200 samples in a stream of which sample k is k before and -k where it is rebuilt. At
/// 1000 Hz 12 samples to either side are shown, and at most 96 in a panel.
class RebuiltPanelsTest : public testing::Test {
protected:
    RebuiltPanelsTest()
    {
        for (std::size_t k = 0; k < stream_.size(); ++k)
            stream_[k] = static_cast<double>(k);
    }

    /// Rebuilds the region and shows the buffer in whose middle it is.
    void Rebuild(std::int64_t start, std::int64_t length)
    {
        constexpr std::int64_t kBuffer = 200;
        const std::int64_t buffer_first = start - 90;
        std::vector<double> before;
        for (std::int64_t k = buffer_first; k < buffer_first + kBuffer; ++k)
            before.push_back(k < 1 ? 0.0 : stream_[static_cast<std::size_t>(k)]);
        std::vector<double> after = before;
        for (std::int64_t k = start; k < start + length; ++k) {
            stream_[static_cast<std::size_t>(k)] *= -1.0;
            after[static_cast<std::size_t>(k - buffer_first)] *= -1.0;
        }
        panels_.Take({start, static_cast<std::int16_t>(length), 1, 90, before, after});
    }

    /// Each panel shows the source before, and after it the stream as it has become.
    void ExpectTruth() const
    {
        for (const RebuiltPanel& panel : panels_.Panels()) {
            ASSERT_EQ(panel.after.size(), panel.before.size());
            ASSERT_EQ(panel.is_rebuilt.size(), panel.before.size());
            for (std::size_t k = 0; k < panel.before.size(); ++k) {
                const std::size_t place = static_cast<std::size_t>(panel.first) + k;
                EXPECT_EQ(panel.before[k], static_cast<double>(place));
                EXPECT_EQ(panel.after[k], stream_[place]) << place;
                EXPECT_EQ(panel.is_rebuilt[k], stream_[place] < 0.0) << place;
            }
        }
    }

    std::vector<double> stream_ = std::vector<double>(3000);
    RebuiltPanels panels_{1000, 1};
};

TEST_F(RebuiltPanelsTest, ShowARegionWithItsSurroundings)
{
    Rebuild(500, 5);
    ASSERT_EQ(panels_.Panels().size(), 1U);
    EXPECT_EQ(panels_.Panels()[0].first, 488);
    EXPECT_EQ(panels_.Panels()[0].End(), 517);
    ExpectTruth();
}

TEST_F(RebuiltPanelsTest, BeginWithTheStreamAtTheEarliest)
{
    Rebuild(3, 2);
    EXPECT_EQ(panels_.Panels().at(0).first, 1);
    ExpectTruth();
}

TEST_F(RebuiltPanelsTest, ShareAPanelWhereTheirSurroundingsMeet)
{
    Rebuild(500, 5);
    Rebuild(529, 3); // its surroundings begin right behind those of the first
    Rebuild(545, 1);
    ASSERT_EQ(panels_.Panels().size(), 1U);
    EXPECT_EQ(panels_.Panels()[0].End(), 558);
    Rebuild(571, 1); // a sample further away
    EXPECT_EQ(panels_.Panels().size(), 2U);
    EXPECT_EQ(panels_.Regions(), 4);
    ExpectTruth();
}

TEST_F(RebuiltPanelsTest, DoNotGrowWithoutBoundAndStayTrueWhereTheyOverlap)
{
    for (std::int64_t start = 500; start < 2500; start += 7)
        Rebuild(start, 3);
    EXPECT_EQ(panels_.Panels().size(), RebuiltPanels::kMost);
    for (const RebuiltPanel& panel : panels_.Panels())
        EXPECT_LE(panel.before.size(), 96U);
    ExpectTruth();
}

TEST_F(RebuiltPanelsTest, AreTheFirstSix)
{
    for (std::int64_t start = 200; start <= 2000; start += 200)
        Rebuild(start, 2);
    ASSERT_EQ(panels_.Panels().size(), 6U);
    EXPECT_EQ(panels_.Panels().back().first, 1188);
    EXPECT_EQ(panels_.Regions(), 6);
    ExpectTruth();
}

} // namespace
} // namespace lumora::test
