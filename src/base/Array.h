#pragma once

#include "base/LargeMemory.h"
#include "base/OrOutOfMemory.h"
#include "base/RunTimeError.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace lumora {

/// Lowest and highest index of one dimension, both included.
struct Bounds {
    std::int64_t lower = 1;
    std::int64_t upper = 0;

    /// Below 1 for an empty range; a range too long to count counts as the longest.
    std::int64_t Count() const
    {
        constexpr std::int64_t kLongest = std::numeric_limits<std::int64_t>::max();
        std::int64_t steps = 0;
        if (upper < lower) return 0;
        if (__builtin_sub_overflow(upper, lower, &steps) || steps == kLongest) return kLongest;
        return steps + 1;
    }
    bool Holds(std::int64_t i) const { return i >= lower && i <= upper; }
    bool operator==(const Bounds&) const = default;
};

/// Gives a vector memory that nobody has written yet: who resizes writes every element anyway, and
/// filling a large array twice costs more than computing it.
template <class T> struct UnwrittenMemory : std::allocator<T> {
    template <class U> struct rebind { // NOLINT(readability-identifier-naming): the standard's name
        using other = UnwrittenMemory<U>;
    };
    T* allocate(std::size_t count)
    {
        T* const place = std::allocator<T>::allocate(count);
        if (count >= kLargeMemory / sizeof(T)) HintLargeMemory(place, count * sizeof(T));
        return place;
    }
    template <class U> void construct(U* place) { ::new (static_cast<void*>(place)) U; }
    template <class U, class... Values> void construct(U* place, Values&&... values)
    {
        std::construct_at(place, std::forward<Values>(values)...);
    }
};

/// The plain array of the whole system: one or two dimensions, lower bounds of choice (1 unless
/// told), column-major. Every access is checked: error 9. A fresh or erased array has no
/// dimension, and asking it for a bound or an element is error 9 as well.
template <class T> class Array {
public:
    Array() = default;
    /// One dimension, 1..count, zero-filled. Error 9 if count is below 1.
    explicit Array(std::int64_t count) { ReDim({1, count}); }
    /// Two dimensions, 1..rows by 1..columns, zero-filled. Error 9 if either is below 1.
    Array(std::int64_t rows, std::int64_t columns) { ReDim({1, rows}, {1, columns}); }

    Array(const Array&) = default;
    Array& operator=(const Array&) = default;
    /// What is moved from is left without dimension.
    Array(Array&& other) noexcept { Swap(other); }
    Array& operator=(Array&& other) noexcept
    {
        Array taken(std::move(other));
        Swap(taken);
        return *this;
    }
    ~Array() = default;

    /// New shape, zero-filled; earlier contents are gone. Errors 9 (empty shape) and 7.
    void ReDim(Bounds first)
    {
        Reshape(1, first, {1, 1});
        std::fill(store_.begin(), store_.end(), T{});
    }
    void ReDim(Bounds first, Bounds second)
    {
        Reshape(2, first, second);
        std::fill(store_.begin(), store_.end(), T{});
    }
    /// New shape with whatever contents: for a caller who writes every element anyway. Memory
    /// that is large enough is used again, so a loop that keeps its array allocates once.
    void ReDimForOverwrite(Bounds first) { Reshape(1, first, {1, 1}); }
    void ReDimForOverwrite(Bounds first, Bounds second) { Reshape(2, first, second); }

    /// Another upper bound for the last dimension; the elements that stay keep their places and
    /// new ones are zero-filled. Errors 9 (no dimension, or an empty shape) and 7.
    void ReDimPreserve(std::int64_t upper)
    {
        const Bounds last{At(dimensions_).lower, upper};
        Array next;
        if (dimensions_ == 1)
            next.ReDimForOverwrite(last);
        else
            next.ReDimForOverwrite(bounds_[0], last);
        const std::size_t kept = std::min(store_.size(), next.store_.size());
        const auto rest = std::copy_n(store_.begin(), kept, next.store_.begin());
        std::fill(rest, next.store_.end(), T{});
        Swap(next);
    }

    /// Other bounds over the same elements in the same order. Error 9 if the counts differ.
    void Rebase(Bounds first) { Relabel(1, first, {1, 1}); }
    void Rebase(Bounds first, Bounds second) { Relabel(2, first, second); }

    /// Back to no dimension; the memory is released.
    void Erase() { *this = Array{}; }

    /// 0, 1 or 2.
    int Dimensions() const { return dimensions_; }

    std::int64_t LBound(int dimension = 1) const { return At(dimension).lower; }
    std::int64_t UBound(int dimension = 1) const { return At(dimension).upper; }

    T& operator()(std::int64_t i) { return store_[Place(i)]; }
    const T& operator()(std::int64_t i) const { return store_[Place(i)]; }
    T& operator()(std::int64_t i, std::int64_t j) { return store_[Place(i, j)]; }
    const T& operator()(std::int64_t i, std::int64_t j) const { return store_[Place(i, j)]; }

    /// All elements in column-major order, unchecked: for kernels that check at their door.
    std::span<T> Span() { return store_; }
    std::span<const T> Span() const { return store_; }

    bool operator==(const Array&) const = default;

private:
    using Store = std::vector<T, UnwrittenMemory<T>>;

    void Swap(Array& other) noexcept
    {
        std::swap(dimensions_, other.dimensions_);
        std::swap(bounds_, other.bounds_);
        store_.swap(other.store_);
    }

    void Reshape(int dimensions, Bounds first, Bounds second)
    {
        if (first.Count() < 1 || second.Count() < 1) Raise(ErrorNumber::Subscript);
        std::int64_t size = 0;
        if (__builtin_mul_overflow(first.Count(), second.Count(), &size))
            Raise(ErrorNumber::OutOfMemory);
        OrOutOfMemory([&] {
            const auto count = static_cast<std::size_t>(size);
            if (count > store_.capacity())
                Store(count).swap(store_);
            else
                store_.resize(count);
        });
        dimensions_ = dimensions;
        bounds_[0] = first;
        bounds_[1] = second;
    }

    void Relabel(int dimensions, Bounds first, Bounds second)
    {
        std::int64_t size = 0;
        if (__builtin_mul_overflow(first.Count(), second.Count(), &size) || size < 1 ||
            static_cast<std::size_t>(size) != store_.size())
            Raise(ErrorNumber::Subscript);
        Reshape(dimensions, first, second);
    }

    const Bounds& At(int dimension) const
    {
        if (dimension < 1 || dimension > dimensions_) Raise(ErrorNumber::Subscript);
        return bounds_[dimension - 1];
    }

    std::size_t Place(std::int64_t i) const
    {
        if (dimensions_ != 1 || !bounds_[0].Holds(i)) Raise(ErrorNumber::Subscript);
        return static_cast<std::size_t>(i - bounds_[0].lower);
    }

    std::size_t Place(std::int64_t i, std::int64_t j) const
    {
        if (dimensions_ != 2 || !bounds_[0].Holds(i) || !bounds_[1].Holds(j))
            Raise(ErrorNumber::Subscript);
        return static_cast<std::size_t>((j - bounds_[1].lower) * bounds_[0].Count() +
                                        (i - bounds_[0].lower));
    }

    int dimensions_ = 0;
    Bounds bounds_[2];
    Store store_;
};

} // namespace lumora
