#include "engine/BlockResampler.h"

#include "base/Numbers.h"

namespace lumora {

BlockResampler::BlockResampler(VectorWidth width) : kernels_(&EngineKernelsFor(width)) {}

std::int32_t BlockResampler::LengthFor(std::size_t n, double rate)
{
    return CLng(static_cast<double>(n) * rate);
}

void BlockResampler::MakePlan(std::size_t n, double rate, std::size_t m)
{
    const double step = 1.0 / rate;
    const auto whole = rate > 1.0 ? static_cast<std::size_t>(Int(rate)) : 0;
    if (whole > m) Raise(ErrorNumber::Subscript);
    planned_n_ = 0; // no plan if an index is refused below
    head_.clear();
    index_.clear();
    fraction_.clear();
    for (std::size_t i = 1; i <= whole; ++i)
        head_.push_back(static_cast<double>(i) * step);
    for (std::size_t i = whole + 1; i < m; ++i) {
        const double place = static_cast<double>(i) * step;
        const double k = Int(place);
        if (k < 1.0 || k >= static_cast<double>(n)) Raise(ErrorNumber::Subscript);
        index_.push_back(CLng(k) - 1);
        fraction_.push_back(place - k);
    }
    planned_n_ = n;
    planned_rate_ = rate;
}

void BlockResampler::Resample(std::span<const double> source, double rate, std::span<double> dest)
{
    if (source.empty() || dest.empty() ||
        dest.size() != static_cast<std::size_t>(LengthFor(source.size(), rate)))
        Raise(ErrorNumber::Subscript);
    if (planned_n_ != source.size() || planned_rate_ != rate)
        MakePlan(source.size(), rate, dest.size());

    for (std::size_t i = 0; i < head_.size(); ++i)
        dest[i] = (source.front() - LastBlockSample) * head_[i] + LastBlockSample;
    kernels_->interpolate(source.data(), index_.data(), fraction_.data(), index_.size(),
                          dest.data() + head_.size());
    dest.back() = source.back();
    LastBlockSample = source.back();
}

BlockResampler& ProcessResampler()
{
    static BlockResampler resampler;
    return resampler;
}

void ResampleBlock(const Array<double>& Source, const double& Rate, Array<double>& Dest)
{
    const std::int64_t n = Source.UBound();
    Dest.ReDim({1, BlockResampler::LengthFor(static_cast<std::size_t>(n), Rate)});
    ProcessResampler().Resample(Source.Span(), Rate, Dest.Span());
}

} // namespace lumora
