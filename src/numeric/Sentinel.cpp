#include "numeric/Sentinel.h"

namespace lumora {

Ref<clsMatrix> ErrorSentinel()
{
    Ref<clsMatrix> sentinel = MakeRef<clsMatrix>();
    sentinel->Initial_matrix(1, 1);
    sentinel->Set_elements_matrix(1, 1, -1.0);
    return sentinel;
}

Ref<clsMatrix> TitledFailure(const std::string& title, const std::string& body, int rule)
{
    if (ShowTitledMessage(title, body, rule) == MessageAnswer::Cancel) return {};
    return ErrorSentinel();
}

} // namespace lumora
