#pragma once

#include "support/ReferenceCosine.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <vector>

/// The method of the stretching core, written down as plainly as it can be said: every sum in
/// full, every position from 1, every index checked. Slow on purpose. What it gives is right by
/// reading it, and the fast core has to give the same bits.
namespace lumora::test {

/// Samples 1..n, zero at the start. An index outside throws std::out_of_range.
class Samples {
public:
    Samples() = default;
    explicit Samples(int n) : values_(static_cast<std::size_t>(n), 0.0) {}

    int Count() const { return static_cast<int>(values_.size()); }
    double& operator()(int i) { return values_.at(static_cast<std::size_t>(i - 1)); }
    double operator()(int i) const { return values_.at(static_cast<std::size_t>(i - 1)); }

private:
    std::vector<double> values_;
};

/// One Hann window per length, for making them takes time.
inline const Samples& PlainWindow(int length)
{
    static std::map<int, Samples> windows;
    Samples& window = windows[length];
    if (window.Count() == 0) {
        window = Samples(length);
        const double D = 6.28318530717959 / (length - 1);
        for (int i = 1; i <= length; ++i)
            window(i) = (1 - ReferenceCosine((i - 1) * D)) / 2;
    }
    return window;
}

class PlainWsola {
public:
    PlainWsola(int N, int S, int X)
        : N_(N),
          S_(S),
          L_(2 * N + 1),
          in_len_(4 * N + X),
          out_len_(4 * N),
          keep_(3 * N + X),
          read_(keep_),
          write_(N + 1),
          prev_out_(N),
          in_(in_len_),
          out_(out_len_),
          target_(L_),
          coarse_in_((L_ + X + N) / S - 1),
          coarse_target_(L_ / S + 1),
          window_(PlainWindow(L_))
    {
    }

    std::vector<double> Operation(const std::vector<double>& block, double scale)
    {
        const int K = static_cast<int>(std::nearbyint(N_ * scale));
        read_ -= N_;
        write_ -= prev_out_;
        for (int i = 1; i <= keep_; ++i)
            in_(i) = in_(i + N_);
        for (int i = 1; i <= N_; ++i)
            in_(keep_ + i) = block.at(static_cast<std::size_t>(i - 1));
        for (int i = 1; i <= out_len_ - prev_out_; ++i)
            out_(i) = out_(i + prev_out_);
        for (int i = out_len_ - prev_out_ + 1; i <= out_len_; ++i)
            out_(i) = 0;
        prev_out_ = K;
        if (scale <= 1.0)
            Compress(K);
        else
            Expand(K);
        std::vector<double> result;
        for (int i = 1; i <= K; ++i)
            result.push_back(out_(i));
        return result;
    }

    /// How often it has looked for a place to jump to.
    int Searches() const { return searches_; }

private:
    void Compress(int K)
    {
        if (write_ > K) {
            if (read_ <= 2 * N_) CaptureTarget();
        } else if (read_ > N_) {
            read_ += N_;
            write_ += N_;
            OverlapAdd();
        } else {
            read_ = MatchForward();
            write_ += N_;
            OverlapAdd();
        }
    }

    void Expand(int K)
    {
        if (write_ + N_ > K) {
            read_ += N_;
            write_ += N_;
            OverlapAdd();
            return;
        }
        if (read_ < in_len_ - 3 * N_) {
            read_ += N_;
            write_ += N_;
        } else {
            CaptureTarget();
            read_ = MatchBackward();
            write_ += N_;
        }
        OverlapAdd();
        read_ += N_;
        write_ += N_;
        OverlapAdd();
    }

    void OverlapAdd()
    {
        for (int i = 1; i <= L_; ++i)
            out_(write_ - N_ - 1 + i) += in_(read_ - N_ - 1 + i) * window_(i);
    }

    void CaptureTarget()
    {
        for (int i = 1; i <= L_; ++i)
            target_(i) = in_(read_ - 1 + i);
    }

    void Decimate(const Samples& source, Samples& dest, int first, int last) const
    {
        int slot = 1;
        for (int i = first; i <= last; i += S_)
            dest(slot++) = source(i);
    }

    int MatchForward()
    {
        const int floor = N_ + S_ + 1;
        Decimate(in_, coarse_in_, floor, in_len_ - S_ - 1);
        Decimate(target_, coarse_target_, 1, L_);
        const int C = S_ * (CoarseMatch() - 1) + floor;
        return std::min(FineMatch(C) + N_, keep_ - 1);
    }

    int MatchBackward()
    {
        Decimate(in_, coarse_in_, S_ + 1, keep_ - S_ - 1);
        Decimate(target_, coarse_target_, 1, L_);
        const int C = S_ * (CoarseMatch() - 1) + S_ + 1;
        return std::min(FineMatch(C) + N_, keep_ - N_);
    }

    /// What a search knows at one shift.
    struct Sums {
        double yy = 0, xx = 0, xy = 0, x = 0, y = 0;
    };

    static double CrossSum(const Samples& y, const Samples& x, int shift)
    {
        double sum = 0;
        for (int i = 1; i <= y.Count(); ++i)
            sum += y(i) * x(shift + i);
        return sum;
    }

    static Sums SumsAt(const Samples& y, const Samples& x, int shift)
    {
        Sums sums;
        for (int i = 1; i <= y.Count(); ++i) {
            sums.yy += y(i) * y(i);
            sums.xx += x(shift + i) * x(shift + i);
            sums.x += x(shift + i);
            sums.y += y(i);
        }
        sums.xy = CrossSum(y, x, shift);
        return sums;
    }

    static double Correlation(double sum_xx, double mean_x, double sum_xy, int count, double mean_y,
                              double var_y)
    {
        const double P = (sum_xx - count * (mean_x * mean_x)) * var_y;
        if (P <= 1e-16) return 0.0;
        return (sum_xy - count * mean_x * mean_y) / std::sqrt(P);
    }

    int CoarseMatch()
    {
        ++searches_;
        const Samples& x = coarse_in_;
        const int M = coarse_target_.Count();
        const int D = x.Count() - M;
        Sums sums = SumsAt(coarse_target_, x, 0);
        double mean_x = sums.x / M;
        const double mean_y = sums.y / M;
        const double var_y = sums.yy - M * (mean_y * mean_y);
        double best = Correlation(sums.xx, mean_x, sums.xy, M, mean_y, var_y);
        int best_index = 1;
        for (int k = 1; k <= D; ++k) {
            sums.xx = sums.xx - x(k) * x(k);
            sums.xx = sums.xx + x(M + k) * x(M + k);
            mean_x += (x(M + k) - x(k)) / M;
            const double correlation =
                Correlation(sums.xx, mean_x, CrossSum(coarse_target_, x, k), M, mean_y, var_y);
            if (best < correlation) {
                best = correlation;
                best_index = k + 1;
            }
        }
        return best_index;
    }

    int FineMatch(int C) const
    {
        const int lo = C - S_;
        const int hi = std::min(C + S_, in_len_ - L_);
        Sums sums = SumsAt(target_, in_, lo - 1);
        double mean_a = sums.x / L_;
        const double mean_t = sums.y / L_;
        const double var_t = sums.yy - L_ * (mean_t * mean_t);
        double best = Correlation(sums.xx, mean_a, sums.xy, L_, mean_t, var_t);
        int best_q = lo;
        for (int q = lo + 1; q <= hi; ++q) {
            // One sample ahead of the window at q: so the engine is.
            sums.xx = sums.xx - in_(q) * in_(q);
            sums.xx = sums.xx + in_(q + L_) * in_(q + L_);
            mean_a += (in_(q + L_) - in_(q)) / L_;
            const double correlation =
                Correlation(sums.xx, mean_a, CrossSum(target_, in_, q - 1), L_, mean_t, var_t);
            if (best < correlation) {
                best = correlation;
                best_q = q;
            }
        }
        return best_q;
    }

    int N_, S_, L_, in_len_, out_len_, keep_;
    int read_, write_, prev_out_;
    Samples in_, out_, target_, coarse_in_, coarse_target_;
    const Samples& window_;
    int searches_ = 0;
};

} // namespace lumora::test
