#pragma once

#include "base/RunTimeError.h"
#include "numeric/Sheets.h"

#include <cmath>

namespace lumora {

/// What was computed from `operands`: error 6 if it is not finite although they all are. An
/// infinity or a NaN that was there before just passes.
template <class... Operands> double Computed(double value, Operands... operands)
{
    if (!std::isfinite(value) && (std::isfinite(operands) && ...)) Raise(ErrorNumber::Overflow);
    return value;
}

inline ComplexValue Computed(ComplexValue value, ComplexValue operand)
{
    return {Computed(value.re, operand.re, operand.im), Computed(value.im, operand.re, operand.im)};
}

} // namespace lumora
