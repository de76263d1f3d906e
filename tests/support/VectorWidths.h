#pragma once

#include "base/VectorWidth.h"

#include <gtest/gtest.h>

#include <string>

/// For suites that run once at every width that this processor and this build have:
/// INSTANTIATE_TEST_SUITE_P(, Suite, EveryWidth(), WidthName).
namespace lumora::test {

inline auto EveryWidth()
{
    return testing::ValuesIn(VectorWidths().begin(), VectorWidths().end());
}

inline std::string WidthName(const testing::TestParamInfo<VectorWidth>& one)
{
    constexpr const char* kNames[] = {"Baseline", "Avx2", "Avx512"};
    return kNames[static_cast<std::size_t>(one.param)];
}

} // namespace lumora::test
