#include "numeric/shaping/TransposeAny.h"

#include "numeric/ElementKinds.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"
#include "numeric/shaping/Shaping.h"

namespace lumora {

namespace {

Variant Refused(const char* text)
{
    ShowPlainMessage(text);
    return {};
}

bool ContinuesACharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

Ref<clsString> CharactersBelowEachOther(const std::string& text)
{
    std::vector<std::string> characters;
    for (const char byte : text) {
        if (characters.empty() || !ContinuesACharacter(byte)) characters.emplace_back();
        characters.back() += byte;
    }
    Array<std::string> column = UnwrittenStore<std::string>({CLng(characters.size()), 1});
    std::move(characters.begin(), characters.end(), column.Span().begin());
    return NewMatrix<clsString>(std::move(column));
}

/// An array in its own element type; anything else that comes here stays what it is.
template <class T> Variant TurnedArray(const T& value)
{
    if constexpr (requires { value.Dimensions(); })
        return Transposed(SheetOf(value));
    else
        return value;
}

Variant TurnedObject(const Variant& object)
{
    return object.Visit([]<class T>(const T& held) -> Variant {
        if constexpr (requires { held->Transpose(); })
            return held->Transpose();
        else
            return {};
    });
}

template <class... M> bool IsTagOf(const std::string& tag)
{
    return ((tag == kTag<M>) || ...);
}

} // namespace

Variant TransposeAny(const Variant& x)
{
    if (const std::string* tag = TagOf(x)) {
        const bool known = IsTagOf<clsLong, clsMatrix, clsComplexMatrix, clsMatrixComplex,
                                   clsComplex, clsString, clsVariant>(*tag);
        return known ? TurnedObject(x) : Refused(kIncorrectTypeOfObject);
    }
    if (x.IsText()) return CharactersBelowEachOther(x.As<std::string>());
    if (!x.IsArray()) return x;
    if (IsNumericArray(x)) return x.Visit([](const auto& array) { return TurnedArray(array); });
    if (!IsComplexArray(x)) return Refused(kIncorrectArray);
    return NewMatrix<clsMatrixComplex>(CopiedObjects(Transposed(SheetOf(ComplexArray(x)))));
}

} // namespace lumora
