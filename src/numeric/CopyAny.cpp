#include "numeric/CopyAny.h"

#include "numeric/Stores.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"

namespace lumora {

namespace {

template <class T> Variant Copied(const T& value)
{
    return value;
}

template <class M> Variant Copied(const Ref<M>& object)
{
    if (object->TypeOfMatrix != kTag<M>) Raise(ErrorNumber::TypeMismatch);
    if constexpr (requires { object->CopyObjectVariant(); })
        return object->CopyObjectVariant();
    else
        return object->CopyObject();
}

} // namespace

Variant CopyAny(const Variant& value)
{
    return value.Visit([](const auto& held) { return Copied(held); });
}

} // namespace lumora
