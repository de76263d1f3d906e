#include "numeric/clsComplex.h"

namespace lumora {

void clsComplex::SetReal(double re)
{
    Real = re;
}

void clsComplex::SetImage(double im)
{
    Image = im;
}

void clsComplex::SetComplex(double re, double im)
{
    Real = re;
    Image = im;
}

Ref<clsComplex> clsComplex::CopyObject(const std::string& s) const
{
    Ref<clsComplex> copy = MakeRef<clsComplex>(*this);
    copy->Name = s;
    return copy;
}

} // namespace lumora
