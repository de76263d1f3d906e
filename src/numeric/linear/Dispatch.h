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

/// Calls the member of `a` that the operand asks for. The order of the questions is behaviour: an
/// array of whole floats is taken for whole numbers before it is asked whether it is numeric.
template <class M, class ComplexNum, class R, class L, class C, class MC, class LArray,
          class RArray, class CArray, class Num>
Variant Dispatch(const M& a, const Variant& Obj, ComplexNum complex_num, R r, L l, C c, MC mc,
                 LArray l_array, RArray r_array, CArray c_array, Num num)
{
    if (const std::string* tag = TagOf(Obj)) {
        if (tag->empty()) return OrEmpty((a.*complex_num)(ObjectOf<clsComplex>(Obj)));
        if (*tag == "r") return OrEmpty((a.*r)(ObjectOf<clsMatrix>(Obj)));
        if (*tag == "L") return OrEmpty((a.*l)(ObjectOf<clsLong>(Obj)));
        if (*tag == "c") return OrEmpty((a.*c)(ObjectOf<clsComplexMatrix>(Obj)));
        if (*tag == "mc") return OrEmpty((a.*mc)(ObjectOf<clsMatrixComplex>(Obj)));
        ShowPlainMessage(kIncorrectObject);
        return {};
    }
    if (Obj.IsArray()) {
        if (IsIntegerArray(Obj)) return OrEmpty((a.*l_array)(LongArray(Obj)));
        if (IsNumericArray(Obj)) return OrEmpty((a.*r_array)(DoubleArray(Obj)));
        if (IsComplexArray(Obj)) return OrEmpty((a.*c_array)(ComplexArray(Obj)));
        return {};
    }
    if (IsNumeric(Obj)) return OrEmpty((a.*num)(Obj.Number()));
    ShowPlainMessage(kIncorrectObject);
    return {};
}

} // namespace lumora
