#include "numeric/Members.h"
#include "numeric/clsLong.h"

// Every member of clsLong by its name, arguments and result: a lost or mistyped one does not build.

namespace lumora::test::members {
namespace {

using M = clsLong;

// Elementary functions.
static_assert(Has<M, R() const>({&M::SinM, &M::SinhM, &M::AsinhM, &M::CosM, &M::CoshM, &M::TanM,
                                 &M::AtanM, &M::TanhM, &M::CotM, &M::AcotM, &M::CothM, &M::SecM,
                                 &M::SechM, &M::CscM, &M::CschM, &M::AcschM, &M::ExpM, &M::AbsM}));
static_assert(Has<M, Variant() const>({&M::AsinM, &M::AcosM, &M::AcoshM, &M::AtanhM, &M::AcothM,
                                       &M::AsecM, &M::AsechM, &M::AcscM, &M::LogM, &M::Log2M,
                                       &M::Log10M, &M::SqrM}));
static_assert(Has<M, Variant(const Variant&) const>({&M::Power, &M::LogBaseM}));
static_assert(Has<M, L() const>({&M::Conj}));

// Construction, access, copies.
static_assert(Has<M, bool(const Variant&) const>({&M::IsLong}));
static_assert(Has<M, M&(const Variant&, const Text&)>({&M::SetArray}));
static_assert(Has<M, M&(const Array<double>&, const Text&)>({&M::SetRealAll_D}));
static_assert(Has<M, M&(Array<I32>, const Text&)>({&M::SetRealAll}));
static_assert(Has<M, Array<I32>() const>({&M::GetRealAll}));
static_assert(Has<M, I32(I32, I32) const>({&M::Real}));
static_assert(Has<M, void(I32, I32, I32)>({&M::Real, &M::Set_elements_matrix}));
static_assert(Has<M, Variant(const Variant&, const Variant&) const>({&M::GetArr}));
static_assert(Has<M, void(I32, I32, const Text&)>({&M::Initial_matrix}));
static_assert(Has<M, L(const Text&) const>({&M::CopyObject}));
static_assert(Has<M, M&(const clsMatrix&, const Text&)>({&M::CopyObjectDoubleToLong}));
static_assert(Has<M, M&(const clsComplexMatrix&, const Text&)>({&M::CopyObjectComplexRealToLong,
                                                                &M::CopyObjectComplexImageToLong}));
static_assert(Has<M, S(const Variant&) const>({&M::MatrixToString}));

// Shaping.
static_assert(Has<M, L() const>({&M::Transpose, &M::CTranspose}));
static_assert(Has<M, Variant(I32, I32, I16&) const>({&M::Rearrange}));
static_assert(Has<M, L(I32, I32, I32, I32) const>({&M::OutMatrix}));
static_assert(Has<M, L(I32, I32)>({&M::NewSizeOfMatrix}));
static_assert(Has<M, L(const Variant&, I32, I32, I16) const>({&M::OutMatrixByVector}));
static_assert(Has<M, void(I32)>({&M::RedimPreserve}));
static_assert(Has<M, void(const M&)>({&M::CatRefresh}));

// Order statistics.
static_assert(Has<M, I32() const>({&M::Min, &M::Max}));
static_assert(Has<M, R() const>({&M::Minmax}));
static_assert(Has<M, L(const Variant&) const>({&M::MinDim, &M::MaxDim, &M::MinIndex, &M::MaxIndex,
                                               &M::All, &M::AnyObj}));
static_assert(Has<M, L(const M&) const>({&M::MinLL, &M::MaxLL}));
static_assert(Has<M, L(double) const>({&M::MinNum, &M::MaxRNum}));
static_assert(Has<M, C(const clsComplex&) const>({&M::MinComplexNum, &M::MaxComplexNum}));
static_assert(Has<M, bool() const>({&M::AllAll, &M::AnyAny}));

// Operators.
static_assert(Has<M, L(I32) const>({&M::MtimesLongNum}));
static_assert(Has<M, R(const clsMatrix&) const>({&M::PlusR, &M::MinusR, &M::TimesR, &M::MtimesR,
                                                 &M::RdivideR}));
static_assert(Has<M, L(const clsLong&) const>({&M::PlusL, &M::MinusL, &M::TimesL, &M::MtimesL}));
static_assert(Has<M, C(const clsComplexMatrix&) const>({&M::PlusC, &M::MinusC, &M::TimesC,
                                                        &M::MtimesC, &M::RdivideC}));
static_assert(Has<M, C(const clsMatrixComplex&) const>({&M::PlusMC, &M::MinusMC, &M::TimesMC,
                                                        &M::MtimesMC, &M::RdivideMC}));
static_assert(Has<M, R(double) const>({&M::PlusNum, &M::MinusNum, &M::TimesNum, &M::MtimesNum,
                                       &M::RdivideNum}));
static_assert(Has<M, C(const clsComplex&) const>({&M::PlusComplexNum, &M::MinusComplexNum,
                                                  &M::TimesComplexNum, &M::MtimesComplexNum,
                                                  &M::RdivideComplexNum}));
static_assert(Has<M, R(const Array<double>&) const>(
    {&M::PlusRArray, &M::MinusRArray, &M::TimesRArray, &M::MtimesRArray, &M::RdivideRArray}));
static_assert(Has<M, L(const Array<I32>&) const>({&M::PlusLArray, &M::MinusLArray,
                                                  &M::MtimesLArray}));
static_assert(Has<M, C(const Array<Z>&) const>({&M::PlusCArray, &M::MinusCArray, &M::TimesCArray,
                                                &M::MtimesCArray, &M::RdivideCArray}));
static_assert(Has<M, R(const Array<I32>&) const>({&M::TimesLArray, &M::RdivideLArray}));
static_assert(Has<M, R(const clsLong&) const>({&M::RdivideL}));
static_assert(Has<M, Variant(const Variant&) const>({&M::Plus, &M::Minus, &M::Times, &M::MTimes,
                                                     &M::Rdivide}));

// What a caller may leave out.
static_assert(requires(const M& m, M& w, const clsMatrix& r, const clsComplexMatrix& c,
                       const Array<double>& reals) {
    m.MatrixToString();
    w.SetArray(1);
    w.SetRealAll_D(reals);
    w.SetRealAll(m.GetRealAll());
    m.CopyObject();
    w.CopyObjectDoubleToLong(r);
    w.CopyObjectComplexRealToLong(c);
    w.CopyObjectComplexImageToLong(c);
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
