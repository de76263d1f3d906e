#include "cli/files/RunLimits.h"

#include "audio/WaveRoom.h"
#include "cli/terminal/Wording.h"
#include "engine/BlockPlan.h"
#include "overfilter/OverFilterPlan.h"

#include <algorithm>

namespace lumora {

namespace {

/// Results have 16 bits.
std::int64_t MostToPitch(const SoundShape& sound)
{
    return std::min(BlockPlan::MostSamples(sound.rate_hz),
                    MostFramesInWave(sound.channels, sizeof(std::int16_t)));
}

std::string TooShortToPitch(const SoundShape& sound)
{
    const std::int64_t least = BlockPlan::LeastSamples(sound.rate_hz);
    if (sound.samples >= least) return {};
    return "it is too short: " + SamplesText(sound.samples, sound.rate_hz) + ", and at least " +
           SamplesText(least, sound.rate_hz) + ", one block, are needed";
}

std::int64_t MostToDeclip(const SoundShape& sound)
{
    return MostFramesInWave(sound.channels, sound.bytes_per_sample);
}

std::string TooShortToDeclip(const SoundShape& sound)
{
    return sound.samples >= OverFilterPlan::kLeastSamples ? ""
                                                          : "there is not a single sample in it";
}

} // namespace

const RunLimits kPitchLimits = {BlockPlan::kLowestRate, BlockPlan::kHighestRate, MostToPitch,
                                TooShortToPitch};
const RunLimits kDeclipLimits = {OverFilterPlan::kLowestRate, OverFilterPlan::kHighestRate,
                                 MostToDeclip, TooShortToDeclip};

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
