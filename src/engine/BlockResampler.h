#pragma once

#include "base/Array.h"
#include "engine/EngineKernels.h"

#include <cstdint>
#include <span>
#include <vector>

namespace lumora {

/// Linear resampling of successive blocks. Output sample i of a block stands for source position
/// i / Rate, and the last output sample is the last source sample, which keeps the blocks aligned.
/// No anti-alias filter. Rate 1 is an identity.
///
/// Keeps one sample, the last of the block before, from which a stretched block (Rate above 1)
/// starts. It is one for all channels on purpose: in stereo a channel's block starts from the last
/// sample of the other channel, and the sound of the engine depends on it. It starts at zero and
/// lives as long as the object.
class BlockResampler {
public:
    /// `width` says which copy of the kernels to use; all give the same bits.
    explicit BlockResampler(VectorWidth width = WidestVectors());

    /// Round(n x Rate), half to even: what becomes of n samples. Error 6 beyond 32 bits.
    static std::int32_t LengthFor(std::size_t n, double rate);

    /// Resamples into `dest`, which is LengthFor(source.size(), rate) long. Error 9: an empty
    /// source or result (a rate near 0), another length.
    void Resample(std::span<const double> source, double rate, std::span<double> dest);

private:
    void MakePlan(std::size_t n, double rate, std::size_t m);

    const EngineKernels* kernels_;
    double LastBlockSample = 0.0;

    // A run resamples block after block at one rate, so the places are worked out once.
    std::size_t planned_n_ = 0;
    double planned_rate_ = 0.0;
    std::vector<double> head_;        ///< weights of the samples before the first of the source
    std::vector<std::int32_t> index_; ///< interval of each further sample but the last, from 0
    std::vector<double> fraction_;    ///< place within the interval
};

/// The resampler of the process, shared by all runs of the facade: the first samples of a run
/// start from the last sample of the run before.
BlockResampler& ProcessResampler();

/// Resamples an array 1..n into Dest, allocated anew as 1..m, on the resampler of the process.
/// Errors as BlockResampler::Resample.
void ResampleBlock(const Array<double>& Source, const double& Rate, Array<double>& Dest);

} // namespace lumora
