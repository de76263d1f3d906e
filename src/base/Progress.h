#pragma once

#include <cstdint>
#include <functional>

namespace lumora {

/// What long work writes its progress to. Nobody is told of a change: a screen looks at it when
/// events are pumped.
struct ProgressBar {
    std::int32_t Value = 0;
    std::int32_t Min = 0;
    std::int32_t Max = 0;
};

/// What long work shows and asks on its way; the work says which of these it serves, and when.
/// Everything may be empty.
struct RunHooks {
    ProgressBar* Bar = nullptr;
    /// Lets the program handle what has come up.
    std::function<void()> PumpEvents = {};
    /// Takes the percentage done, 1 to 100.
    std::function<void(std::int16_t)> PublishPercent = {};
    /// True ends work that can be cancelled.
    std::function<bool()> CancelRequested = {};

    /// An empty bar from 0 to `max`.
    void StartBar(std::int32_t max) const
    {
        if (Bar) *Bar = {0, 0, max};
    }
    void StepBar() const
    {
        if (Bar) ++Bar->Value;
    }
    void FillBar() const
    {
        if (Bar) Bar->Value = Bar->Max;
    }
    void Pump() const
    {
        if (PumpEvents) PumpEvents();
    }
    void Publish(std::int16_t percent) const
    {
        if (PublishPercent) PublishPercent(percent);
    }
    bool Cancelled() const { return CancelRequested && CancelRequested(); }
};

} // namespace lumora
