#include "numeric/clsLong.h"

#include "base/Numbers.h"
#include "numeric/ElementKinds.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsMatrix.h"

namespace lumora {

bool clsLong::IsLong(const Variant& value) const
{
    return IsWholeNumber(value);
}

clsLong& clsLong::SetArray(const Variant& Arr, const std::string& s)
{
    if (!IsNumericArray(Arr)) {
        ShowPlainMessage(kIncorectMatrix);
        return *this;
    }
    return SetRealAll(LongArray(Arr), s);
}

clsLong& clsLong::SetRealAll_D(const Array<double>& Arr, const std::string& s)
{
    return SetRealAll(Narrowed(Arr), s);
}

clsLong& clsLong::SetRealAll(Array<std::int32_t> Arr, const std::string& s)
{
    AdoptDirectly(*this, elements_, std::move(Arr), s);
    return *this;
}

Array<std::int32_t> clsLong::GetRealAll() const
{
    return elements_;
}

std::int32_t clsLong::Real(std::int32_t i, std::int32_t j) const
{
    return ElementAt(*this, elements_, i, j);
}

void clsLong::Real(std::int32_t i, std::int32_t j, std::int32_t value)
{
    ElementAt(*this, elements_, i, j) = value;
}

void clsLong::Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                             const std::string& new_name)
{
    Adopt(*this, elements_, ZeroStore<std::int32_t>({new_size1, new_size2}), new_name);
}

Ref<clsLong> clsLong::CopyObject(const std::string& s) const
{
    Ref<clsLong> copy = MakeRef<clsLong>(*this);
    copy->Name = s;
    return copy;
}

clsLong& clsLong::CopyObjectDoubleToLong(const clsMatrix& Source, const std::string& s)
{
    Adopt(*this, elements_, Narrowed(Source.Elements()), s);
    return *this;
}

clsLong& clsLong::CopyObjectComplexRealToLong(const clsComplexMatrix& Source, const std::string& s)
{
    Adopt(*this, elements_, Narrowed(Source.RealPart()), s);
    return *this;
}

clsLong& clsLong::CopyObjectComplexImageToLong(const clsComplexMatrix& Source, const std::string& s)
{
    Adopt(*this, elements_, Narrowed(Source.ImagePart()), s);
    return *this;
}

void clsLong::Set_elements_matrix(std::int32_t i, std::int32_t j, std::int32_t value)
{
    Real(i, j, value);
}

Variant clsLong::GetArr(const Variant& i, const Variant& j) const
{
    return Real(CLng(i.Number()), CLng(j.Number()));
}

} // namespace lumora
