#pragma once

#include "audio/WaveRecords.h"
#include "base/ByteStream.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace lumora {

/// Frames of a file, one after the other.
struct FrameRange {
    std::int64_t first = 1; ///< from 1
    std::int64_t count = 0;
};

/// A WAVE file read piece by piece. It is opened once and its header read once; then any frames
/// come by range, of any number of channels, interleaved as they lie in the file. Bytes that the
/// header promises but the file does not hold are zero.
///
/// Keeps: the open file, to the end of its life. A file that is removed or replaced meanwhile is
/// read on as it was; one that is cut down reads as zeros behind its new end (HasShrunk).
/// Cost:  nothing is allocated; a read of bytes costs one of the system.
class WaveSource {
public:
    /// Opens FileName and reads its header, with the messages and errors of ReadWaveInfo.
    explicit WaveSource(const std::string& FileName);

    /// The header; an empty record where there is no file.
    const WaveInfo& Info() const { return info_; }
    /// There is no file, or its header is at fault: a message has told so.
    bool Failed() const { return !info_.Message.empty() || info_.DataID.empty(); }
    /// There is something to read: at least one frame, of 8 or 16 bits.
    bool HasFrames() const;
    FrameRange AllFrames() const { return {1, info_.TotalSamples}; }
    /// Frames of the header that lay whole in the file when it was opened; 0 where HasFrames is
    /// not.
    std::int64_t FramesHeld() const;

    /// Error 7 where the file lacks more of these frames than one chunk has of two channels (1.45
    /// seconds): a promise that is not worth the memory, or the time. To be asked before either is
    /// spent, of the whole file by a run that reads all of it. Error 9 where HasFrames is not.
    void CheckHeld(const FrameRange& range) const;

    /// Reads whole frames from `first` on. As bytes: those of an 8-bit file. As 16-bit numbers:
    /// samples times 32768, to which bytes widen exactly. As doubles: 16 bits value / 32768, 8 bits
    /// (value - 128) / 128. Errors: 9 for frames that the header does not have, and where HasFrames
    /// is not; 13 for bytes of 16 bits; 57.
    void Read(std::int64_t first, std::span<std::uint8_t> bytes);
    void Read(std::int64_t first, std::span<std::int16_t> shorts);
    void Read(std::int64_t first, std::span<double> samples);

    /// The file has lost bytes since it was opened: what was read of it may be zeros that never
    /// were sound. One question to the system.
    bool HasShrunk() const;

private:
    std::int64_t BytesPerFrame() const;
    std::int64_t PositionOf(std::int64_t frame) const;
    /// Bytes of the file from a frame on.
    std::int64_t BytesFrom(std::int64_t frame) const;
    void StandAt(std::int64_t first, std::size_t values);
    void ReadHeld(std::span<std::byte> bytes);
    template <class Raw, class T>
    void ReadConverted(std::span<T> values, void (*convert)(std::span<const Raw>, std::span<T>));

    std::string file_name_;
    OpenFile file_;
    WaveInfo info_;
};

/// Error 75 where Target is the file that a WaveSource of FileName reads, by whatever names the two
/// go: to write it would destroy the sound that is still to be read.
void RefuseSourceAsTarget(const std::string& FileName, const std::string& Target);

} // namespace lumora
