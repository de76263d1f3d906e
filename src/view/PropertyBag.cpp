#include "view/PropertyBag.h"

#include "base/Text.h"

#include <algorithm>

namespace lumora {

namespace {

auto Named(std::string_view name)
{
    return [name](const PropertyBag::Entry& entry) { return EqualIgnoringCase(entry.name, name); };
}

} // namespace

void PropertyBag::WriteProperty(std::string_view name, const PropertyValue& value)
{
    const auto there = std::ranges::find_if(entries_, Named(name));
    if (there == entries_.end())
        entries_.push_back({std::string(name), value});
    else
        there->value = value;
}

PropertyValue PropertyBag::ReadProperty(std::string_view name, const PropertyValue& otherwise) const
{
    const auto there = std::ranges::find_if(entries_, Named(name));
    return there == entries_.end() ? otherwise : there->value;
}

} // namespace lumora
