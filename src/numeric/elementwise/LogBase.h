#pragma once

#include "base/Messages.h"
#include "base/Variant.h"
#include "numeric/Computed.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/elementwise/Mapping.h"
#include "numeric/elementwise/RealFunctions.h"

#include <cmath>
#include <string>
#include <type_traits>
#include <utility>

namespace lumora {

/// Calls `use` with the logarithm of a number or of a clsComplex and with what was told on the way;
/// another base shows `complaint`, and the result is empty. Error 5 for a number not above 0 and 11
/// for 1, whose logarithm divides.
template <class Use> auto WithLogOfBase(const Variant& base, const char* complaint, Use use)
{
    OneTelling tell;
    if (const std::string* tag = TagOf(base); tag != nullptr && tag->empty()) {
        const ComplexValue z = SheetOf(ObjectOf<clsComplex>(base))[0];
        const ComplexValue log_base = Computed(formulas::Log(z, tell), z);
        return use(log_base, std::move(tell));
    }
    if (IsNumeric(base)) {
        const double number = base.Number();
        if (number <= 0.0) Raise(ErrorNumber::InvalidCall);
        if (number == 1.0) Raise(ErrorNumber::DivisionByZero);
        return use(std::log(number), std::move(tell));
    }
    ShowPlainMessage(complaint);
    return decltype(use(0.0, std::move(tell)))();
}

/// A function for MapComplex.
template <class LogOfBase> auto LogFormula(LogOfBase log_base)
{
    return
        [log_base](ComplexValue z, OneTelling& tell) { return formulas::LogTo(log_base, z, tell); };
}

/// LogBaseM of the real classes: a complex base makes all elements complex.
template <class M> Variant RealLogBase(const M& m, const Variant& base)
{
    return WithLogOfBase(base, kIncorrectBase, [&m](auto log_base, OneTelling told) -> Variant {
        if constexpr (std::is_same_v<decltype(log_base), double>)
            return MapOrPromote(m, elementary::LogBase{log_base});
        else
            return ComplexElements(SizesOf(m),
                                   ComplexRule{LogFormula(log_base), SheetOf(m), std::move(told)});
    });
}

/// LogBaseM of the complex classes.
template <class M> Ref<M> ComplexLogBase(const M& m, const Variant& base)
{
    return WithLogOfBase(base, kIncorrectObjectBlank, [&m](auto log_base, OneTelling told) {
        return MapComplex(m, LogFormula(log_base), std::move(told));
    });
}

} // namespace lumora
