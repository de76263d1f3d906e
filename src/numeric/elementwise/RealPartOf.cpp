#include "numeric/elementwise/RealPartOf.h"

#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsMatrix.h"

namespace lumora {

Ref<clsMatrix> RealPartOf(const clsComplexMatrix& m)
{
    return NewMatrix<clsMatrix>(m.GetRealAll());
}

} // namespace lumora
