#pragma once

#include "base/Variant.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"

namespace lumora {

/// Calls `use` with the object that a value holds, and gives its result. Only the seven classes are
/// asked, not every kind of value: what is nested compiles in a fraction of the time. Error 13 for
/// a value that is no object, 91 for an empty Ref.
template <class Use> Variant WithObject(const Variant& value, Use&& use)
{
    if (value.Is<Ref<clsMatrix>>()) return use(*value.As<Ref<clsMatrix>>());
    if (value.Is<Ref<clsLong>>()) return use(*value.As<Ref<clsLong>>());
    if (value.Is<Ref<clsComplexMatrix>>()) return use(*value.As<Ref<clsComplexMatrix>>());
    if (value.Is<Ref<clsMatrixComplex>>()) return use(*value.As<Ref<clsMatrixComplex>>());
    if (value.Is<Ref<clsComplex>>()) return use(*value.As<Ref<clsComplex>>());
    if (value.Is<Ref<clsString>>()) return use(*value.As<Ref<clsString>>());
    return use(*value.As<Ref<clsVariant>>());
}

} // namespace lumora
