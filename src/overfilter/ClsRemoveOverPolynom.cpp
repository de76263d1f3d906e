#include "overfilter/ClsRemoveOverPolynom.h"

#include "base/Messages.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Vectors.h"
#include "numeric/NumericMessages.h"
#include "overfilter/OverFilterPlan.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace lumora {

namespace {

constexpr double kUpperLimit = kOverLimit;
constexpr double kLowerLimit = -kOverLimit;
constexpr double kHeadroom = 0.2;
constexpr double kMostOut = 0.99;
constexpr double kLargestCoef = 10.0;
constexpr double kMostCover = 0.15;
/// In a shorter buffer the centre of a region never meets CentreIndex.
constexpr std::int16_t kLeastBuffer = 3;

/// Age counts up to here and starts again from 0: so long a clean stretch makes coefficients young.
constexpr std::int64_t kAgeWrap = 32767;
constexpr std::int64_t kFirstAge = 221;

/// How many samples come in between two moves of the buffer.
constexpr std::size_t kSlack = 8192;

double Bounded(double y)
{
    y = y > kMostOut ? kMostOut : y;
    return y < -kMostOut ? -kMostOut : y;
}

} // namespace

ClsRemoveOverPolynom::ClsRemoveOverPolynom(VectorWidth width)
    : kernels_(&OverFilterKernelsFor(width))
{
}

void ClsRemoveOverPolynom::SetUp(const std::int16_t& GuardLen, const std::int16_t& TrainLen,
                                 const double& DecaySeconds, const double& AttackSeconds,
                                 const std::int16_t& Order, const std::int32_t& RateHz,
                                 const double& FirstExcess, const double& ExcessMax)
{
    Destruct(); // so that sizes that are refused below leave nothing to run on
    const std::int16_t length = CInt(GuardLen + TrainLen);
    if (length < kLeastBuffer || Order < 1) Raise(ErrorNumber::Subscript);
    peak_decay_ = 1.0 - Divide(1.0, RateHz * DecaySeconds);
    gain_step_ = Divide(1.0, RateHz * AttackSeconds);
    excess_ = FirstExcess;
    excess_max_ = ExcessMax;
    gain_ = 1.0;
    train_len_ = TrainLen;
    order_ = static_cast<std::size_t>(Order);
    centre_index_ = CInt((length + 1) / 2.0);
    quality_good_ = 1;
    figures_ = {};

    const auto samples = static_cast<std::size_t>(length);
    store_.assign(samples + kSlack, 0.0);
    store_start_ = 1 - length;
    newest_ = 0;
    age_zero_ = -kFirstAge;
    have_coefs_ = false;
    region_len_ = 0;
    coefs_.assign(order_, 0.0);
    normal_ = NormalEquations(order_);
    newest_first_.assign(samples + PaddedOrder(order_) + kLagGroup, 0.0);
    products_.assign((PaddedOrder(order_) + 1) * PaddedOrder(order_), 0.0);
    buffer_len_ = length;
}

void ClsRemoveOverPolynom::Destruct()
{
    buffer_len_ = 0;
    regions_.Clear();
    normal_ = NormalEquations();
    times_ = {};
    for (std::vector<double>* array : {&store_, &coefs_, &newest_first_, &products_, &paths_,
                                       &rebuilt_, &before_, &impulse_resp_})
        *array = {};
}

void ClsRemoveOverPolynom::RemoveOver_Operation(const double& x, double& y)
{
    Process({&x, 1}, {&y, 1});
}

void ClsRemoveOverPolynom::Process(std::span<const double> in, std::span<double> out)
{
    if (buffer_len_ == 0 || in.size() != out.size()) Raise(ErrorNumber::Subscript);
    while (!in.empty()) {
        const std::size_t taken = TakeIn(in);
        Advance(newest_ + static_cast<std::int64_t>(taken), out.data());
        in = in.subspan(taken);
        out = out.subspan(taken);
    }
}

/// Copies as much as the store takes behind the buffer; answers how much.
std::size_t ClsRemoveOverPolynom::TakeIn(std::span<const double> in)
{
    auto used = static_cast<std::size_t>(newest_ + 1 - store_start_);
    if (used == store_.size()) {
        std::copy_n(Buffer(), buffer_len_, store_.begin());
        store_start_ = newest_ + 1 - buffer_len_;
        used = static_cast<std::size_t>(buffer_len_);
    }
    const std::size_t taken = std::min(in.size(), store_.size() - used);
    std::copy_n(in.begin(), taken, store_.begin() + static_cast<std::ptrdiff_t>(used));
    return taken;
}

/// Walks from event to event: between them only the output goes on.
void ClsRemoveOverPolynom::Advance(std::int64_t last, double* out)
{
    std::int64_t next = newest_ + 1; // the sample that enters as the next one to leave does
    while (newest_ < last) {
        const std::int64_t until = std::min(last, NextCentring());
        const std::int64_t crossing = NextCrossing(until);
        const std::int64_t event = std::min(crossing, until);
        out = Emit(next, event - 1, out);
        next = event;
        newest_ = event;
        if (event == crossing) OnCrossing();
        if (NextCentring() == newest_) OnRegionCentred();
    }
    Emit(next, last, out);
}

/// The first place behind the newest sample, up to `until`, at which a region opens or the open one
/// closes; until + 1 if there is none.
std::int64_t ClsRemoveOverPolynom::NextCrossing(std::int64_t until) const
{
    const double* first = Sample(newest_ + 1);
    const double* end = Sample(until + 1);
    const double* found = end;
    if (!regions_.Open())
        found =
            std::find_if(first, end, [](double x) { return x > kUpperLimit || x < kLowerLimit; });
    else if (regions_.LastSign() > 0)
        found = std::find_if(first, end, [](double x) { return x < kUpperLimit; });
    else
        found = std::find_if(first, end, [](double x) { return x > kLowerLimit; });
    return newest_ + 1 + (found - first);
}

/// The place of the newest sample at the moment when floor((start + end) / 2) of the oldest region
/// is CentreIndex. While a region is open, its centre moves by half a place a sample.
std::int64_t ClsRemoveOverPolynom::NextCentring() const
{
    if (regions_.Empty()) return std::numeric_limits<std::int64_t>::max();
    const std::int64_t way = buffer_len_ - centre_index_;
    const OverRegion first = regions_.At(0, newest_);
    if (regions_.FirstIsOpen()) return first.start + 2 * way - 1;
    return first.start + (first.end - first.start) / 2 + way;
}

/// The sample that closes a region opens none, even if it lies beyond the other limit.
void ClsRemoveOverPolynom::OnCrossing()
{
    if (regions_.Open())
        regions_.CloseBefore(newest_);
    else
        regions_.OpenAt(newest_,
                        *Sample(newest_) > kUpperLimit ? std::int16_t{1} : std::int16_t{-1});
}

/// The samples that leave as those from `first` to `last` come in. Answers the end of what it
/// wrote.
double* ClsRemoveOverPolynom::Emit(std::int64_t first, std::int64_t last, double* out)
{
    const double* leaving = Sample(first - buffer_len_ + 1);
    const double* const end = leaving + (last - first + 1);
    bool steady = false;
    while (leaving != end && !steady) {
        steady = !FollowGain();
        *out++ = Bounded(*leaving++ / gain_);
    }
    const double gain = gain_; // what it is now it stays
    for (; leaving != end; ++leaving)
        *out++ = Bounded(*leaving / gain);
    return out;
}

/// One sample's step of Excess and Gain. False if it changed neither, and so no later one will.
bool ClsRemoveOverPolynom::FollowGain()
{
    const double excess = excess_;
    const double gain = gain_;
    excess_ *= peak_decay_;
    if (excess_ > excess_max_) excess_ = excess_max_;
    // The weights of the second form are no slip: they bring the gain to about 1 at once.
    gain_ = excess_ > 0.0 ? (excess_ + 1.0 + kHeadroom) * gain_step_ + (1.0 - gain_step_) * gain_
                          : (1.0 - peak_decay_) * gain_ + peak_decay_;
    if (gain_ > figures_.largest_gain) figures_.largest_gain = gain_;
    return excess_ != excess || gain_ != gain;
}

void ClsRemoveOverPolynom::OnRegionCentred()
{
    const OverRegion region = regions_.At(0, newest_);
    figures_.longest_region = std::max(figures_.longest_region, region.Length());
    if (buffer_len_ - region.Length() < train_len_) {
        ++figures_.left_too_long;
        quality_good_ = 0;
    } else if (HaveYoungCoefs() || EstimateCoefs()) {
        RestoreRegion(region);
    } else {
        LeaveUnpredicted();
    }
    // A number of samples less for each region than it covers.
    if (static_cast<double>(regions_.Span(newest_)) / buffer_len_ > kMostCover) {
        ++figures_.crowded;
        quality_good_ = 0;
    }
    regions_.RemoveFirst();
}

void ClsRemoveOverPolynom::LeaveUnpredicted()
{
    ++figures_.left_unpredicted;
    quality_good_ = 0;
}

/// Young coefficients may be rejected ones, when Age has wrapped since; but never none at all.
bool ClsRemoveOverPolynom::HaveYoungCoefs() const
{
    return have_coefs_ && !coefs_.empty() && (newest_ - age_zero_) % kAgeWrap <= train_len_;
}

bool ClsRemoveOverPolynom::EstimateCoefs()
{
    FindUsableTimes();
    const double* oldest = Buffer();
    std::reverse_copy(oldest, oldest + buffer_len_, newest_first_.begin());
    kernels_->lagged_products({newest_first_.data(), static_cast<std::size_t>(buffer_len_), times_},
                              order_, products_.data());
    for (std::size_t r = 1; r <= order_; ++r) {
        normal_(r - 1, order_) = products_[r - 1];
        for (std::size_t c = r; c <= order_; ++c)
            normal_(r - 1, c - 1) = normal_(c - 1, r - 1) =
                products_[r * PaddedOrder(order_) + c - 1];
    }
    const auto too_large = [](double coef) { return std::abs(coef) > kLargestCoef; };
    if (!SolveNormal() || coefs_.empty() || std::ranges::any_of(coefs_, too_large)) return false;
    age_zero_ = newest_;
    have_coefs_ = true;
    return true;
}

/// Times whose past of Order samples lies in no region from the one in hand on. Earlier regions
/// count as samples like any others.
void ClsRemoveOverPolynom::FindUsableTimes()
{
    times_.clear();
    std::size_t first = order_;
    for (std::size_t r = 0; r <= regions_.Count(); ++r) {
        const bool more = r < regions_.Count();
        const OverRegion region = more ? regions_.At(r, newest_) : OverRegion{};
        const std::size_t end = more ? Index(region.start) : static_cast<std::size_t>(buffer_len_);
        if (first < end) times_.push_back({first, end - 1});
        if (more) first = Index(region.end) + 1 + order_;
    }
}

/// False for a zero pivot. A last pivot of 0 leaves Coefs empty without being a failure here.
bool ClsRemoveOverPolynom::SolveNormal()
{
    const NormalEquations::Outcome outcome = normal_.Solve(coefs_);
    if (outcome == NormalEquations::Outcome::Singular) ShowPlainMessage(kSingular);
    return outcome != NormalEquations::Outcome::ZeroPivot;
}

void ClsRemoveOverPolynom::RestoreRegion(const OverRegion& region)
{
    region_len_ = static_cast<std::size_t>(region.Length());
    const std::size_t start = Index(region.start);
    const std::size_t end = start + region_len_;
    if (start < order_ || end + order_ > static_cast<std::size_t>(buffer_len_))
        Raise(ErrorNumber::Subscript);
    paths_.resize(2 * (order_ + region_len_));
    const double* buffer = Buffer();
    for (std::size_t j = 1; j <= order_; ++j) {
        paths_[2 * (order_ - j)] = buffer[start - j];
        paths_[2 * (order_ - j) + 1] = buffer[end - 1 + j];
    }
    double u = 0.0;
    double v = 0.0;
    PredictBothWays(u, v);
    ImpRespLPC();
    FitExcitation(region.sign * kUpperLimit, u, v);
    PredictBothWays(u, v);
    CrossFade();
    const auto finite = [](double sample) { return std::isfinite(sample); };
    if (std::ranges::all_of(rebuilt_, finite))
        PutInPlace(region);
    else
        LeaveUnpredicted();
}

/// Both run away from clean samples into the region, the second one backwards in time; each step
/// uses what the steps before it gave.
void ClsRemoveOverPolynom::PredictBothWays(double u, double v)
{
    const Two excitation{u, v};
    double* here = paths_.data() + 2 * order_;
    for (std::size_t i = 0; i < region_len_; ++i, here += 2) {
        Two sum{};
        const double* past = here;
        for (const double coef : coefs_)
            sum += coef * Load<Two>(past -= 2);
        const Two value = excitation + sum;
        std::memcpy(here, &value, sizeof value);
    }
}

void ClsRemoveOverPolynom::ImpRespLPC()
{
    if (region_len_ == 0 || coefs_.empty()) Raise(ErrorNumber::Subscript);
    impulse_resp_.resize(2 * region_len_);
    impulse_resp_[0] = 1.0;
    for (std::size_t k = 1; k < impulse_resp_.size(); ++k) {
        double sum = 0.0;
        for (std::size_t j = 1; j <= std::min(k, order_); ++j)
            sum += coefs_[j - 1] * impulse_resp_[k - j];
        impulse_resp_[k] = sum;
    }
}

/// Constant excitations that bring the last sample of either prediction to the limit.
void ClsRemoveOverPolynom::FitExcitation(double limit, double& u, double& v) const
{
    double response = 0.0;
    for (std::size_t k = 0; k < region_len_; ++k)
        response += impulse_resp_[k];
    const double* last = paths_.data() + 2 * (order_ + region_len_ - 1);
    u = (limit - last[0]) / response;
    v = (limit - last[1]) / response;
}

void ClsRemoveOverPolynom::CrossFade()
{
    const std::size_t n = region_len_;
    const auto length = static_cast<double>(n);
    rebuilt_.resize(n);
    for (std::size_t k = 0; k < n; ++k) {
        const auto i = static_cast<double>(k + 1);
        const double forward = paths_[2 * (order_ + k)];
        const double backward = paths_[2 * (order_ + n - 1 - k) + 1];
        rebuilt_[k] = ((length + 0.5 - i) * forward + (i - 0.5) * backward) / length;
    }
}

void ClsRemoveOverPolynom::PutInPlace(const OverRegion& region)
{
    double* buffer = Buffer();
    const std::size_t start = Index(region.start);
    if (observer_) before_.assign(buffer, buffer + buffer_len_);
    std::ranges::copy(rebuilt_, buffer + start);
    for (const double sample : rebuilt_) {
        const double over = region.sign > 0 ? sample - 1.0 : -(sample + 1.0);
        if (over > excess_) excess_ = over;
    }
    ++figures_.rebuilt;
    if (region_len_ == 1) ++figures_.single;
    if (observer_)
        observer_({region.start,
                   CInt(region.Length()),
                   region.sign,
                   CInt(start),
                   before_,
                   {buffer, before_.size()}});
}

} // namespace lumora
