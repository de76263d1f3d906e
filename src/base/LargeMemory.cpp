#include "base/LargeMemory.h"

#include <atomic>

namespace lumora {

namespace {

std::atomic<LargeMemoryHint> installed_hint = nullptr;

} // namespace

void SetLargeMemoryHint(LargeMemoryHint hint)
{
    installed_hint = hint;
}

void HintLargeMemory(void* place, std::size_t bytes)
{
    if (const LargeMemoryHint hint = installed_hint) hint(place, bytes);
}

} // namespace lumora
