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

/// What long work calls on its way. Everything may be empty.
struct RunHooks {
    ProgressBar* Bar = nullptr;
    /// Lets the program handle what has come up; called between chunks.
    std::function<void()> PumpEvents = {};
    /// Takes the percentage done, 1 to 100.
    std::function<void(std::int16_t)> PublishPercent = {};

    void Pump() const
    {
        if (PumpEvents) PumpEvents();
    }
    void Publish(std::int16_t percent) const
    {
        if (PublishPercent) PublishPercent(percent);
    }
};

} // namespace lumora
