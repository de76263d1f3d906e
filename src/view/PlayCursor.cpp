#include "view/PlayCursor.h"

#include "base/Numbers.h"

namespace lumora {

SoundMeasure SoundMeasure::Of(const WaveInfo& info)
{
    return {info.nSamplesPerSec, info.nBitsPerSample, info.nChannels, info.TotalSamples};
}

double SoundMeasure::MediaTimeLength() const
{
    return Divide(SamplesAmount, SamplesPerSec);
}

bool PlayCursor::IsMeasured() const
{
    return sound_.SamplesPerSec != 0 && sound_.BitsPerSample != 0 && sound_.Channel != 0;
}

void PlayCursor::Clear()
{
    *this = PlayCursor(sound_);
}

void PlayCursor::SetTimePosition(double seconds)
{
    const std::int32_t bytes =
        CLng(seconds * sound_.SamplesPerSec * sound_.BitsPerSample * sound_.Channel / 8.0);
    const std::int32_t number =
        CLng(Divide(sound_.SamplesAmount * seconds, sound_.MediaTimeLength()) + 1.0);
    seconds_ = seconds;
    bytes_ = bytes;
    number_ = number;
}

void PlayCursor::SetPosition(std::int32_t bytes)
{
    if (!IsMeasured()) return Clear();
    const std::int64_t frame = sound_.BitsPerSample * sound_.Channel / 8;
    number_ = CLng(DivideWhole(bytes, frame) + 1);
    const double rate_hz = sound_.SamplesPerSec;
    seconds_ = bytes / (rate_hz * sound_.BitsPerSample * sound_.Channel / 8.0);
    bytes_ = bytes;
}

void PlayCursor::SetNumberPerSample(std::int32_t number)
{
    if (!IsMeasured()) return Clear();
    const double before = number - 1.0;
    bytes_ = CLng(sound_.BitsPerSample * sound_.Channel / 8.0 * before);
    seconds_ = before / sound_.SamplesPerSec;
    number_ = number;
}

} // namespace lumora
