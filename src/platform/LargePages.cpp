#include "platform/LargePages.h"

#include "base/LargeMemory.h"

#include <cstdint>
#include <sys/mman.h>

namespace lumora {

namespace {

/// Whole pages that hold the memory. It is only advice: a system without large pages refuses it.
void AdviseLargePages(void* place, std::size_t bytes) noexcept
{
    constexpr std::uintptr_t kPage = 4096;
    const auto first = reinterpret_cast<std::uintptr_t>(place);
    const std::uintptr_t page = first & ~(kPage - 1);
    static_cast<void>(
        madvise(static_cast<char*>(place) - (first - page), bytes + (first - page), MADV_HUGEPAGE));
}

} // namespace

void UseLargePages()
{
    SetLargeMemoryHint(AdviseLargePages);
}

} // namespace lumora
