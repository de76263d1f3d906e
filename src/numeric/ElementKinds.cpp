#include "numeric/ElementKinds.h"

#include "base/Numbers.h"
#include "numeric/clsComplex.h"

namespace lumora {

Array<double> Widened(const Array<std::int32_t>& array)
{
    return Converted<double>(array, [](std::int32_t x) { return static_cast<double>(x); });
}

Array<std::int32_t> Narrowed(const Array<double>& array)
{
    return Converted<std::int32_t>(array, [](double x) { return CLng(x); });
}

Array<double> RealParts(const Array<Ref<clsComplex>>& objects)
{
    return Converted<double>(objects, [](const Ref<clsComplex>& z) { return z->Real; });
}

Array<double> ImageParts(const Array<Ref<clsComplex>>& objects)
{
    return Converted<double>(objects, [](const Ref<clsComplex>& z) { return z->Image; });
}

Array<Ref<clsComplex>> ElementObjects(const Array<double>& re, const Array<double>& im)
{
    if (re.Span().size() != im.Span().size()) Raise(ErrorNumber::Subscript);
    std::size_t k = 0;
    return Converted<Ref<clsComplex>>(
        re, [&](double real) { return MakeRef<clsComplex>(real, im.Span()[k++]); });
}

Array<Ref<clsComplex>> CopiedObjects(const Array<Ref<clsComplex>>& objects)
{
    return Converted<Ref<clsComplex>>(objects, [](const Ref<clsComplex>& z) {
        return z ? MakeRef<clsComplex>(*z) : Ref<clsComplex>();
    });
}

} // namespace lumora
