#pragma once

#include <cstddef>

namespace lumora {

/// From here on memory counts as large: its pages cost more than the call.
inline constexpr std::size_t kLargeMemory = std::size_t{4} << 20;

/// Called with fresh memory of kLargeMemory bytes or more that is about to be filled. The library
/// knows no system; who does can ask it for large pages there, of which a matrix of 100 MB takes
/// fifty instead of 25,000. It must not touch the memory, throw, or allocate.
using LargeMemoryHint = void (*)(void* place, std::size_t bytes) noexcept;

/// For the whole process; null, as at the start, for none.
void SetLargeMemoryHint(LargeMemoryHint hint);

/// What an allocation calls.
void HintLargeMemory(void* place, std::size_t bytes);

} // namespace lumora
