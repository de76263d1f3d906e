#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <utility>
#include <vector>

/// The method of the over-range filter, written down as plainly as it can be said: the buffer moves
/// on every sample, every position counts from 1, every index is checked. Slow on purpose. What it
/// gives is right by reading it, and the fast class has to give the same bits.
namespace lumora::test {

/// Values 1..n, zero at the start. An index outside throws std::out_of_range.
class Values {
public:
    Values() = default;
    explicit Values(int n) : values_(static_cast<std::size_t>(n), 0.0) {}

    int Count() const { return static_cast<int>(values_.size()); }
    double& operator()(int i) { return values_.at(static_cast<std::size_t>(i - 1)); }
    double operator()(int i) const { return values_.at(static_cast<std::size_t>(i - 1)); }

private:
    std::vector<double> values_;
};

struct PlainSetUp {
    int guard = 0, train = 0;
    double decay_seconds = 1.0, attack_seconds = 0.02;
    int order = 0, rate = 0;
    double first_excess = 0.0, excess_max = 2.0;
};

class PlainRemoveOver {
public:
    explicit PlainRemoveOver(const PlainSetUp& s)
        : train_(s.train),
          order_(s.order),
          length_(s.guard + s.train),
          centre_(static_cast<int>(std::nearbyint((length_ + 1) / 2.0))),
          buffer_(length_),
          excess_(s.first_excess),
          excess_max_(s.excess_max),
          peak_decay_(1.0 - 1.0 / (s.rate * s.decay_seconds)),
          gain_step_(1.0 / (s.rate * s.attack_seconds)),
          coefs_(order_)
    {
    }

    double Operation(double x)
    {
        for (int i = 1; i <= length_ - 1; ++i)
            buffer_(i) = buffer_(i + 1);
        buffer_(length_) = x;
        age_ = age_ + 1;
        if (age_ == 32767) age_ = 0;
        for (int row = 1; row <= Rows() - 1; ++row) {
            Row(row).start -= 1;
            Row(row).end -= 1;
        }
        if (Rows() == 0) {
            OpenIfOver(x);
        } else {
            FollowLast(x);
            if (static_cast<int>(std::floor((Row(1).start + Row(1).end) / 2.0)) == centre_)
                OnRegionCentred();
        }
        excess_ = excess_ * peak_decay_;
        if (excess_ > excess_max_) excess_ = excess_max_;
        if (excess_ > 0)
            gain_ = (excess_ + 1 + 0.2) * gain_step_ + (1 - gain_step_) * gain_;
        else
            gain_ = (1 - peak_decay_) * gain_ + peak_decay_;
        double y = buffer_(1) / gain_;
        if (y > 0.99) y = 0.99;
        if (y < -0.99) y = -0.99;
        return y;
    }

    int QualityGood() const { return quality_good_; }
    double Gain() const { return gain_; }
    double Excess() const { return excess_; }
    int Age() const { return age_; }
    int Length() const { return length_; }

    // What happened, counted where it happens.
    int rebuilt = 0, single = 0, too_long = 0, failed = 0, crowded = 0, longest = 0;
    int estimates = 0, zero_pivots = 0, singular = 0, over_ten = 0;

private:
    struct Region {
        int start, end, sign;
    };

    int Rows() const { return static_cast<int>(regions_.size()); }
    Region& Row(int row) { return regions_.at(static_cast<std::size_t>(row - 1)); }

    void OpenIfOver(double x)
    {
        if (x > 0.8) regions_.push_back({length_, length_, 1});
        if (x < -0.8) regions_.push_back({length_, length_, -1});
    }

    void FollowLast(double x)
    {
        Region& last = regions_.back();
        last.start -= 1;
        if (last.end >= length_) {
            if (last.sign == 1 && x < 0.8) last.end -= 1;
            if (last.sign == -1 && x > -0.8) last.end -= 1;
        } else {
            last.end -= 1;
            OpenIfOver(x);
        }
    }

    void OnRegionCentred()
    {
        const int s = Row(1).start, e = Row(1).end;
        const int K = s + length_ - e - 1;
        longest = std::max(longest, e - s + 1);
        if (K < train_) {
            quality_good_ = 0;
            ++too_long;
        } else if (age_ > train_ || have_coefs_ == 0 || coefs_.Count() == 0) {
            if (EstimateCoefs()) {
                age_ = 0;
                have_coefs_ = 1;
                RestoreRegion();
            } else {
                quality_good_ = 0;
                ++failed;
            }
        } else {
            RestoreRegion();
        }
        int sum = 0;
        for (int row = 1; row <= Rows(); ++row)
            sum += Row(row).end - Row(row).start;
        if (static_cast<double>(sum) / length_ > 0.15) {
            quality_good_ = 0;
            ++crowded;
        }
        regions_.erase(regions_.begin());
    }

    std::vector<int> Times()
    {
        std::vector<int> times;
        for (int t = order_ + 1; t <= Row(1).start - 1; ++t)
            times.push_back(t);
        int r = 1;
        for (int t = Row(1).end + 1; t <= length_; ++t) {
            if (r + 1 <= Rows() && t == Row(r + 1).start) {
                ++r;
                t = Row(r).end;
            } else if (t > Row(r).end + order_) {
                times.push_back(t);
            }
        }
        return times;
    }

    bool EstimateCoefs()
    {
        ++estimates;
        const int P = order_;
        std::vector<Values> normal(static_cast<std::size_t>(P), Values(P + 1));
        const auto N = [&](int r, int c) -> double& {
            return normal.at(static_cast<std::size_t>(r - 1))(c);
        };
        for (const int t : Times())
            for (int r = 1; r <= P; ++r) {
                N(r, P + 1) += buffer_(t) * buffer_(t - r);
                for (int c = r; c <= P; ++c)
                    N(r, c) += buffer_(t - r) * buffer_(t - c);
            }
        for (int r = 1; r <= P; ++r)
            for (int c = r + 1; c <= P; ++c)
                N(c, r) = N(r, c);
        if (!SolveNormal(normal)) {
            ++zero_pivots;
            return false;
        }
        if (coefs_.Count() == 0) return false; // singular: there is nothing to look at
        for (int j = 1; j <= P; ++j)
            if (std::fabs(coefs_(j)) > 10.0) {
                ++over_ten;
                return false;
            }
        return true;
    }

    bool SolveNormal(std::vector<Values>& normal)
    {
        const int P = order_;
        const auto N = [&](int r, int c) -> double& {
            return normal.at(static_cast<std::size_t>(r - 1))(c);
        };
        coefs_ = Values();
        for (int k = 1; k <= P - 1; ++k) {
            int best = k;
            for (int r = k + 1; r <= P; ++r)
                if (std::fabs(N(r, k)) > std::fabs(N(best, k))) best = r;
            if (N(best, k) == 0) return false;
            if (best != k)
                std::swap(normal.at(static_cast<std::size_t>(best - 1)),
                          normal.at(static_cast<std::size_t>(k - 1)));
            const double pivot = N(k, k);
            for (int c = k; c <= P + 1; ++c)
                N(k, c) = N(k, c) / pivot;
            for (int r = k + 1; r <= P; ++r) {
                const double factor = N(r, k);
                for (int c = k; c <= P + 1; ++c)
                    N(r, c) = N(r, c) - factor * N(k, c);
            }
        }
        if (N(P, P) == 0) {
            ++singular;
            return true;
        }
        coefs_ = Values(P);
        coefs_(P) = N(P, P + 1) / N(P, P);
        for (int k = P - 1; k >= 1; --k) {
            double value = N(k, P + 1);
            for (int c = k + 1; c <= P; ++c)
                value = value - N(k, c) * coefs_(c);
            coefs_(k) = value;
        }
        return true;
    }

    void PredictBothWays(Values& forward, Values& backward, double u, double v)
    {
        const int s = Row(1).start, e = Row(1).end;
        for (int i = 1; i <= e - s + 1; ++i) {
            double ahead = 0, back = 0;
            for (int j = 1; j <= order_; ++j) {
                ahead += coefs_(j) * forward(s - 1 + i - j);
                back += coefs_(j) * backward(e + 1 - i + j);
            }
            forward(s - 1 + i) = u + ahead;
            backward(e + 1 - i) = v + back;
        }
    }

    void RestoreRegion()
    {
        const int s = Row(1).start, e = Row(1).end, N = e - s + 1;
        const double g = Row(1).sign;
        Values forward = buffer_, backward = buffer_;
        PredictBothWays(forward, backward, 0, 0);
        const Values forward_free = forward, backward_free = backward;
        Values h(2 * N);
        h(1) = 1;
        for (int k = 2; k <= 2 * N; ++k)
            for (int j = 1; j <= std::min(k - 1, order_); ++j)
                h(k) += coefs_(j) * h(k - j);
        double S = 0;
        for (int k = 1; k <= N; ++k)
            S += h(k);
        const double u = (g * 0.8 - forward_free(e)) / S;
        const double v = (g * 0.8 - backward_free(s)) / S;
        forward = buffer_;
        backward = buffer_;
        PredictBothWays(forward, backward, u, v);
        Values rebuilt_buffer = buffer_;
        bool finite = true;
        for (int i = 1; i <= N; ++i) {
            const int t = s - 1 + i;
            rebuilt_buffer(t) = ((N + 0.5 - i) * forward(t) + (i - 0.5) * backward(t)) / N;
            finite = finite && std::isfinite(rebuilt_buffer(t));
        }
        if (!finite) { // nothing that could be put into a file
            quality_good_ = 0;
            ++failed;
            return;
        }
        buffer_ = rebuilt_buffer;
        ++rebuilt;
        if (N == 1) ++single;
        for (int t = s; t <= e; ++t)
            excess_ = std::max(excess_, g > 0 ? buffer_(t) - 1 : -(buffer_(t) + 1));
    }

    int train_, order_, length_, centre_;
    Values buffer_;
    std::vector<Region> regions_;
    int age_ = 221;
    int have_coefs_ = 0;
    int quality_good_ = 1;
    double excess_, excess_max_, gain_ = 1.0, peak_decay_, gain_step_;
    Values coefs_;
};

} // namespace lumora::test
