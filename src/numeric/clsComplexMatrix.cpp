#include "numeric/clsComplexMatrix.h"

#include "numeric/ElementKinds.h"
#include "numeric/Stores.h"
#include "numeric/clsComplex.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"

namespace lumora {

namespace {

template <class T> Array<double> ZerosLike(const Array<T>& array)
{
    return ZeroStore<double>(SizesOf(array));
}

} // namespace

clsComplexMatrix& clsComplexMatrix::SetComplexArray(const Array<Ref<clsComplex>>& Arr,
                                                    const std::string& s)
{
    return CopyObject_mcArray(Arr, s);
}

Array<Ref<clsComplex>> clsComplexMatrix::GetComplexArray() const
{
    return ElementObjects(real_part_, image_part_);
}

clsComplexMatrix& clsComplexMatrix::SetRealAll_L(const Array<std::int32_t>& Arr,
                                                 const std::string& s)
{
    return SetRealAll(Widened(Arr), s);
}

clsComplexMatrix& clsComplexMatrix::SetImageAll_L(const Array<std::int32_t>& Arr,
                                                  const std::string& s)
{
    return SetImageAll(Widened(Arr), s);
}

clsComplexMatrix& clsComplexMatrix::SetRealAll(Array<double> Arr, const std::string& s)
{
    AdoptDirectly(*this, real_part_, std::move(Arr), s);
    return *this;
}

clsComplexMatrix& clsComplexMatrix::SetImageAll(Array<double> Arr, const std::string& s)
{
    Adopt(*this, image_part_, std::move(Arr), s);
    return *this;
}

double clsComplexMatrix::Real(std::int32_t i, std::int32_t j) const
{
    return ElementAt(*this, real_part_, i, j);
}

void clsComplexMatrix::Real(std::int32_t i, std::int32_t j, double value)
{
    ElementAt(*this, real_part_, i, j) = value;
}

double clsComplexMatrix::Image(std::int32_t i, std::int32_t j) const
{
    return ElementAt(*this, image_part_, i, j);
}

void clsComplexMatrix::Image(std::int32_t i, std::int32_t j, double value)
{
    ElementAt(*this, image_part_, i, j) = value;
}

void clsComplexMatrix::SetComplex(std::int32_t i, std::int32_t j, double re, double im)
{
    double& image = ElementAt(*this, image_part_, i, j);
    ElementAt(*this, real_part_, i, j) = re;
    image = im;
}

Array<double> clsComplexMatrix::GetRealAll() const
{
    return real_part_;
}

Array<double> clsComplexMatrix::GetImageAll() const
{
    return image_part_;
}

Ref<clsComplexMatrix> clsComplexMatrix::CopyObject(const std::string& s) const
{
    Ref<clsComplexMatrix> copy = MakeRef<clsComplexMatrix>(*this);
    copy->Name = s;
    return copy;
}

clsComplexMatrix& clsComplexMatrix::CopyObjectDoubleToComplexReal(const clsMatrix& Source,
                                                                  const std::string& s)
{
    return SetComplexAll(Source.Elements(), ZerosLike(Source.Elements()), s);
}

clsComplexMatrix& clsComplexMatrix::CopyObjectDoubleToComplexImage(const clsMatrix& Source,
                                                                   const std::string& s)
{
    return SetComplexAll(ZerosLike(Source.Elements()), Source.Elements(), s);
}

clsComplexMatrix& clsComplexMatrix::CopyObjectTwoDoubleToComplex(const clsMatrix& RealSource,
                                                                 const clsMatrix& ImageSource,
                                                                 const std::string& s)
{
    return SetComplexAll(RealSource.Elements(), ImageSource.Elements(), s);
}

clsComplexMatrix& clsComplexMatrix::CopyObjectLongToComplexReal(const clsLong& Source,
                                                                const std::string& s)
{
    return SetComplexAll(Widened(Source.Elements()), ZerosLike(Source.Elements()), s);
}

clsComplexMatrix& clsComplexMatrix::CopyObjectLongToComplexImage(const clsLong& Source,
                                                                 const std::string& s)
{
    return SetComplexAll(ZerosLike(Source.Elements()), Widened(Source.Elements()), s);
}

clsComplexMatrix& clsComplexMatrix::CopyObjectTwoLongToComplex(const clsLong& RealSource,
                                                               const clsLong& ImageSource,
                                                               const std::string& s)
{
    return SetComplexAll_L(RealSource.Elements(), ImageSource.Elements(), s);
}

clsComplexMatrix& clsComplexMatrix::CopyObject_mc(const clsMatrixComplex& Source,
                                                  const std::string& s)
{
    return CopyObject_mcArray(Source.Elements(), s);
}

clsComplexMatrix& clsComplexMatrix::CopyObject_mcArray(const Array<Ref<clsComplex>>& Source,
                                                       const std::string& s)
{
    return SetComplexAll(RealParts(Source), ImageParts(Source), s);
}

clsComplexMatrix& clsComplexMatrix::SetComplexAll(Array<double> re, Array<double> im,
                                                  const std::string& s)
{
    if (SizesOf(re) != SizesOf(im)) {
        ShowPlainMessage(kDimensionsMustAgree);
        return *this;
    }
    Adopt(*this, real_part_, std::move(re), s);
    Adopt(*this, image_part_, std::move(im), s);
    return *this;
}

clsComplexMatrix& clsComplexMatrix::SetComplexAll_L(const Array<std::int32_t>& re,
                                                    const Array<std::int32_t>& im,
                                                    const std::string& s)
{
    return SetComplexAll(Widened(re), Widened(im), s);
}

void clsComplexMatrix::Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                                      const std::string& new_name)
{
    const Array<double> zeros = ZeroStore<double>({new_size1, new_size2});
    SetComplexAll(zeros, zeros, new_name);
}

void clsComplexMatrix::Set_elements_matrix(std::int32_t i, std::int32_t j, double re, double im)
{
    SetComplex(i, j, re, im);
}

} // namespace lumora
