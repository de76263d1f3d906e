#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>

namespace lumora {

/// A run of samples over the upper limit (sign +1) or under the lower one (sign -1), both ends
/// included, by places in the stream.
struct OverRegion {
    std::int64_t start = 0;
    std::int64_t end = 0; ///< of an open region: its first sample until it closes
    std::int16_t sign = 0;

    std::int64_t Length() const { return end - start + 1; }
};

/// The regions of the buffer, the oldest first. Only the last can be open: its end is the newest
/// sample, whichever that is. Regions never touch, as the sample that closes one opens none.
class RegionList {
public:
    bool Empty() const { return rows_.empty(); }
    std::size_t Count() const { return rows_.size(); }
    bool Open() const { return open_; }
    std::int16_t LastSign() const { return rows_.back().sign; }
    bool FirstIsOpen() const { return open_ && rows_.size() == 1; }

    /// Row k from 0 as it stands with `newest` as the newest sample.
    OverRegion At(std::size_t k, std::int64_t newest) const;
    /// Sum of end - start over all rows.
    std::int64_t Span(std::int64_t newest) const;

    void OpenAt(std::int64_t place, std::int16_t sign);
    /// The sample at `place` is the first one behind the open region.
    void CloseBefore(std::int64_t place);
    void RemoveFirst();
    void Clear() { *this = RegionList{}; }

private:
    std::deque<OverRegion> rows_;
    std::int64_t closed_span_ = 0;
    bool open_ = false;
};

} // namespace lumora
