#include "cli/files/InputCheck.h"

#include "audio/EnginePath.h"
#include "audio/WaveStream.h"
#include "base/QuietMessages.h"
#include "base/RunTimeError.h"
#include "cli/terminal/Wording.h"
#include "platform/FileFault.h"
#include "platform/SoundFile.h"

namespace lumora {

std::string ChunkName(const std::string& id)
{
    return id.empty() ? "\"    \"" : NameText(id);
}

namespace {

constexpr char kNeverCompleted[] = "its header was never completed";

/// What keeps the engine's reader from a WAVE file whose header it has read; empty if nothing does.
std::string HeaderFault(const WaveOutline& outline)
{
    const WaveInfo& header = outline.header;
    if (header.wFormatTag != 1)
        return "its samples are not plain PCM (format tag " +
               std::to_string(static_cast<std::uint16_t>(header.wFormatTag)) + ")";
    if (header.nBitsPerSample != 8 && header.nBitsPerSample != 16)
        return "its samples have " + std::to_string(header.nBitsPerSample) + " bits";
    if (header.nChannels < 1 || header.nChannels > 2)
        return "it has " + std::to_string(header.nChannels) + " channels";
    if (header.nBlockAlign != header.nChannels * header.nBitsPerSample / 8)
        return "its block alignment does not fit its samples";
    if (outline.NeverCompleted()) return kNeverCompleted;
    if (outline.IsCutShort()) return "it is cut short";
    return {};
}

/// Asks the engine's reader; answers what keeps it from the file, empty if nothing does.
std::string EngineFault(const std::string& path, WaveOutline& outline)
{
    if (!outline.IsWave()) return "it is no WAVE file";
    const QuietMessages messages;
    try {
        const WaveInfo header = ReadWaveInfo(EnginePath(path));
        if (!messages.Empty()) return "its header is damaged (" + messages.First() + ")";
        outline.header = header;
        return HeaderFault(outline);
    } catch (const RunTimeError&) {
        if (const WaveChunk* stranger = outline.Stranger())
            return "a chunk " + ChunkName(stranger->id) + " stands ahead of its sound";
        return outline.NeverCompleted() ? kNeverCompleted : "its header is damaged";
    }
}

void TakeWhatEngineReads(InputCheck& check)
{
    const WaveInfo& header = check.outline.header;
    check.road = Road::Direct;
    check.read = true;
    check.sound = {header.nSamplesPerSec, header.nChannels, header.TotalSamples,
                   header.nBitsPerSample / 8};
}

/// The frames that the file's header promises, where it is known to hold fewer.
std::int64_t SamplesPromised(const WaveOutline& outline, const SoundShape& sound)
{
    const std::int64_t there = outline.DataBytesThere();
    if (!outline.IsCutShort() || there == 0) return 0;
    return static_cast<std::int64_t>(static_cast<double>(sound.samples) *
                                     static_cast<double>(outline.Data()->bytes) /
                                     static_cast<double>(there));
}

/// Why a sound that libsndfile reads cannot be worked on; empty if it can.
std::string SoundFault(const InputCheck& check, const RunLimits& limits, bool length_known)
{
    if (!length_known) return LimitFaultButLength(limits, check.sound);
    if (check.sound.samples == 0 && check.outline.NeverCompleted())
        return std::string(kNeverCompleted) +
               ", so that it promises no sound; repair it first, for instance with sox "
               "--ignore-length IN OUT.wav";
    return LimitFault(limits, check.sound);
}

void TakeWhatLibraryReads(const std::string& path, const RunLimits& limits, InputCheck& check)
{
    try {
        const SoundFile file(path);
        check.road = Road::Converted;
        check.read = true;
        check.format = file.Format();
        check.sound = {file.RateHz(), file.Channels(), file.Samples().value_or(0), 2};
        check.samples_promised = SamplesPromised(check.outline, check.sound);
        if (!check.outline.IsWave()) check.reason = "it is " + check.format;
        const std::string fault = SoundFault(check, limits, file.Samples().has_value());
        if (fault.empty()) return;
        check.road = Road::Refused;
        check.reason = fault;
    } catch (const UnreadableSound& unreadable) {
        check.reason = "cannot be read as sound (" + check.reason + "; " + unreadable.what() +
                       "); if it is sound, make a WAVE file of it first, for instance with ffmpeg "
                       "-i IN OUT.wav";
    }
}

} // namespace

InputCheck CheckInput(const std::string& path, const RunLimits& limits)
{
    InputCheck check;
    check.reason = FileFault(path, "sound");
    if (!check.reason.empty()) return check;
    check.outline = ReadWaveOutline(path);
    check.reason = EngineFault(path, check.outline);
    if (!check.reason.empty()) {
        TakeWhatLibraryReads(path, limits, check);
        return check;
    }
    TakeWhatEngineReads(check);
    check.reason = LimitFault(limits, check.sound);
    if (!check.reason.empty()) check.road = Road::Refused;
    return check;
}

} // namespace lumora
