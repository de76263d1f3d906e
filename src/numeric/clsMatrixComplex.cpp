#include "numeric/clsMatrixComplex.h"

#include "numeric/ElementKinds.h"
#include "numeric/Stores.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"

namespace lumora {

Array<Ref<clsComplex>> clsMatrixComplex::GetRealAll() const
{
    return elements_;
}

Array<double> clsMatrixComplex::GetRealArrAll() const
{
    return RealParts(elements_);
}

Array<double> clsMatrixComplex::GetImageArrAll() const
{
    return ImageParts(elements_);
}

Ref<clsMatrixComplex> clsMatrixComplex::CopyObject(const std::string& s) const
{
    Ref<clsMatrixComplex> copy = MakeRef<clsMatrixComplex>(*this);
    copy->elements_ = CopiedObjects(elements_);
    copy->Name = s;
    return copy;
}

clsMatrixComplex& clsMatrixComplex::SetRealAll(Array<Ref<clsComplex>> Arr, const std::string& s)
{
    AdoptDirectly(*this, elements_, std::move(Arr), s);
    return *this;
}

clsMatrixComplex& clsMatrixComplex::SetComplexAll(const Array<double>& re, const Array<double>& im,
                                                  const std::string& s)
{
    if (SizesOf(re) != SizesOf(im)) {
        ShowPlainMessage(kDimensionsMustAgree);
        return *this;
    }
    Adopt(*this, elements_, ElementObjects(re, im), s);
    return *this;
}

clsMatrixComplex& clsMatrixComplex::CopyObject_C(const clsComplexMatrix& Source,
                                                 const std::string& s)
{
    return SetComplexAll(Source.RealPart(), Source.ImagePart(), s);
}

Ref<clsComplex> clsMatrixComplex::Real(std::int32_t i, std::int32_t j) const
{
    return ElementAt(*this, elements_, i, j);
}

void clsMatrixComplex::Real(std::int32_t i, std::int32_t j, const clsComplex& value)
{
    clsComplex& element = *ElementAt(*this, elements_, i, j);
    element.Real = value.Real;
    element.Image = value.Image;
}

void clsMatrixComplex::Destructor()
{
    for (Ref<clsComplex>& element : elements_.Span())
        element.Clear();
}

void clsMatrixComplex::Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                                      const std::string& new_name)
{
    Adopt(*this, elements_, ZeroStore<Ref<clsComplex>>({new_size1, new_size2}), new_name);
}

void clsMatrixComplex::Set_elements_matrix(std::int32_t i, std::int32_t j, const clsComplex& value)
{
    Real(i, j, value);
}

Array<double> clsMatrixComplex::GetRealArr() const
{
    return GetRealArrAll();
}

Array<double> clsMatrixComplex::GetImageArr() const
{
    return GetImageArrAll();
}

} // namespace lumora
