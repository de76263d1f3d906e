#include "audio/Wavwrite.h"

#include "audio/Interleave.h"
#include "audio/SampleConversion.h"
#include "audio/WaveChunks.h"
#include "audio/WaveFields.h"
#include "audio/WaveMessages.h"
#include "base/Messages.h"
#include "base/Numbers.h"
#include "numeric/ObjectNumbers.h"
#include "numeric/Operands.h"
#include "numeric/Sheets.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <vector>

namespace lumora {

using namespace wave_messages;

namespace {

/// What the arguments ask for: a rate or a rate and a width, then a name, then a text.
struct Target {
    std::int32_t rate_hz = 8000;
    std::int16_t bits = 16;
    std::string name;
    std::string extra;

    Target(const Variant& arg2, const Variant& arg3, const Variant& arg4, const Variant& arg6)
    {
        std::array arguments = {&arg2, &arg3, &arg4, &arg6};
        auto next = arguments.begin();
        if ((*next)->IsNumber()) rate_hz = CLng((*next++)->Number());
        if (next != arguments.begin() && (*next)->IsNumber()) bits = CInt((*next++)->Number());
        name = WaveFileName((*next++)->As<std::string>());
        for (; next != arguments.end(); ++next)
            if (!(*next)->IsEmpty()) extra = (*next)->As<std::string>();
    }
};

/// The samples of Y, read where they stand if they are doubles.
class Signal {
public:
    explicit Signal(const Variant& y)
    {
        if (y.Is<Array<double>>()) {
            Take(y.As<Array<double>>());
        } else if (y.IsArray()) {
            numbers_ = DoubleArray(y);
            Take(numbers_);
        } else {
            object_ = NumbersOfObject(y);
            sheet_ = SheetOf(*object_);
        }
        if (sheet_.Size() == 0) Raise(ErrorNumber::Subscript);
    }
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;

    std::span<const double> Samples() const { return sheet_.values; }
    /// With a row per channel the samples stand in the order of the file already.
    bool ByFrames() const { return sheet_.rows <= 2 && sheet_.columns >= 3; }
    std::int32_t Channels() const { return ByFrames() ? sheet_.rows : sheet_.columns; }

private:
    void Take(const Array<double>& array)
    {
        const Sizes sizes = SizesOf(array);
        sheet_ = {sizes.rows, sizes.columns, array.Span()};
        if (array.Dimensions() == 1) std::swap(sheet_.rows, sheet_.columns);
    }

    Array<double> numbers_;
    Ref<clsMatrix> object_;
    Sheet<double> sheet_;
};

double PeakOf(std::span<const double> samples)
{
    // Several peaks side by side wait for one comparison, not each for the one before it.
    std::array<double, 8> peaks = {};
    const auto raise = [](double& peak, double sample) {
        const double magnitude = std::abs(sample);
        peak = magnitude > peak ? magnitude : peak;
    };
    std::size_t k = 0;
    for (; k + peaks.size() <= samples.size(); k += peaks.size())
        for (std::size_t lane = 0; lane < peaks.size(); ++lane)
            raise(peaks[lane], samples[k + lane]);
    for (; k < samples.size(); ++k)
        raise(peaks[0], samples[k]);
    return *std::max_element(peaks.begin(), peaks.end());
}

/// Brings a signal that would not fit below full scale.
class PeakRule {
public:
    PeakRule(double peak, double step)
        : above_(peak > 1.0), exact_(peak == 1.0), full_(1.0 - step), divisor_(peak / full_)
    {
    }

    void Apply(std::span<double> samples) const
    {
        if (above_)
            for (double& sample : samples)
                sample /= divisor_;
        else if (exact_)
            for (double& sample : samples)
                sample = sample == 1.0 ? full_ : sample;
    }

private:
    bool above_;
    bool exact_;
    double full_;
    double divisor_;
};

double StepOf(std::int16_t bits)
{
    return bits == 8 ? 1.0 / 128.0 : bits == 16 ? 1.0 / 32768.0 : 0.0;
}

/// All samples as numbers of the file, in its order, piece by piece: no second signal in memory.
template <class Raw, class Take>
void ForEachPiece(const Signal& signal, const PeakRule& rule, Take&& take)
{
    const std::span<const double> samples = signal.Samples();
    const std::size_t channels =
        signal.ByFrames() ? 1 : static_cast<std::size_t>(signal.Channels());
    const std::size_t length = samples.size() / channels;
    // A few kilobytes stay in the nearest cache from step to step.
    const std::size_t most = std::max<std::size_t>(4096 / channels, 64);
    std::vector<double> fitted(most);
    std::vector<Raw> numbers(most);
    std::vector<Raw> frames(most * channels);
    for (std::size_t from = 0; from < length; from += most) {
        const std::size_t n = std::min(most, length - from);
        for (std::size_t c = 0; c < channels; ++c) {
            std::copy_n(samples.begin() + static_cast<std::ptrdiff_t>(c * length + from), n,
                        fitted.begin());
            rule.Apply(std::span(fitted).first(n));
            Convert(std::span<const double>(fitted).first(n), std::span(numbers).first(n));
            PutChannel(numbers.data(), n, channels, frames.data() + c);
        }
        take(std::span<const Raw>(frames).first(n * channels));
    }
}

/// Every number is worked out before the file is opened, and then once more for writing, so that a
/// sample which does not fit costs nobody an older file of that name.
template <class Raw>
bool WriteWave(const Signal& signal, const Target& target, const PeakRule& rule)
{
    const PlainHeader header = PlainHeaderFor(std::ssize(signal.Samples()), signal.Channels(),
                                              target.rate_hz, target.bits);
    ForEachPiece<Raw>(signal, rule, [](std::span<const Raw>) {});
    OpenFile file(fopen(target.name, "wb"));
    if (file.Failed()) {
        ShowFileError(kFopen, kNoOutput);
        return false;
    }
    PutPlainHeader(file.Number(), header);
    ForEachPiece<Raw>(signal, rule, [&file](std::span<const Raw> numbers) {
        WriteValues(file.Number(), numbers);
    });
    if (header.padded) fwrite(file.Number(), std::uint8_t{0}, "uchar");
    fwrite(file.Number(), target.extra, "_string");
    file.Close();
    return true;
}

} // namespace

bool wavwrite(const Variant& Y, const Variant& Arg2, const Variant& Arg3, const Variant& Arg4,
              const Variant& Flag, const Variant& Arg6)
{
    const Target target(Arg2, Arg3, Arg4, Arg6);
    const bool handle_peak = Flag.IsEmpty() || Flag.Number() == 0.0;
    if (!TagOf(Y) && !Y.IsArray()) {
        ShowPlainMessage(kNoSignal);
        return false;
    }
    const Signal signal(Y);
    const PeakRule rule(handle_peak ? PeakOf(signal.Samples()) : 0.0, StepOf(target.bits));
    switch ((target.bits + 7) / 8) {
    case 1:
        return WriteWave<std::uint8_t>(signal, target, rule);
    case 2:
        return WriteWave<std::int16_t>(signal, target, rule);
    case 4:
        return WriteWave<std::int32_t>(signal, target, rule);
    default:
        ShowPlainMessage(kWriteTooWide);
        return false;
    }
}

} // namespace lumora
