#pragma once

#include "audio/WaveRecords.h"

#include <cstdint>

namespace lumora {

/// What of a sound turns a position from one form into another.
struct SoundMeasure {
    std::int32_t SamplesPerSec = 0;
    std::int16_t BitsPerSample = 0;
    std::int16_t Channel = 0;
    std::int32_t SamplesAmount = 0; ///< of each channel

    static SoundMeasure Of(const WaveInfo& info);

    /// Seconds. Error 11 where there is no rate.
    double MediaTimeLength() const;
    bool operator==(const SoundMeasure&) const = default;
};

/// A place in a sound as one value of three forms: seconds, bytes of data, and the number of a
/// sample from 1. Each setter takes its own form as given and derives the two others. A fresh
/// cursor, and one set by bytes or number where rate, bits or channels are not known, stands at the
/// start of its sound.
class PlayCursor {
public:
    PlayCursor() = default;
    explicit PlayCursor(const SoundMeasure& sound) : sound_(sound) {}

    double TimePosition() const { return seconds_; }
    std::int32_t Position() const { return bytes_; }
    std::int32_t NumberPerSample() const { return number_; }

    /// Errors 6 (a form beyond 32 bits) and 11 (a sound without length, or without a rate).
    void SetTimePosition(double seconds);
    /// Within a frame the number is that of the frame. Error 11 (a frame of less than a byte).
    void SetPosition(std::int32_t bytes);
    /// Error 6.
    void SetNumberPerSample(std::int32_t number);

    bool operator==(const PlayCursor&) const = default;

private:
    bool IsMeasured() const;
    void Clear();

    SoundMeasure sound_;
    double seconds_ = 0.0;
    std::int32_t bytes_ = 0;
    std::int32_t number_ = 1;
};

} // namespace lumora
