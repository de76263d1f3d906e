#include "numeric/Sheets.h"

#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"

namespace lumora {

namespace {

template <class T>
std::span<const T> Checked(std::int32_t rows, std::int32_t columns, const Array<T>& store)
{
    const int dimensions = store.Dimensions();
    const bool fits = dimensions == 0 ? rows == 0 && columns == 0
                      : dimensions == 1
                          ? rows == 1 && store.UBound() == columns
                          : rows != 1 && store.UBound(1) == rows && store.UBound(2) == columns;
    if (!fits) Raise(ErrorNumber::Subscript);
    return store.Span();
}

template <class T, class M> Sheet<T> Sheeted(const M& m)
{
    return {m.size1, m.size2, Checked(m.size1, m.size2, m.Elements())};
}

} // namespace

Sheet<double> SheetOf(const clsMatrix& m)
{
    return Sheeted<double>(m);
}

Sheet<std::int32_t> SheetOf(const clsLong& m)
{
    return Sheeted<std::int32_t>(m);
}

ComplexSheet SheetOf(const clsComplexMatrix& m)
{
    return {m.size1, m.size2, Checked(m.size1, m.size2, m.RealPart()),
            Checked(m.size1, m.size2, m.ImagePart())};
}

Sheet<Ref<clsComplex>> SheetOf(const clsMatrixComplex& m)
{
    return Sheeted<Ref<clsComplex>>(m);
}

Sheet<std::string> SheetOf(const clsString& m)
{
    return Sheeted<std::string>(m);
}

Sheet<Variant> SheetOf(const clsVariant& m)
{
    return Sheeted<Variant>(m);
}

Single<ComplexValue> SheetOf(const clsComplex& z)
{
    return {{z.Real, z.Image}};
}

} // namespace lumora
