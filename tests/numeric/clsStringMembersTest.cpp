#include "numeric/Members.h"
#include "numeric/clsString.h"

// Every member of clsString by its name, arguments and result: a lost or mistyped one does not
// build.

namespace lumora::test::members {
namespace {

using M = clsString;

// Construction, access, copies.
static_assert(Has<M, M&(const clsComplexMatrix&)>({&M::ComplexMatrixToString}));
static_assert(Has<M, bool() const>({&M::FoundComplexElements, &M::FoundNumericElements}));
static_assert(Has<M, bool(const Array<Text>&) const>({&M::Numeric}));
static_assert(Has<M, M&(Array<Text>, const Text&)>({&M::SetRealAll}));
static_assert(Has<M, Array<Text>() const>({&M::GetRealAll}));
static_assert(Has<M, Text(I32, I32) const>({&M::Real}));
static_assert(Has<M, void(I32, I32, const Text&)>({&M::Real, &M::Set_elements_matrix}));
static_assert(Has<M, Variant(const Variant&, const Variant&) const>({&M::GetArr}));
static_assert(Has<M, void(I32, I32, const Text&)>({&M::Initial_matrix}));
static_assert(Has<M, S(const Text&) const>({&M::CopyObject}));

// Shaping.
static_assert(Has<M, S() const>({&M::Transpose, &M::CTranspose}));
static_assert(Has<M, Variant(I32, I32, I16&) const>({&M::Rearrange}));
static_assert(Has<M, S(I32, I32, I32, I32) const>({&M::OutMatrix}));
static_assert(Has<M, S(I32, I32)>({&M::NewSizeOfMatrix}));
static_assert(Has<M, void(I32)>({&M::RedimPreserve}));
static_assert(Has<M, void(const M&)>({&M::CatRefresh}));

// Order statistics.
static_assert(Has<M, Text() const>({&M::Min, &M::Max}));
static_assert(Has<M, V() const>({&M::Minmax}));
static_assert(Has<M, S(const Variant&) const>({&M::MinDim, &M::MaxDim}));
static_assert(Has<M, L(const Variant&) const>({&M::MinIndex, &M::MaxIndex, &M::All, &M::AnyObj}));
static_assert(Has<M, S(const M&) const>({&M::MinSS, &M::MaxSS}));
static_assert(Has<M, S(const Text&) const>({&M::MinString, &M::MaxString}));
static_assert(Has<M, bool() const>({&M::AllAll, &M::AnyAny}));

// What a caller may leave out.
static_assert(requires(const M& m, M& w) {
    m.CopyObject();
    w.SetRealAll(m.GetRealAll());
    w.Initial_matrix(1, 1);
    m.OutMatrix(1, 1);
    m.MinDim();
    m.MaxDim();
    m.MinIndex();
    m.MaxIndex();
    m.All();
    m.AnyObj();
});

} // namespace
} // namespace lumora::test::members
