#include "base/Numbers.h"
#include "numeric/ObjectNumbers.h"
#include "numeric/Operands.h"
#include "numeric/Sentinel.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"

#include <algorithm>
#include <optional>

// clsEye of clsMatrix: the identity of given sizes.

namespace lumora {

namespace {

/// The sizes that the arguments tell; nothing for an object that is not the answer of a size query.
std::optional<Sizes> ToldSizes(const Variant& N, const Variant& second)
{
    if (!TagOf(N)) return Sizes{CLng(N.Number()), CLng((second.IsEmpty() ? N : second).Number())};
    if (!second.IsEmpty() || SizesOfObject(N) != Sizes{1, 2}) return std::nullopt;
    const Ref<clsMatrix> pair = NumbersOfObject(N);
    return Sizes{CLng(pair->Real(1, 1)), CLng(pair->Real(1, 2))};
}

} // namespace

Ref<clsMatrix> clsMatrix::clsEye(const Variant& N, const Variant& second) const
{
    const std::optional<Sizes> sizes = ToldSizes(N, second);
    if (!sizes) return TitledFailure(kErrorUsingEye, kUnknownOption);
    Ref<clsMatrix> eye = MakeRef<clsMatrix>();
    eye->Initial_matrix(sizes->rows, sizes->columns);
    for (std::int32_t i = 1; i <= std::min(sizes->rows, sizes->columns); ++i)
        eye->Real(i, i, 1.0);
    return eye;
}

} // namespace lumora
