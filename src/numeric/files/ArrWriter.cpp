#include "base/ByteStream.h"
#include "base/Numbers.h"
#include "base/OrOutOfMemory.h"
#include "base/Text.h"
#include "numeric/ObjectNumbers.h"
#include "numeric/Operands.h"
#include "numeric/Sheets.h"
#include "numeric/clsString.h"
#include "numeric/files/ArrFile.h"
#include "numeric/files/ArrFormat.h"
#include "numeric/files/Windows1252.h"

#include <concepts>
#include <limits>
#include <optional>
#include <span>
#include <vector>

namespace lumora {

namespace {

void Append(std::string& bytes, const auto& value)
{
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

void AppendText(std::string& bytes, const std::string& text)
{
    const std::string characters = Windows1252FromUtf8(text);
    if (characters.size() > std::numeric_limits<std::uint16_t>::max()) Raise(ErrorNumber::Overflow);
    Append(bytes, static_cast<std::uint16_t>(characters.size()));
    bytes += characters;
}

/// One element of an array as another kind.
template <class T, class E> void AppendConverted(std::string& bytes, const E& element)
{
    if constexpr (std::same_as<E, Variant>) {
        element.Visit([&](const auto& held) { AppendConverted<T>(bytes, held); });
    } else if constexpr (std::same_as<T, std::string> && std::same_as<E, std::string>) {
        AppendText(bytes, element);
    } else if constexpr (std::same_as<T, E>) {
        Append(bytes, element);
    } else if constexpr (!std::same_as<T, std::string> && requires { NumberOf(element); }) {
        Append(bytes, FromNumber<T>(NumberOf(element)));
    } else {
        Raise(ErrorNumber::TypeMismatch);
    }
}

/// A file before it is written: all that can be wrong with the operand shows while it is made.
/// Elements that go as they lie in memory are only pointed to.
class ArrImage {
public:
    ArrImage(const Variant& obj, const std::string& type_name)
    {
        if (const std::string* tag = TagOf(obj))
            TakeObject(obj, *tag);
        else if (obj.IsArray())
            TakeArray(obj, Lower(type_name));
    }

    std::int32_t Count() const { return count_; }

    void Write(FileNumber file) const
    {
        WriteValues(file, std::span<const char>(head_));
        for (const auto& part : parts_)
            WriteBytes(file, part);
        WriteValues(file, std::span<const char>(made_));
        WriteValues(file, std::span<const char>(letter_));
    }

private:
    void AppendSizes(Sizes sizes)
    {
        Append(head_, sizes.rows);
        Append(head_, sizes.columns);
    }

    template <class T> void Point(std::span<const T> elements)
    {
        if (elements.empty()) Raise(ErrorNumber::Subscript);
        parts_.push_back(std::as_bytes(elements));
    }

    template <class M> void TakeElements(const M& m) { Point(SheetOf(m).values); }
    void TakeElements(const clsComplexMatrix& m)
    {
        const ComplexSheet parts = SheetOf(m);
        Point(parts.re);
        Point(parts.im);
    }
    void TakeElements(const clsString& m)
    {
        const auto texts = SheetOf(m).values;
        if (texts.empty()) Raise(ErrorNumber::Subscript);
        for (const std::string& text : texts)
            AppendText(made_, text);
    }

    template <class M> void TakeMatrix(const Variant& obj, std::int32_t tag)
    {
        const M& m = ObjectOf<M>(obj);
        TakeElements(m);
        Append(head_, tag);
        CountBytes();
    }

    void TakeObject(const Variant& obj, const std::string& tag)
    {
        const std::optional<Sizes> sizes = SizesOfObject(obj);
        if (!sizes) Raise(ErrorNumber::TypeMismatch);
        AppendSizes(*sizes);
        // clang-format off
        if (tag == "c")      TakeMatrix<clsComplexMatrix>(obj, kArrComplex);
        else if (tag == "r") TakeMatrix<clsMatrix>(obj, kArrMatrix);
        else if (tag == "s") TakeMatrix<clsString>(obj, kArrString);
        else if (tag == "L") TakeMatrix<clsLong>(obj, kArrLong);
        // clang-format on
    }

    void TakeArray(const Variant& obj, const std::string& word)
    {
        if (word.empty()) Raise(ErrorNumber::InvalidCall);
        const ArrKind* const kind =
            FindArrKind([&](const ArrKind& each) { return word == each.written; });
        obj.Visit([&](const auto& held) {
            if constexpr (requires { held.Dimensions(); }) {
                AppendSizes(SizesOf(held));
                if (kind) TakeElementsAs(held, *kind);
            }
        });
        Append(head_, kArrPlain);
        letter_ = kind ? kind->letter : word.front();
        CountBytes();
    }

    template <class E> void TakeElementsAs(const Array<E>& array, const ArrKind& kind)
    {
        WithElementType(kind, [&]<class T>() {
            if constexpr (std::same_as<T, E> && !std::same_as<T, std::string>) {
                Point(array.Span());
            } else {
                for (const E& element : array.Span())
                    AppendConverted<T>(made_, element);
            }
        });
    }

    void CountBytes()
    {
        std::size_t bytes = head_.size() + made_.size() + letter_.size();
        for (const auto& part : parts_)
            bytes += part.size();
        count_ = CLng(static_cast<std::int64_t>(bytes));
    }

    std::string head_;
    std::vector<std::span<const std::byte>> parts_; ///< elements that stand in the operand
    std::string made_;                              ///< or elements made for the file
    std::string letter_;
    std::int32_t count_ = 0;
};

} // namespace

std::int32_t WriteArrTo(const std::string& path, const Variant& Obj, const std::string& TypeName)
{
    const ArrImage image = OrOutOfMemory([&] { return ArrImage(Obj, TypeName); });
    OpenFile file(fopen(path, "wb"));
    if (file.Failed()) Raise(ErrorNumber::PathFileAccess, path);
    image.Write(file.Number());
    file.Close();
    return image.Count();
}

std::int32_t WriteArr(std::string& FileName, const Variant& Obj, const std::string& TypeName)
{
    if (FileName.find('.') == std::string::npos) FileName += ".arr";
    return WriteArrTo(FileName, Obj, TypeName);
}

} // namespace lumora
