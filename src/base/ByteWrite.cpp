#include "base/ByteStream.h"
#include "base/Numbers.h"
#include "base/Text.h"

#include <vector>

namespace lumora {

namespace {

template <class T, class E>
std::int32_t WriteConverted(FileNumber file, std::span<const E> elements)
{
    std::vector<T> values;
    values.reserve(elements.size());
    for (const E& element : elements)
        values.push_back(FromNumber<T>(NumberOf(element)));
    WriteValues(file, std::span<const T>(values));
    return CLng(elements.size());
}

enum class Operand { Lone, Several };

template <class E>
std::int32_t WriteElements(FileNumber file, std::span<const E> elements, std::string_view type,
                           Operand operand)
{
    if (type == "uchar") return WriteConverted<std::uint8_t>(file, elements);
    if (type == "short") return WriteConverted<std::int16_t>(file, elements);
    if (type == "long") return WriteConverted<std::int32_t>(file, elements);
    if (type == "double") return WriteConverted<double>(file, elements);
    if (type == "single" && operand == Operand::Several)
        return WriteConverted<float>(file, elements);
    return 0;
}

std::int32_t WriteText(FileNumber file, const std::string& text)
{
    WriteValues(file, std::span<const char>(text));
    return CLng(text.size());
}

struct Writer {
    FileNumber file;
    std::string type;

    std::int32_t operator()(const std::string& text) const
    {
        return type == "_string" ? WriteText(file, text) : 0;
    }
    template <class E> std::int32_t operator()(const Array<E>& array) const
    {
        if constexpr (requires(const E& element) { NumberOf(element); })
            return WriteElements(file, array.Span(), type, Operand::Several);
        else
            return 0;
    }
    template <class T> std::int32_t operator()(const T& value) const
    {
        if constexpr (requires { NumberOf(value); })
            return WriteElements(file, std::span<const T>(&value, 1), type, Operand::Lone);
        else
            return 0;
    }
};

} // namespace

std::int32_t fwrite(FileNumber File, const Variant& Value, std::string_view TypeName)
{
    return Value.Visit(Writer{File, Lower(TypeName)});
}

} // namespace lumora
