#include "base/LargeMemory.h"

#include <atomic>

namespace lumora {

namespace {

std::atomic<LargeMemoryHint> installed = nullptr;

} // namespace

void SetLargeMemoryHint(LargeMemoryHint hint)
{
    installed = hint;
}

void HintLargeMemory(void* place, std::size_t bytes)
{
    if (const LargeMemoryHint hint = installed) hint(place, bytes);
}

} // namespace lumora
