#include "numeric/clsMatrix.h"

#include "base/Numbers.h"
#include "numeric/ElementKinds.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"

namespace lumora {

clsMatrix& clsMatrix::SetRealAll_L(const Array<std::int32_t>& Arr, const std::string& s)
{
    return SetRealAll(Widened(Arr), s);
}

clsMatrix& clsMatrix::SetRealAll(Array<double> Arr, const std::string& s)
{
    AdoptDirectly(*this, elements_, std::move(Arr), s);
    return *this;
}

Array<double> clsMatrix::GetRealAll() const
{
    return elements_;
}

Ref<clsMatrix> clsMatrix::CopyObject(const std::string& s) const
{
    Ref<clsMatrix> copy = MakeRef<clsMatrix>(*this);
    copy->Name = s;
    return copy;
}

clsMatrix& clsMatrix::CopyObjectLongToDouble(const clsLong& Source, const std::string& s)
{
    Adopt(*this, elements_, Widened(Source.Elements()), s);
    return *this;
}

clsMatrix& clsMatrix::CopyObjectComplexRealToDouble(const clsComplexMatrix& Source,
                                                    const std::string& s)
{
    Adopt(*this, elements_, Source.GetRealAll(), s);
    return *this;
}

clsMatrix& clsMatrix::CopyObjectComplexImageToDouble(const clsComplexMatrix& Source,
                                                     const std::string& s)
{
    Adopt(*this, elements_, Source.GetImageAll(), s);
    return *this;
}

double clsMatrix::Real(std::int32_t i, std::int32_t j) const
{
    return ElementAt(*this, elements_, i, j);
}

void clsMatrix::Real(std::int32_t i, std::int32_t j, double value)
{
    ElementAt(*this, elements_, i, j) = value;
}

void clsMatrix::Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                               const std::string& new_name)
{
    Adopt(*this, elements_, ZeroStore<double>({new_size1, new_size2}), new_name);
}

void clsMatrix::Set_elements_matrix(std::int32_t i, std::int32_t j, double value)
{
    Real(i, j, value);
}

Variant clsMatrix::GetArr(const Variant& i, const Variant& j) const
{
    return Real(CLng(i.Number()), CLng(j.Number()));
}

} // namespace lumora
