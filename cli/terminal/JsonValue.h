#pragma once

#include <nlohmann/json_fwd.hpp>

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumora {

/// A value of a JSON document. Objects keep their fields in the order in which they were set. It
/// stands behind a pointer so that one source alone compiles the library that knows JSON, whose
/// header takes longer than most of our own sources.
class JsonValue {
public:
    JsonValue(); ///< null
    JsonValue(double value);
    JsonValue(std::int64_t value);
    template <std::integral T>
    requires(!std::same_as<T, bool>) JsonValue(T value)
        : JsonValue(static_cast<std::int64_t>(value))
    {
    }
    template <std::same_as<bool> T> JsonValue(T value) : JsonValue(Truth{value}) {}
    JsonValue(const std::string& text);
    JsonValue(const char* text) : JsonValue(std::string(text)) {}
    JsonValue(const std::vector<std::string>& texts);
    /// An object.
    JsonValue(std::initializer_list<std::pair<const char*, JsonValue>> fields);
    static JsonValue Object();
    static JsonValue List();

    JsonValue(const JsonValue& other);
    JsonValue(JsonValue&& other) noexcept;
    JsonValue& operator=(JsonValue other) noexcept;
    ~JsonValue();

    /// Gives an object a field, in place of an older one of that name.
    void Set(const std::string& name, JsonValue value);
    /// Gives an object all fields of another.
    void SetAll(const JsonValue& object);
    /// Puts a value at the end of a list.
    void Append(JsonValue value);

    /// As one line, or as lines for a reader. Bytes that are no UTF-8 become U+FFFD.
    std::string Line() const;
    std::string Lines() const;
    /// What Line has written.
    static JsonValue FromLine(std::string_view line);

private:
    struct Truth {
        bool value;
    };

    explicit JsonValue(Truth truth);

    std::unique_ptr<nlohmann::ordered_json> value_;
};

/// The text as JSON can hold it: with U+FFFD for bytes that are no UTF-8.
std::string Utf8Text(const std::string& text);

} // namespace lumora
