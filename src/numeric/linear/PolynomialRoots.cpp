#include "numeric/linear/PolynomialRoots.h"

#include "base/Messages.h"
#include "base/Numbers.h"
#include "numeric/Draft.h"
#include "numeric/ElementValues.h"
#include "numeric/Finite.h"
#include "numeric/NumericMessages.h"
#include "numeric/Operands.h"
#include "numeric/linear/RootSearch.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lumora {

namespace {

/// The elements of a vector; nothing for a matrix.
template <class M> std::optional<Polynomial> ElementsOf(const M& m)
{
    const auto sheet = SheetOf(m);
    if (sheet.rows != 1 && sheet.columns != 1) return std::nullopt;
    Polynomial p;
    p.reserve(sheet.Size());
    for (std::size_t k = 0; k < sheet.Size(); ++k)
        p.push_back(AsComplex(sheet[k]));
    return p;
}

std::optional<Polynomial> CoefficientsOf(const Variant& value)
{
    const std::string* const tag = TagOf(value);
    if (tag && *tag == kTag<clsMatrix>) return ElementsOf(ObjectOf<clsMatrix>(value));
    if (tag && *tag == kTag<clsComplexMatrix>) return ElementsOf(ObjectOf<clsComplexMatrix>(value));
    return std::nullopt;
}

bool IsZero(ComplexValue z)
{
    return z == ComplexValue{};
}

/// All roots of a polynomial whose last coefficient is not zero.
std::vector<ComplexValue> RootsOf(const Polynomial& p)
{
    std::vector<ComplexValue> roots;
    for (Polynomial rest = p; rest.size() > 1; rest = DividedBy(rest, roots.back())) {
        const std::optional<ComplexValue> root = FindRoot(rest);
        if (!root) Raise(ErrorNumber::InvalidCall);
        if (!Finite(*root)) Raise(ErrorNumber::Overflow);
        roots.push_back(*root);
    }
    Polish(p, roots);
    return roots;
}

double WithoutTraces(double part)
{
    return std::abs(part) < 1e-14 ? 0.0 : part;
}

Ref<clsComplexMatrix> Failed(const char* message)
{
    ShowPlainMessage(message);
    return {};
}

} // namespace

Ref<clsComplexMatrix> PolynomialRoots(const Variant& coefficients)
{
    const std::optional<Polynomial> told = CoefficientsOf(coefficients);
    if (!told) return Failed(kMustBeVector);
    if (!std::all_of(told->begin(), told->end(), [](ComplexValue z) { return Finite(z); }))
        Raise(ErrorNumber::InvalidCall);
    const auto first = std::find_if_not(told->begin(), told->end(), IsZero);
    const auto last = std::find_if_not(told->rbegin(), told->rend(), IsZero).base();
    const std::ptrdiff_t degree = told->end() - first - 1;
    if (degree < 1) return Failed(kPowerOfPolynom);

    std::vector<ComplexValue> roots(static_cast<std::size_t>(told->end() - last));
    const std::vector<ComplexValue> others = RootsOf(Polynomial(first, last));
    roots.insert(roots.end(), others.begin(), others.end());
    Draft<clsComplexMatrix> row(Sizes{1, CLng(roots.size())});
    for (std::size_t k = 0; k < roots.size(); ++k)
        row.Put(k, ComplexValue{WithoutTraces(roots[k].re), WithoutTraces(roots[k].im)});
    return row.Take();
}

} // namespace lumora
