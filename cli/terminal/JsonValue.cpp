#include "cli/terminal/JsonValue.h"

#include <nlohmann/json.hpp>

namespace lumora {

namespace {

using nlohmann::ordered_json;

std::string Dump(const ordered_json& json, int indent)
{
    return json.dump(indent, ' ', false, ordered_json::error_handler_t::replace);
}

} // namespace

JsonValue::JsonValue() : value_(std::make_unique<ordered_json>()) {}
JsonValue::JsonValue(double value) : value_(std::make_unique<ordered_json>(value)) {}
JsonValue::JsonValue(std::int64_t value) : value_(std::make_unique<ordered_json>(value)) {}
JsonValue::JsonValue(Truth truth) : value_(std::make_unique<ordered_json>(truth.value)) {}
JsonValue::JsonValue(const std::string& text) : value_(std::make_unique<ordered_json>(text)) {}
JsonValue::JsonValue(const std::vector<std::string>& texts)
    : value_(std::make_unique<ordered_json>(texts))
{
}

JsonValue::JsonValue(std::initializer_list<std::pair<const char*, JsonValue>> fields)
    : JsonValue(Object())
{
    for (const auto& [name, value] : fields)
        Set(name, value);
}

JsonValue JsonValue::Object()
{
    JsonValue object;
    *object.value_ = ordered_json::object();
    return object;
}

JsonValue JsonValue::List()
{
    JsonValue list;
    *list.value_ = ordered_json::array();
    return list;
}

JsonValue::JsonValue(const JsonValue& other) : value_(std::make_unique<ordered_json>(*other.value_))
{
}
JsonValue::JsonValue(JsonValue&& other) noexcept = default;
JsonValue::~JsonValue() = default;

JsonValue& JsonValue::operator=(JsonValue other) noexcept
{
    value_.swap(other.value_);
    return *this;
}

void JsonValue::Set(const std::string& name, JsonValue value)
{
    (*value_)[name] = std::move(*value.value_);
}

void JsonValue::SetAll(const JsonValue& object)
{
    value_->update(*object.value_);
}

void JsonValue::Append(JsonValue value)
{
    value_->push_back(std::move(*value.value_));
}

std::string JsonValue::Line() const
{
    return Dump(*value_, -1);
}

std::string JsonValue::Lines() const
{
    return Dump(*value_, 2);
}

JsonValue JsonValue::FromLine(std::string_view line)
{
    JsonValue value;
    *value.value_ = ordered_json::parse(line);
    return value;
}

std::string Utf8Text(const std::string& text)
{
    return ordered_json::parse(Dump(text, -1));
}

} // namespace lumora
