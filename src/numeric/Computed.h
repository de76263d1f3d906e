#pragma once

#include "base/RunTimeError.h"
#include "numeric/Results.h"

namespace lumora {

/// What was computed from `operands`: error 6 if it is not finite although they all are. An
/// infinity or a NaN that was there before just passes.
template <class Value, class... Operands> Value Computed(Value value, const Operands&... operands)
{
    if (!Finite(value) && (Finite(operands) && ...)) Raise(ErrorNumber::Overflow);
    return value;
}

} // namespace lumora
