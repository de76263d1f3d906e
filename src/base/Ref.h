#pragma once

#include "base/RunTimeError.h"

#include <memory>
#include <utility>

namespace lumora {

/// Shared owner of an object. An object goes when its last Ref goes. Use of an empty Ref is
/// error 91. Comparison asks for the same object, not for equal ones.
template <class T> class Ref {
public:
    Ref() = default;
    explicit Ref(std::shared_ptr<T> object) : object_(std::move(object)) {}

    T& operator*() const { return *Held(); }
    T* operator->() const { return Held(); }
    explicit operator bool() const { return object_ != nullptr; }
    bool operator==(const Ref&) const = default;

    /// Lets go of the object.
    void Clear() { object_.reset(); }

private:
    T* Held() const
    {
        if (!object_) Raise(ErrorNumber::ObjectNotSet);
        return object_.get();
    }

    std::shared_ptr<T> object_;
};

/// A new object in its first Ref.
template <class T, class... Arguments> Ref<T> MakeRef(Arguments&&... arguments)
{
    return Ref<T>(std::make_shared<T>(std::forward<Arguments>(arguments)...));
}

} // namespace lumora
