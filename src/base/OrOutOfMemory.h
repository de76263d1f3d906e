#pragma once

#include "base/RunTimeError.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace lumora {

/// What `action` gives. Error 7 where it needs more memory than there is.
template <class Action> decltype(auto) OrOutOfMemory(Action&& action)
{
    try {
        return std::forward<Action>(action)();
    } catch (const std::bad_alloc&) {
        Raise(ErrorNumber::OutOfMemory);
    } catch (const std::length_error&) {
        Raise(ErrorNumber::OutOfMemory);
    }
}

} // namespace lumora
