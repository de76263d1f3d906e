#pragma once

#include "base/VectorWidth.h"
#include "overfilter/NormalEquations.h"
#include "overfilter/OverFilterFigures.h"
#include "overfilter/OverFilterKernels.h"
#include "overfilter/RegionList.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace lumora {

/// Streaming filter that rebuilds over-driven stretches: every run of samples above 0.8 or below
/// -0.8 (a region) is replaced when it has reached the centre of the buffer. Linear prediction from
/// the clean samples before it and, backwards, from those behind it, each bent so that it ends on
/// the limit, are cross-faded. Coefficients come from the covariance method over all samples whose
/// past lies in no region (Atal and Hanauer, J. Acoust. Soc. Am. 50, 1971; prediction over a gap
/// from both sides after Janssen, Veldhuis and Vries, IEEE Trans. ASSP 34, 1986). A rebuilt stretch
/// may pass full scale, so the output is divided by a gain that follows the largest overshoot.
///
/// In:    samples of any number of interleaved channels as one stream, about -1..1, finite.
/// Out:   as many samples, within -0.99..0.99, delayed by BufferLen - 1; the first BufferLen - 1
///        are 0. No flush: the caller feeds silence for what the buffer still holds.
/// Left:  a region with less than TrainLen samples of the buffer around it (longer than GuardLen),
///        or one for which no coefficients can be had, passes as it is, and so does one whose
///        prediction overflows. Each sets QualityGood to 0.
/// Cost:  a comparison and the gain a sample; coefficients at most once in TrainLen samples while
///        estimates succeed. Nothing is moved a sample: the buffer slides in a longer store.
/// Order: SetUp, any number of RemoveOver_Operation and Process, Destruct.
///
/// Sizes are 16 bits wide. Errors: 9 for a call before SetUp or after Destruct.
class ClsRemoveOverPolynom {
public:
    /// `width` says which copy of the kernels to use; all give the same bits.
    explicit ClsRemoveOverPolynom(VectorWidth width = WidestVectors());

    /// 1 from SetUp until a region is left as it was, or regions cover more than 0.15 of the buffer
    /// when one of them is handled; then 0 for good.
    std::int16_t QualityGood() const { return quality_good_; }

    /// Fills ImpulseResp from the coefficients in hand for the region last rebuilt. Error 9 before
    /// there is a region, and without coefficients.
    void ImpRespLPC();

    /// Releases all arrays.
    void Destruct();

    /// Samples that may lie in a region, samples that must lie around it; time constants in seconds
    /// of the decay of Excess and of the approach of Gain; prediction order; samples a second;
    /// Excess at the start and its upper bound. Drops all earlier state. Errors: 6 where
    /// GuardLen + TrainLen leaves 16 bits, 9 where it is below 3 (nothing could be centred) or the
    /// order below 1, 11 for a rate or a time of 0.
    void SetUp(const std::int16_t& GuardLen, const std::int16_t& TrainLen,
               const double& DecaySeconds, const double& AttackSeconds, const std::int16_t& Order,
               const std::int32_t& RateHz, const double& FirstExcess, const double& ExcessMax);

    /// Takes the sample x, gives the one that leaves the filter. Shows "Matrix is singular to
    /// working precision." where the last pivot of an estimate is 0. Error 9 too where the order is
    /// so high that a prediction would begin outside the buffer.
    void RemoveOver_Operation(const double& x, double& y);

    /// The same for a block of any length: out[k] is what in[k] gives. Both may be one memory.
    /// Error 9 too where they differ in length.
    void Process(std::span<const double> in, std::span<double> out);

    std::int16_t BufferLen() const { return buffer_len_; }
    /// The divisor of the sample that left last; 1 after SetUp.
    double Gain() const { return gain_; }
    /// 2N values for a region of N samples, from 0: 1, then the all-pole predictor's response.
    std::span<const double> ImpulseResp() const { return impulse_resp_; }
    const OverFilterFigures& Figures() const { return figures_; }
    /// Regions on their way to the centre of the buffer, none of whose samples has left yet.
    std::int64_t Waiting() const { return static_cast<std::int64_t>(regions_.Count()); }
    /// Is called on every region that is rebuilt, in its order in the stream. SetUp keeps it.
    void Observe(RegionObserver observer) { observer_ = std::move(observer); }

private:
    std::size_t TakeIn(std::span<const double> in);
    void Advance(std::int64_t last, double* out);
    std::int64_t NextCrossing(std::int64_t until) const;
    std::int64_t NextCentring() const;
    void OnCrossing();
    double* Emit(std::int64_t first, std::int64_t last, double* out);
    bool FollowGain();

    void OnRegionCentred();
    void LeaveUnpredicted();
    bool HaveYoungCoefs() const;
    bool EstimateCoefs();
    void FindUsableTimes();
    bool SolveNormal();
    void RestoreRegion(const OverRegion& region);
    void PredictBothWays(double u, double v);
    void FitExcitation(double limit, double& u, double& v) const;
    void CrossFade();
    void PutInPlace(const OverRegion& region);

    /// Buffer in the buffer's own order; element 0 is the next to leave.
    double* Buffer() { return store_.data() + (newest_ - buffer_len_ + 1 - store_start_); }
    const double* Sample(std::int64_t place) const
    {
        return store_.data() + (place - store_start_);
    }
    /// Index in Buffer, from 0, of a place in the stream.
    std::size_t Index(std::int64_t place) const
    {
        return static_cast<std::size_t>(place - newest_ + buffer_len_ - 1);
    }

    const OverFilterKernels* kernels_;
    RegionObserver observer_;
    OverFilterFigures figures_;
    std::int16_t quality_good_ = 0;

    std::int16_t buffer_len_ = 0; ///< samples that the filter looks at; 0 without SetUp
    std::int16_t train_len_ = 0;
    std::size_t order_ = 0;
    std::int16_t centre_index_ = 0; ///< index in Buffer, from 1, at which a region is handled

    std::vector<double> store_;    ///< Buffer, and what of a block has not reached it yet
    std::int64_t store_start_ = 0; ///< place in the stream of the store's first sample
    std::int64_t newest_ = 0;      ///< place, from 1, of the newest sample in Buffer
    RegionList regions_;

    std::int64_t age_zero_ = 0; ///< place of the sample at which Age was 0, had it never wrapped
    bool have_coefs_ = false;
    std::vector<double> coefs_;
    NormalEquations normal_;
    std::vector<TimeRun> times_;
    std::vector<double> newest_first_; ///< Buffer backwards, for the kernel
    std::vector<double> products_;

    /// Forward and backward prediction in pairs, from the sample next to the region inwards; ahead
    /// of them the Order clean samples that they start from, the nearest one last.
    std::vector<double> paths_;
    std::vector<double> rebuilt_; ///< the region's new samples
    std::vector<double> before_;  ///< Buffer before they took their places, for the observer
    std::size_t region_len_ = 0;
    std::vector<double> impulse_resp_;

    double excess_ = 0.0; ///< largest recent overshoot of a rebuilt sample past full scale
    double excess_max_ = 0.0;
    double gain_ = 1.0;
    double peak_decay_ = 0.0;
    double gain_step_ = 0.0;
};

} // namespace lumora
