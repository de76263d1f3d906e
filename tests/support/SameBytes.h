#pragma once

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace lumora::test {

/// The file is there and holds exactly these bytes. A failure names the first difference and prints
/// neither side: a result can have gigabytes.
inline testing::AssertionResult HoldsBytes(const std::string& path, const std::string& expected)
{
    std::error_code failure;
    const std::uintmax_t size = std::filesystem::file_size(path, failure);
    if (failure) return testing::AssertionFailure() << path << ": " << failure.message();
    if (size != expected.size())
        return testing::AssertionFailure()
               << path << " has " << size << " bytes instead of " << expected.size();
    const std::string bytes = BytesOf(path);
    const auto [here, there] = std::mismatch(bytes.begin(), bytes.end(), expected.begin());
    if (here == bytes.end()) return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << path << " differs first in byte " << here - bytes.begin() << " of " << size;
}

} // namespace lumora::test
