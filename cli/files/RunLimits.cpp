#include "cli/files/RunLimits.h"

#include "audio/FrameRule.h"
#include "cli/terminal/Wording.h"

#include <algorithm>
#include <limits>

namespace lumora {

namespace {

/// Samples of a sound for which a plain WAVE file has room: its sizes are signed 32-bit numbers of
/// bytes, 50 of which belong to the header.
std::int64_t MostInWaveFile(const SoundShape& sound, std::int64_t bytes_per_sample)
{
    return (std::numeric_limits<std::int32_t>::max() - std::int64_t{50}) /
           (bytes_per_sample * sound.channels);
}

/// Results have 16 bits, and chunks are counted in 16 bits too.
std::int64_t MostToPitch(const SoundShape& sound)
{
    const std::int64_t chunk_len = std::int64_t{FrameLength(sound.rate_hz)} * kBlocksPerChunk;
    const std::int64_t by_chunks =
        (std::numeric_limits<std::int16_t>::max() + std::int64_t{1}) * chunk_len - 1;
    return std::min(by_chunks, MostInWaveFile(sound, sizeof(std::int16_t)));
}

std::string TooShortToPitch(const SoundShape& sound)
{
    const std::int64_t least = FrameLength(sound.rate_hz);
    if (sound.samples >= least) return {};
    return "it is too short: " + SamplesText(sound.samples, sound.rate_hz) + ", and at least " +
           SamplesText(least, sound.rate_hz) + ", one block, are needed";
}

std::int64_t MostToDeclip(const SoundShape& sound)
{
    return MostInWaveFile(sound, sound.bytes_per_sample);
}

std::string TooShortToDeclip(const SoundShape& sound)
{
    return sound.samples > 0 ? "" : "there is not a single sample in it";
}

} // namespace

// Below the first rate a block has no coarse step, above the second its buffers pass 16-bit
// positions.
const RunLimits kPitchLimits = {2206, 820510, MostToPitch, TooShortToPitch};
// Below the first rate the order of the prediction is 0, above the second the filter's buffer
// passes 16-bit positions.
const RunLimits kDeclipLimits = {919, 2463135, MostToDeclip, TooShortToDeclip};

std::string LimitFaultButLength(const RunLimits& limits, const SoundShape& sound)
{
    if (sound.channels < 1 || sound.channels > 2)
        return "it has " + std::to_string(sound.channels) +
               " channels, and 1 or 2 can be worked on; mix it down first, for instance with "
               "ffmpeg -i IN -ac 2 OUT.wav";
    if (sound.rate_hz < limits.lowest_rate_hz || sound.rate_hz > limits.highest_rate_hz)
        return "its rate is " + std::to_string(sound.rate_hz) + " Hz, and " +
               std::to_string(limits.lowest_rate_hz) + " to " +
               std::to_string(limits.highest_rate_hz) +
               " Hz can be worked on; resample it first, for instance with ffmpeg -i IN -ar 44100 "
               "OUT.wav";
    const std::int64_t most = limits.most_samples(sound);
    if (sound.samples > most)
        return "it lasts " + LengthText(sound.samples, sound.rate_hz) + ", and at most " +
               LengthText(most, sound.rate_hz) +
               " of such a sound fit in one WAVE file; cut it into parts";
    return {};
}

std::string LimitFault(const RunLimits& limits, const SoundShape& sound)
{
    std::string fault = LimitFaultButLength(limits, sound);
    return fault.empty() ? limits.too_short(sound) : fault;
}

} // namespace lumora
