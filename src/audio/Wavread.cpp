#include "audio/Wavread.h"

#include "audio/Interleave.h"
#include "audio/SampleConversion.h"
#include "audio/WaveHeader.h"
#include "audio/WaveMessages.h"
#include "base/Messages.h"
#include "base/Numbers.h"
#include "base/OrOutOfMemory.h"
#include "base/Text.h"
#include "numeric/Predicates.h"
#include "numeric/Stores.h"

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

namespace lumora {

using namespace wave_messages;

namespace {

/// What the arguments ask for.
struct Wish {
    enum class Kind { Nothing, Size, All, Range };
    Kind kind = Kind::Nothing;
    double first = 0.0;
    double last = 0.0;
};

Wish WishOf(const Variant& arg1, const Variant& arg2)
{
    if (arg2.IsEmpty()) {
        if (arg1.IsEmpty()) return {Wish::Kind::All};
        const bool size = arg1.IsText() && EqualIgnoringCase(arg1.As<std::string>(), "size");
        return {size ? Wish::Kind::Size : Wish::Kind::Nothing};
    }
    if (!IsNumeric(arg1) || !IsNumeric(arg2)) return {};
    const auto [first, last] = std::minmax({Round(arg1.Number()), Round(arg2.Number())});
    return {Wish::Kind::Range, first, last};
}

/// Shows the message and gives its text for the record.
std::string Fault(const std::string& text)
{
    ShowPlainMessage(text);
    return text;
}

std::string Refusal(std::int16_t tag)
{
    for (const FormatName& format : kFormatNames)
        if (format.tag == tag) return std::string(format.name) + kNotSupported;
    return kFormatNumber + std::to_string(tag) + kNotSupported;
}

/// One reading of a file that stands at its first data byte. A step that fails has shown its
/// message and answers its text.
class Reading {
public:
    Reading(FileNumber file, WavreadResult& result)
        : file_(file), result_(result), info_(result.Info), data_begin_(FilePosition(file))
    {
    }

    std::string ReadSize()
    {
        if (info_.wFormatTag != kPcmTag) return {};
        if (SizesLie() || fseek(file_, info_.DataSize, "SEEK_CUR").Status != 0)
            return Fault(kPcmFormat);
        info_.TotalSamples = CLng(Divide(info_.DataSize, info_.nBlockAlign));
        Array<double> sizes(2);
        sizes(1) = info_.TotalSamples;
        sizes(2) = info_.nChannels;
        Succeed(NewMatrix<clsMatrix>(std::move(sizes)));
        return {};
    }

    std::string ReadSamples(const Wish& wish)
    {
        if (info_.wFormatTag != kPcmTag) return Fault(Refusal(info_.wFormatTag));
        switch ((info_.nBitsPerSample + 7) / 8) {
        case 1:
            return ReadPcm<std::uint8_t>(wish);
        case 2:
            return ReadPcm<std::int16_t>(wish);
        case 4:
            return ReadPcm<std::int32_t>(wish);
        default:
            return Fault(kReadTooWide);
        }
    }

private:
    bool SizesLie() const
    {
        return info_.DataSize < 0 || info_.nChannels < 0 || info_.nBlockAlign < 0;
    }

    template <class Raw> std::string ReadPcm(const Wish& wish)
    {
        if (SizesLie()) return Fault(kPcmFormat);
        const double samples = Round(info_.DataSize / static_cast<double>(sizeof(Raw)));
        const std::int32_t total = CLng(Divide(samples, info_.nChannels));
        info_.TotalSamples = total;
        std::int32_t first = 1;
        std::int32_t last = total;
        if (wish.kind == Wish::Kind::Range) {
            if (!(wish.first >= 1.0 && wish.last <= total)) return Fault(kOutOfLimits);
            first = CLng(wish.first);
            last = CLng(wish.last);
        }
        if (!Holds<Raw>(last)) return Fault(kPcmFormat);
        Succeed(last < first ? MakeRef<clsMatrix>() : Frames<Raw>(first, last));
        ReadTrailing();
        return {};
    }

    std::int64_t DataEnd() const { return data_begin_ + info_.DataSize; }

    template <class Raw> std::int64_t FrameBytes() const
    {
        return std::int64_t{info_.nChannels} * std::int64_t{sizeof(Raw)};
    }

    /// Are all bytes of the data chunk up to frame `last` in the file?
    template <class Raw> bool Holds(std::int32_t last) const
    {
        const std::int64_t end = data_begin_ + last * FrameBytes<Raw>();
        return std::min(end, DataEnd()) <= FileLength(file_) + 1;
    }

    /// What the data chunk does not hold is zero, whatever stands behind it.
    template <class Raw> void Read(std::span<Raw> numbers)
    {
        const auto bytes = std::as_writable_bytes(numbers);
        const std::int64_t left = std::max<std::int64_t>(DataEnd() - FilePosition(file_), 0);
        const std::size_t there = std::min(bytes.size(), static_cast<std::size_t>(left));
        const std::size_t read = ReadBytes(file_, bytes.first(there));
        std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(read), bytes.end(), std::byte{0});
    }

    template <class Raw> Ref<clsMatrix> Frames(std::int32_t first, std::int32_t last)
    {
        SeekTo(file_, data_begin_ + (first - 1) * FrameBytes<Raw>());
        const std::int32_t count = last - first + 1;
        Array<double> store = UnwrittenStore<double>({count, info_.nChannels});
        const std::span<double> samples = store.Span();
        // Pieces that stay in a near cache between reading and conversion.
        constexpr std::size_t kPiece = 16384;
        const auto frames = static_cast<std::size_t>(count);
        const auto channels = static_cast<std::size_t>(info_.nChannels);
        const std::size_t longest = std::min(std::max(kPiece / channels, std::size_t{1}), frames);
        std::vector<Raw> piece(longest * channels);
        std::vector<Raw> channel(longest);
        for (std::size_t from = 0; from < frames; from += longest) {
            const std::size_t n = std::min(longest, frames - from);
            Read(std::span(piece).first(n * channels));
            for (std::size_t c = 0; c < channels; ++c) {
                TakeChannel(piece.data() + c, n, channels, channel.data());
                Convert(std::span<const Raw>(channel).first(n),
                        samples.subspan(c * frames + from, n));
            }
        }
        return NewMatrix<clsMatrix>(std::move(store));
    }

    void ReadTrailing()
    {
        const std::int64_t behind = FileLength(file_) + 1 - DataEnd();
        if (behind <= 0) return;
        std::string& text = result_.Trailing;
        text.resize(static_cast<std::size_t>(behind));
        SeekTo(file_, DataEnd());
        text.resize(ReadValues(file_, std::span(text)));
        const bool padded = info_.DataSize % 2 != 0 && text.starts_with('\0');
        if (padded) text.erase(0, 1);
    }

    void Succeed(Ref<clsMatrix> samples)
    {
        result_.Bits = info_.nBitsPerSample;
        result_.Samples = std::move(samples);
    }

    FileNumber file_;
    WavreadResult& result_;
    WaveInfo& info_;
    std::int64_t data_begin_;
};

} // namespace

WavreadResult wavread(const std::string& FileName, const Variant& Arg1, const Variant& Arg2)
{
    WavreadResult result;
    const Wish wish = WishOf(Arg1, Arg2);
    if (wish.kind == Wish::Kind::Nothing) return result;
    const OpenFile file(open_wav(FileName, MessageForm::Plain));
    if (file.Failed()) return result;
    result.Info = ReadHeader(file.Number(), MessageForm::Plain);
    if (!result.Info.Message.empty()) return result;
    result.Rate = result.Info.nSamplesPerSec;
    Reading reading(file.Number(), result);
    result.Info.Message = OrOutOfMemory([&] {
        return wish.kind == Wish::Kind::Size ? reading.ReadSize() : reading.ReadSamples(wish);
    });
    return result;
}

} // namespace lumora
