#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace lumora {

/// A window of fixed length that slides over a longer store: sliding moves an offset, and samples
/// move only when the store is used up.
template <class T> class SlidingBuffer {
public:
    /// A window of `length` zeros. `slack` is how far it slides between two moves of samples;
    /// `readable_behind` samples behind the window may be read, whatever stands there.
    void SetUp(std::size_t length, std::size_t slack, std::size_t readable_behind)
    {
        length_ = length;
        last_offset_ = slack;
        offset_ = 0;
        store_.assign(length + slack + readable_behind, T{});
    }

    void Release() { *this = SlidingBuffer{}; }

    /// The window's first sample.
    T* Data() { return store_.data() + offset_; }
    const T* Data() const { return store_.data() + offset_; }
    std::span<const T> All() const { return {Data(), length_}; }

    /// Slides by `count` (at most the length). Answers the places of the `count` samples that came
    /// in at the end, whose contents the caller writes.
    std::span<T> Slide(std::size_t count)
    {
        if (offset_ + count > last_offset_) {
            std::copy(Data() + count, Data() + length_, store_.data());
            offset_ = 0;
        } else {
            offset_ += count;
        }
        return {Data() + length_ - count, count};
    }

private:
    std::vector<T> store_;
    std::size_t length_ = 0;
    std::size_t offset_ = 0;
    std::size_t last_offset_ = 0;
};

} // namespace lumora
