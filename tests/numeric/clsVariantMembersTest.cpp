#include "numeric/Members.h"
#include "numeric/clsVariant.h"

// Every member of clsVariant by its name, arguments and result: a lost or mistyped one does not
// build.

namespace lumora::test::members {
namespace {

using M = clsVariant;

// Construction, access, copies.
static_assert(Has<M, bool() const>({&M::IsString, &M::IsDouble, &M::IsLong, &M::IsComplex,
                                    &M::FoundUnNumericElements}));
static_assert(Has<M, M&(const Array<Variant>&, const Text&)>({&M::SetRealAll}));
static_assert(Has<M, Array<Variant>() const>({&M::GetRealAll}));
static_assert(Has<M, Variant(I32, I32) const>({&M::Real}));
static_assert(Has<M, void(I32, I32, const Variant&)>({&M::Real, &M::Set_elements_matrix}));
static_assert(Has<M, Variant(const Variant&, const Variant&) const>({&M::GetArr}));
static_assert(Has<M, void(I32, I32, const Text&)>({&M::Initial_matrix}));
static_assert(Has<M, V(const Text&) const>({&M::CopyObjectVariant}));
static_assert(Has<M, void()>({&M::Destructor}));

// Shaping.
static_assert(Has<M, V() const>({&M::Transpose, &M::CTranspose}));
static_assert(Has<M, Variant(I32, I32, I16&) const>({&M::Rearrange}));
static_assert(Has<M, V(I32, I32, I32, I32) const>({&M::OutMatrix}));
static_assert(Has<M, V(I32, I32)>({&M::NewSizeOfMatrix}));
static_assert(Has<M, void(I32)>({&M::RedimPreserve}));
static_assert(Has<M, void(const M&)>({&M::CatRefreshVariant}));

// What a caller may leave out.
static_assert(requires(const M& m, M& w) {
    m.CopyObjectVariant();
    w.SetRealAll(m.GetRealAll());
    w.Initial_matrix(1, 1);
    m.OutMatrix(1, 1);
});

} // namespace
} // namespace lumora::test::members
