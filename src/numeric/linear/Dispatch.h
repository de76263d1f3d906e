#pragma once

#include "base/Messages.h"
#include "numeric/NumericMessages.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"

#include <string>

namespace lumora {

/// Calls the member of `a` that the operand asks for, one of OperatorMembers.h. The order of the
/// questions is behaviour: an array of whole floats is taken for whole numbers before it is asked
/// whether it is numeric.
template <class Members, class M> Variant Dispatch(const M& a, const Variant& Obj)
{
    const auto answer = [&a](const auto& b) { return OrEmpty(Members::Of(a, b)); };
    if (const std::string* tag = TagOf(Obj)) {
        if (tag->empty()) return answer(ObjectOf<clsComplex>(Obj));
        if (*tag == "r") return answer(ObjectOf<clsMatrix>(Obj));
        if (*tag == "L") return answer(ObjectOf<clsLong>(Obj));
        if (*tag == "c") return answer(ObjectOf<clsComplexMatrix>(Obj));
        if (*tag == "mc") return answer(ObjectOf<clsMatrixComplex>(Obj));
        ShowPlainMessage(kIncorrectObject);
        return {};
    }
    if (Obj.IsArray()) {
        if (IsIntegerArray(Obj)) return answer(LongArray(Obj));
        if (IsNumericArray(Obj)) return answer(DoubleArray(Obj));
        if (IsComplexArray(Obj)) return answer(ComplexArray(Obj));
        return {};
    }
    if (IsNumeric(Obj)) return answer(Obj.Number());
    ShowPlainMessage(kIncorrectObject);
    return {};
}

} // namespace lumora
