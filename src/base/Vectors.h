#pragma once

#include <cstring>

namespace lumora {

/// Vectors of floats for kernels, by the number of lanes. They never cross a call that is not
/// inlined: how they would be passed depends on the processor that is compiled for.
using Two = double __attribute__((vector_size(16)));
using Four = double __attribute__((vector_size(32)));
using Eight = double __attribute__((vector_size(64)));

/// From any address; no alignment is asked for.
template <class V, class T> [[gnu::always_inline]] inline V Load(const T* from)
{
    V values;
    std::memcpy(&values, from, sizeof values);
    return values;
}

} // namespace lumora
