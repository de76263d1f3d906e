#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>

/// Short names for the tables of members.
namespace lumora::test::members {

using R = Ref<clsMatrix>;
using L = Ref<clsLong>;
using C = Ref<clsComplexMatrix>;
using MC = Ref<clsMatrixComplex>;
using Z = Ref<clsComplex>;
using S = Ref<clsString>;
using V = Ref<clsVariant>;
using I16 = std::int16_t;
using I32 = std::int32_t;
using Text = std::string;

/// The members of M that have exactly the type F: a member that is missing, takes other arguments
/// or returns another class does not fit into the list.
template <class M, class F> consteval bool Has(std::initializer_list<F M::*> members)
{
    return std::none_of(members.begin(), members.end(),
                        [](auto member) { return member == nullptr; });
}

} // namespace lumora::test::members
