#include "numeric/clsString.h"

#include "base/Numbers.h"
#include "numeric/ComplexText.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"

#include <algorithm>

namespace lumora {

clsString& clsString::ComplexMatrixToString(const clsComplexMatrix& Source)
{
    Adopt(*this, elements_, std::move(Source.MatrixToString()->elements_), {});
    return *this;
}

bool clsString::FoundComplexElements() const
{
    const auto texts = elements_.Span();
    return std::all_of(texts.begin(), texts.end(),
                       [](const std::string& text) { return SpelledComplex(text).has_value(); });
}

bool clsString::FoundNumericElements() const
{
    return Numeric(elements_);
}

Ref<clsString> clsString::CopyObject(const std::string& s) const
{
    Ref<clsString> copy = MakeRef<clsString>(*this);
    copy->Name = s;
    return copy;
}

clsString& clsString::SetRealAll(Array<std::string> Arr, const std::string& s)
{
    AdoptDirectly(*this, elements_, std::move(Arr), s);
    return *this;
}

bool clsString::Numeric(const Array<std::string>& Arr) const
{
    const auto texts = Arr.Span();
    return std::all_of(texts.begin(), texts.end(),
                       [](const std::string& text) { return SpelledNumber(text).has_value(); });
}

Array<std::string> clsString::GetRealAll() const
{
    return elements_;
}

std::string clsString::Real(std::int32_t i, std::int32_t j) const
{
    return ElementAt(*this, elements_, i, j);
}

void clsString::Real(std::int32_t i, std::int32_t j, const std::string& value)
{
    ElementAt(*this, elements_, i, j) = value;
}

void clsString::Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                               const std::string& new_name)
{
    Adopt(*this, elements_, ZeroStore<std::string>({new_size1, new_size2}), new_name);
    PowerOfExp = {};
}

void clsString::Set_elements_matrix(std::int32_t i, std::int32_t j, const std::string& value)
{
    Real(i, j, value);
}

Variant clsString::GetArr(const Variant& i, const Variant& j) const
{
    return Real(CLng(i.Number()), CLng(j.Number()));
}

} // namespace lumora
