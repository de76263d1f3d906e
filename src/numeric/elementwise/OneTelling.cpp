#include "numeric/elementwise/OneTelling.h"

#include "base/Messages.h"

#include <algorithm>

namespace lumora {

double OneTelling::Instead(const char* text, double value)
{
    if (std::find(told_.begin(), told_.end(), text) == told_.end()) {
        told_.emplace_back(text);
        ShowPlainMessage(text);
    }
    return value;
}

} // namespace lumora
