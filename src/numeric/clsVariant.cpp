#include "numeric/clsVariant.h"

#include "base/Numbers.h"
#include "numeric/CopyAny.h"
#include "numeric/ElementKinds.h"
#include "numeric/Predicates.h"
#include "numeric/Stores.h"

#include <algorithm>

namespace lumora {

namespace {

template <class Question> bool EveryElement(const Array<Variant>& elements, Question question)
{
    return std::all_of(elements.Span().begin(), elements.Span().end(), question);
}

} // namespace

bool clsVariant::IsString() const
{
    return EveryElement(elements_, [](const Variant& element) { return element.IsText(); });
}

bool clsVariant::IsDouble() const
{
    return EveryElement(elements_, IsNumeric);
}

bool clsVariant::IsLong() const
{
    return EveryElement(elements_, IsWholeNumber);
}

bool clsVariant::IsComplex() const
{
    return EveryElement(elements_, IsComplexNumber);
}

clsVariant& clsVariant::SetRealAll(const Array<Variant>& Arr, const std::string& s)
{
    AdoptDirectly(*this, elements_, Converted<Variant>(Arr, CopyAny), s);
    return *this;
}

Array<Variant> clsVariant::GetRealAll() const
{
    return Converted<Variant>(elements_, CopyAny);
}

Variant clsVariant::Real(std::int32_t i, std::int32_t j) const
{
    return CopyAny(ElementAt(*this, elements_, i, j));
}

Ref<clsVariant> clsVariant::CopyObjectVariant(const std::string& s) const
{
    Ref<clsVariant> copy = MakeRef<clsVariant>(*this);
    copy->elements_ = GetRealAll();
    copy->Name = s;
    return copy;
}

bool clsVariant::FoundUnNumericElements() const
{
    return !IsDouble();
}

void clsVariant::Real(std::int32_t i, std::int32_t j, const Variant& value)
{
    ElementAt(*this, elements_, i, j) = CopyAny(value);
}

void clsVariant::Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                                const std::string& new_name)
{
    Adopt(*this, elements_, ZeroStore<Variant>({new_size1, new_size2}), new_name);
}

void clsVariant::Set_elements_matrix(std::int32_t i, std::int32_t j, const Variant& value)
{
    Real(i, j, value);
}

Variant clsVariant::GetArr(const Variant& i, const Variant& j) const
{
    return Real(CLng(i.Number()), CLng(j.Number()));
}

void clsVariant::Destructor()
{
    std::fill(elements_.Span().begin(), elements_.Span().end(), Variant());
}

} // namespace lumora
