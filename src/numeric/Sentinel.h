#pragma once

#include "base/Messages.h"
#include "base/Ref.h"
#include "numeric/clsMatrix.h"

#include <string>

namespace lumora {

/// A new 1 by 1 matrix that holds -1: what a failed operation returns to a user who goes on.
Ref<clsMatrix> ErrorSentinel();

/// Shows a titled message: ErrorSentinel if the user answers OK, empty on Cancel.
Ref<clsMatrix> TitledFailure(const std::string& title, const std::string& body,
                             int rule = kTitledRule);

} // namespace lumora
