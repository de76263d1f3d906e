#include "cli/RunLimits.h"

#include "audio/FrameRule.h"
#include "cli/Wording.h"

#include <algorithm>
#include <limits>

namespace lumora {

namespace {

// Below the first a block has no coarse step, above the second its buffers pass 16-bit positions.
constexpr std::int32_t kLowestRate = 2206;
constexpr std::int32_t kHighestRate = 820510;

/// Samples of the longest sound: chunks are counted in 16 bits, and a WAVE file's sizes are signed
/// 32-bit numbers of bytes, 50 of which belong to the header.
std::int64_t MostSamples(const SoundShape& sound)
{
    const std::int64_t chunk_len = std::int64_t{FrameLength(sound.rate_hz)} * kBlocksPerChunk;
    const std::int64_t by_chunks =
        (std::numeric_limits<std::int16_t>::max() + std::int64_t{1}) * chunk_len - 1;
    const std::int64_t by_bytes = (std::numeric_limits<std::int32_t>::max() - std::int64_t{50}) /
                                  (std::int64_t{2} * sound.channels);
    return std::min(by_chunks, by_bytes);
}

} // namespace

std::string LimitFaultButLength(const SoundShape& sound)
{
    if (sound.channels < 1 || sound.channels > 2)
        return "it has " + std::to_string(sound.channels) +
               " channels, and 1 or 2 can be worked on; mix it down first, for instance with "
               "ffmpeg -i IN -ac 2 OUT.wav";
    if (sound.rate_hz < kLowestRate || sound.rate_hz > kHighestRate)
        return "its rate is " + std::to_string(sound.rate_hz) + " Hz, and " +
               std::to_string(kLowestRate) + " to " + std::to_string(kHighestRate) +
               " Hz can be worked on; resample it first, for instance with ffmpeg -i IN -ar 44100 "
               "OUT.wav";
    const std::int64_t most = MostSamples(sound);
    if (sound.samples > most)
        return "it lasts " + LengthText(sound.samples, sound.rate_hz) + ", and at most " +
               LengthText(most, sound.rate_hz) +
               " of such a sound fit in one WAVE file; cut it into parts";
    return {};
}

std::string LimitFault(const SoundShape& sound)
{
    std::string fault = LimitFaultButLength(sound);
    if (!fault.empty()) return fault;
    const std::int64_t least = FrameLength(sound.rate_hz);
    if (sound.samples >= least) return {};
    return "it is too short: " + SamplesText(sound.samples, sound.rate_hz) + ", and at least " +
           SamplesText(least, sound.rate_hz) + ", one block, are needed";
}

} // namespace lumora
