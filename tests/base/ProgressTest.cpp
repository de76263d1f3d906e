#include "base/Progress.h"

#include <gtest/gtest.h>
#include <vector>

namespace lumora {
namespace {

TEST(RunHooks, MayAllBeEmpty)
{
    const RunHooks hooks;
    EXPECT_EQ(hooks.Bar, nullptr);
    EXPECT_NO_THROW(hooks.Pump());
    EXPECT_NO_THROW(hooks.Publish(50));
    EXPECT_NO_THROW(hooks.StartBar(3));
    EXPECT_NO_THROW(hooks.StepBar());
    EXPECT_NO_THROW(hooks.FillBar());
    EXPECT_FALSE(hooks.Cancelled());
}

TEST(RunHooks, PassEachCallOn)
{
    int pumped = 0;
    std::vector<int> published;
    RunHooks hooks;
    hooks.PumpEvents = [&] { ++pumped; };
    hooks.PublishPercent = [&](std::int16_t percent) { published.push_back(percent); };
    hooks.Publish(1);
    hooks.Pump();
    hooks.Publish(100);
    EXPECT_EQ(pumped, 1);
    EXPECT_EQ(published, (std::vector{1, 100}));
    bool cancel = false;
    hooks.CancelRequested = [&] { return cancel; };
    EXPECT_FALSE(hooks.Cancelled());
    cancel = true;
    EXPECT_TRUE(hooks.Cancelled());
}

TEST(RunHooks, MoveTheirBarFromEmptyToFull)
{
    ProgressBar bar{7, 8, 9};
    const RunHooks hooks{&bar};
    const auto expect = [&](int value) {
        EXPECT_EQ(bar.Value, value);
        EXPECT_EQ(bar.Min, 0);
        EXPECT_EQ(bar.Max, 5);
    };
    hooks.StartBar(5);
    expect(0);
    hooks.StepBar();
    expect(1);
    hooks.StepBar();
    expect(2);
    hooks.FillBar();
    expect(5);
}

TEST(ProgressBar, StartsAtZero)
{
    const ProgressBar bar;
    EXPECT_EQ(bar.Value, 0);
    EXPECT_EQ(bar.Min, 0);
    EXPECT_EQ(bar.Max, 0);
}

} // namespace
} // namespace lumora
