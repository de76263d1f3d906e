#pragma once

#include "base/Variant.h"

namespace lumora {

/// A copy that shares no matrix object with `value`: an object by its own CopyObject (on clsVariant
/// CopyObjectVariant), so without its name; any other value as it is. Errors: 91 for a missing
/// object, 13 for one whose tag belies its class.
Variant CopyAny(const Variant& value);

} // namespace lumora
