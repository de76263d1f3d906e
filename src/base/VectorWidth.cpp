#include "base/VectorWidth.h"

#include <vector>

namespace lumora {

namespace {

std::vector<VectorWidth> Probe()
{
    std::vector<VectorWidth> widths{VectorWidth::Baseline};
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2")) widths.push_back(VectorWidth::Avx2);
    if (__builtin_cpu_supports("avx512f")) widths.push_back(VectorWidth::Avx512);
#endif
    return widths;
}

} // namespace

std::span<const VectorWidth> VectorWidths()
{
    static const std::vector<VectorWidth> widths = Probe();
    return widths;
}

VectorWidth WidestVectors()
{
    return VectorWidths().back();
}

} // namespace lumora
