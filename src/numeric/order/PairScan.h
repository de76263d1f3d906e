#pragma once

#include <cstddef>
#include <span>

namespace lumora {

/// Places of the smallest and the largest element, from 0, the first of equal ones.
struct PairScan {
    std::size_t smallest = 0;
    std::size_t largest = 0;
};

/// Elements are compared in pairs and only the smaller of a pair with the smallest, only the larger
/// with the largest so far: three comparisons for two elements. An odd number of elements starts
/// its pairs at the second. For one element or more and no NaN among them.
template <class Less> PairScan ScanInPairs(std::span<const double> x, Less less)
{
    PairScan found;
    double smallest = x[0];
    double largest = x[0];
    for (std::size_t k = x.size() % 2; k < x.size(); k += 2) {
        const std::size_t falls = less(x[k + 1], x[k]) ? 1 : 0;
        const double low = x[k + falls];
        const double high = x[k + 1 - falls];
        if (less(low, smallest)) {
            smallest = low;
            found.smallest = k + falls;
        }
        if (less(largest, high)) {
            largest = high;
            // Of equal ones the first counts.
            found.largest = less(x[k], x[k + 1]) ? k + 1 : k;
        }
    }
    return found;
}

} // namespace lumora
