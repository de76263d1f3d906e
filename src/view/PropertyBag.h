#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lumora {

/// What a control keeps under a name: a flag, a number, or a text. Fonts and pictures are names,
/// which the screen knows what to make of.
using PropertyValue = std::variant<bool, std::int32_t, std::string>;

/// The properties of a control on their way into a file and back, in the order of their writing.
/// Names are one key whatever the case of their letters.
class PropertyBag {
public:
    struct Entry {
        std::string name;
        PropertyValue value;
        bool operator==(const Entry&) const = default;
    };

    /// A name that is there already keeps its place and its spelling and takes the new value.
    void WriteProperty(std::string_view name, const PropertyValue& value);
    /// `otherwise` where the name is not there.
    PropertyValue ReadProperty(std::string_view name, const PropertyValue& otherwise) const;

    const std::vector<Entry>& Entries() const { return entries_; }

private:
    std::vector<Entry> entries_;
};

} // namespace lumora
