#include "audio/WaveSource.h"

#include "audio/FrameRule.h"
#include "audio/SampleConversion.h"
#include "audio/WaveChunks.h"
#include "audio/WaveHeader.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

namespace lumora {

namespace {

/// Values that stay in the nearest cache between reading and conversion.
constexpr std::size_t kPieceValues = 8192;

/// Values of one chunk of the highest count of channels served. A header may promise this much
/// more than its file holds.
std::int64_t MostMissingValues(std::int32_t rate_hz)
{
    constexpr std::int64_t kHighestRate = HighestRateOfFrame(kLongestBlock);
    const std::int64_t rate = std::clamp<std::int64_t>(rate_hz, 0, kHighestRate);
    return std::int64_t{2} * kBlocksPerChunk * (rate * kRuleFrame / kRuleRate + 1);
}

} // namespace

WaveSource::WaveSource(const std::string& FileName)
    : file_name_(FileName), file_(open_wav(FileName))
{
    if (!file_.Failed()) info_ = ReadStreamHeader(file_.Number());
}

bool WaveSource::HasFrames() const
{
    const bool plain = info_.nBitsPerSample == 8 || info_.nBitsPerSample == 16;
    return !Failed() && plain && info_.nChannels >= 1 && info_.TotalSamples >= 1;
}

std::int64_t WaveSource::BytesPerFrame() const
{
    return info_.nBitsPerSample * info_.nChannels / 8;
}

std::int64_t WaveSource::PositionOf(std::int64_t frame) const
{
    return info_.DataStart + (frame - 1) * BytesPerFrame();
}

std::int64_t WaveSource::BytesFrom(std::int64_t frame) const
{
    return std::max<std::int64_t>(FileLength(file_.Number()) - PositionOf(frame) + 1, 0);
}

std::int64_t WaveSource::FramesHeld() const
{
    if (!HasFrames()) return 0;
    return std::min<std::int64_t>(info_.TotalSamples, BytesFrom(1) / BytesPerFrame());
}

void WaveSource::CheckHeld(const FrameRange& range) const
{
    if (!HasFrames()) Raise(ErrorNumber::Subscript, file_name_);
    const std::int64_t values_there = BytesFrom(range.first) * 8 / info_.nBitsPerSample;
    const std::int64_t promised = range.count * info_.nChannels;
    if (promised - values_there > MostMissingValues(info_.nSamplesPerSec))
        Raise(ErrorNumber::OutOfMemory, file_name_);
}

void WaveSource::Read(std::int64_t first, std::span<std::uint8_t> bytes)
{
    if (info_.nBitsPerSample == 16) Raise(ErrorNumber::TypeMismatch, file_name_);
    StandAt(first, bytes.size());
    ReadHeld(std::as_writable_bytes(bytes));
}

void WaveSource::Read(std::int64_t first, std::span<std::int16_t> shorts)
{
    StandAt(first, shorts.size());
    if (info_.nBitsPerSample == 16)
        ReadHeld(std::as_writable_bytes(shorts));
    else
        ReadConverted<std::uint8_t>(shorts, ShortsFromBytes);
}

void WaveSource::Read(std::int64_t first, std::span<double> samples)
{
    StandAt(first, samples.size());
    if (info_.nBitsPerSample == 16)
        ReadConverted<std::int16_t>(samples, SamplesFromShorts);
    else
        ReadConverted<std::uint8_t>(samples, SamplesFromBytes);
}

/// All of the values must be the header's: what stands behind its data is no sample.
void WaveSource::StandAt(std::int64_t first, std::size_t values)
{
    const bool inside =
        HasFrames() && first >= 1 && first <= info_.TotalSamples &&
        static_cast<std::int64_t>(values) <= (info_.TotalSamples - first + 1) * info_.nChannels;
    if (!inside) Raise(ErrorNumber::Subscript, file_name_);
    SeekTo(file_.Number(), PositionOf(first));
}

/// What the file does not hold is zero.
void WaveSource::ReadHeld(std::span<std::byte> bytes)
{
    const std::size_t read = ReadBytes(file_.Number(), bytes);
    std::ranges::fill(bytes.subspan(read), std::byte{0});
}

template <class Raw, class T>
void WaveSource::ReadConverted(std::span<T> values,
                               void (*convert)(std::span<const Raw>, std::span<T>))
{
    std::array<Raw, kPieceValues> piece;
    while (!values.empty()) {
        const std::span<Raw> raw = std::span(piece).first(std::min(piece.size(), values.size()));
        ReadHeld(std::as_writable_bytes(raw));
        convert(raw, values.first(raw.size()));
        values = values.subspan(raw.size());
    }
}

bool WaveSource::HasShrunk() const
{
    return !file_.Failed() && FileLengthNow(file_.Number()) < FileLength(file_.Number());
}

void RefuseSourceAsTarget(const std::string& FileName, const std::string& Target)
{
    std::error_code not_there;
    if (std::filesystem::equivalent(WaveFileName(FileName), Target, not_there))
        Raise(ErrorNumber::PathFileAccess, Target);
}

} // namespace lumora
