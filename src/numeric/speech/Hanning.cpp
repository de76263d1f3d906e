#include "base/Cosine.h"
#include "base/Numbers.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsMatrix.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

// The peak limiter of clsMatrix.

namespace lumora {

namespace {

struct Peak {
    double height = 0.0;
    std::size_t place = 0;
};

/// The first of the highest magnitudes from `from` to before `to`; a NaN is none.
Peak PeakBetween(std::span<const double> x, std::size_t from, std::size_t to)
{
    Peak peak{0.0, from};
    for (std::size_t k = from; k < to; ++k)
        if (std::abs(x[k]) > peak.height) peak = {std::abs(x[k]), k};
    return peak;
}

/// Knows the peak of a vector, block by block: after a change only the blocks of that range are
/// looked through again, so that a long sound of many peaks is not read once for each.
class Peaks {
public:
    explicit Peaks(std::span<const double> x) : x_(x), blocks_((x.size() + kBlock - 1) / kBlock)
    {
        Changed(0, x.size() - 1);
    }

    /// Elements first..last have new values.
    void Changed(std::size_t first, std::size_t last)
    {
        for (std::size_t b = first / kBlock; b <= last / kBlock; ++b)
            blocks_[b] = PeakBetween(x_, b * kBlock, std::min((b + 1) * kBlock, x_.size()));
    }
    Peak Highest() const
    {
        return *std::max_element(blocks_.begin(), blocks_.end(),
                                 [](const Peak& a, const Peak& b) { return a.height < b.height; });
    }

private:
    static constexpr std::size_t kBlock = 1024;

    std::span<const double> x_;
    std::vector<Peak> blocks_;
};

/// A notch of w samples around a peak; positions count from 1. The turn is the window's literal,
/// not the last bit of two pi.
struct Notch {
    std::int64_t start;
    std::int64_t first;
    std::int64_t last;
    double phi;
    double depth;

    Notch(std::int32_t w, const Peak& peak, std::int64_t length)
        : phi(Divide(6.28318530717959, w - 1.0)), depth(1.0 - 0.9 / peak.height)
    {
        const auto p = static_cast<double>(peak.place + 1);
        const double half = w / 2.0;
        start = CLng(p - half);
        first = std::max<std::int64_t>(start, 1);
        last = Int(half + p) < static_cast<double>(length) ? CLng(half + p) : length;
    }
    double Gain(std::int64_t i) const
    {
        return 1.0 - (0.5 - Cosine(static_cast<double>(i - start) * phi) * 0.5) * depth;
    }
};

} // namespace

Ref<clsMatrix> clsMatrix::Hanning_Normaliz(const Variant& /*unused*/, double Twind,
                                           std::int32_t Fs) const
{
    const Sheet<double> sheet = SheetOf(*this);
    if (sheet.rows != 1) Raise(ErrorNumber::Subscript);
    Array<double> x = GetRealAll();
    Peaks peaks(x.Span());
    for (Peak peak = peaks.Highest(); peak.height > 1.0; peak = peaks.Highest()) {
        const Notch notch(CLng(Fs * Twind / 1000.0), peak, sheet.columns);
        for (std::int64_t i = notch.first; i <= notch.last; ++i)
            x(i) = notch.Gain(i) * x(i);
        // It would not fall in any later round either.
        if (!(std::abs(x.Span()[peak.place]) < peak.height)) Raise(ErrorNumber::InvalidCall);
        peaks.Changed(static_cast<std::size_t>(notch.first - 1),
                      static_cast<std::size_t>(notch.last - 1));
    }
    return NewMatrix<clsMatrix>(std::move(x));
}

} // namespace lumora
