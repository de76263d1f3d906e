#include "numeric/Members.h"
#include "numeric/clsComplexMatrix.h"

// Every member of clsComplexMatrix by its name, arguments and result: a lost or mistyped one does
// not build.

namespace lumora::test::members {
namespace {

using M = clsComplexMatrix;

// Elementary functions.
static_assert(Has<M, C() const>({&M::SinM,   &M::SinhM,  &M::AsinhM, &M::CosM,   &M::CoshM,
                                 &M::TanM,   &M::AtanM,  &M::TanhM,  &M::CotM,   &M::AcotM,
                                 &M::CothM,  &M::SecM,   &M::SechM,  &M::CscM,   &M::CschM,
                                 &M::AcschM, &M::ExpM,   &M::AsinM,  &M::AcosM,  &M::AcoshM,
                                 &M::AtanhM, &M::AcothM, &M::AsecM,  &M::AsechM, &M::AcscM,
                                 &M::LogM,   &M::Log2M,  &M::Log10M, &M::SqrM,   &M::Conj}));
static_assert(Has<M, R() const>({&M::AbsM}));
static_assert(Has<M, Variant(const Variant&) const>({&M::Power}));
static_assert(Has<M, C(const Variant&) const>({&M::LogBaseM}));

// Construction, access, copies.
static_assert(Has<M, M&(const Array<Z>&, const Text&)>({&M::SetComplexArray,
                                                        &M::CopyObject_mcArray}));
static_assert(Has<M, Array<Z>() const>({&M::GetComplexArray}));
static_assert(Has<M, M&(const Array<I32>&, const Text&)>({&M::SetRealAll_L, &M::SetImageAll_L}));
static_assert(Has<M, M&(Array<double>, const Text&)>({&M::SetRealAll, &M::SetImageAll}));
static_assert(Has<M, Array<double>() const>({&M::GetRealAll, &M::GetImageAll}));
static_assert(Has<M, double(I32, I32) const>({&M::Real, &M::Image}));
static_assert(Has<M, void(I32, I32, double)>({&M::Real, &M::Image}));
static_assert(Has<M, void(I32, I32, double, double)>({&M::SetComplex, &M::Set_elements_matrix}));
static_assert(Has<M, void(I32, I32, const Text&)>({&M::Initial_matrix}));
static_assert(Has<M, C(const Text&) const>({&M::CopyObject}));
static_assert(Has<M, M&(const clsMatrix&, const Text&)>({&M::CopyObjectDoubleToComplexReal,
                                                         &M::CopyObjectDoubleToComplexImage}));
static_assert(Has<M, M&(const clsMatrix&, const clsMatrix&, const Text&)>(
    {&M::CopyObjectTwoDoubleToComplex}));
static_assert(Has<M, M&(const clsLong&, const Text&)>({&M::CopyObjectLongToComplexReal,
                                                       &M::CopyObjectLongToComplexImage}));
static_assert(
    Has<M, M&(const clsLong&, const clsLong&, const Text&)>({&M::CopyObjectTwoLongToComplex}));
static_assert(Has<M, M&(const clsMatrixComplex&, const Text&)>({&M::CopyObject_mc}));
static_assert(Has<M, M&(Array<double>, Array<double>, const Text&)>({&M::SetComplexAll}));
static_assert(Has<M, M&(const Array<I32>&, const Array<I32>&, const Text&)>({&M::SetComplexAll_L}));
static_assert(Has<M, S(const Variant&) const>({&M::MatrixToString}));

// Shaping.
static_assert(Has<M, C() const>({&M::Transpose, &M::CTranspose}));
static_assert(Has<M, Variant(I32, I32, I16&) const>({&M::Rearrange}));
static_assert(Has<M, C(I32, I32, I32, I32) const>({&M::OutMatrix}));
static_assert(Has<M, C(I32, I32)>({&M::NewSizeOfMatrix}));
static_assert(Has<M, C(const Variant&, I32, I32, I16) const>({&M::OutMatrixByVector}));
static_assert(Has<M, void(I32)>({&M::RedimPreserve}));
static_assert(Has<M, void(const M&)>({&M::CatRefresh}));

// Order statistics.
static_assert(Has<M, Z(double) const>({&M::Min, &M::Max}));
static_assert(Has<M, C(double) const>({&M::Minmax}));
static_assert(Has<M, Variant(const Variant&, double) const>({&M::MinDim, &M::MaxDim}));
static_assert(Has<M, L(const Variant&, double) const>({&M::MinIndex, &M::MaxIndex}));
static_assert(Has<M, C(const M&, double) const>({&M::MinCC, &M::MaxCC}));
static_assert(Has<M, C(const clsMatrix&, double) const>({&M::MinCD, &M::MaxCD}));
static_assert(Has<M, C(const clsLong&, double) const>({&M::MinCL, &M::MaxCL}));
static_assert(Has<M, C(double, double) const>({&M::MinNum, &M::MaxNum}));
static_assert(Has<M, C(const clsComplex&, double) const>({&M::MinComplex, &M::MaxComplex}));
static_assert(Has<M, C(const clsMatrixComplex&, double) const>({&M::MinMatrixComplex,
                                                                &M::MaxMatrixComplex}));
static_assert(Has<M, L(const Variant&) const>({&M::All, &M::AnyObj}));
static_assert(Has<M, bool() const>({&M::AllAll, &M::AnyAny}));

// Transforms.
static_assert(Has<M, Variant(I32) const>({&M::fftm, &M::ifftm}));

// Operators.
static_assert(Has<M, C(const clsMatrix&) const>({&M::PlusR, &M::MinusR, &M::TimesR, &M::MtimesR,
                                                 &M::RdivideR}));
static_assert(Has<M, C(const clsLong&) const>({&M::PlusL, &M::MinusL, &M::TimesL, &M::MtimesL,
                                               &M::RdivideL}));
static_assert(Has<M, C(const clsComplexMatrix&) const>({&M::PlusC, &M::MinusC, &M::TimesC,
                                                        &M::MtimesC, &M::RdivideC}));
static_assert(Has<M, C(const clsMatrixComplex&) const>({&M::PlusMC, &M::MinusMC, &M::TimesMC,
                                                        &M::MtimesMC, &M::RdivideMC}));
static_assert(Has<M, C(double) const>({&M::PlusNum, &M::MinusNum, &M::TimesNum, &M::MtimesNum,
                                       &M::RdivideNum}));
static_assert(Has<M, C(const clsComplex&) const>({&M::PlusComplexNum, &M::MinusComplexNum,
                                                  &M::TimesComplexNum, &M::MtimesComplexNum,
                                                  &M::RdivideComplexNum}));
static_assert(Has<M, C(const Array<double>&) const>(
    {&M::PlusRArray, &M::MinusRArray, &M::TimesRArray, &M::MtimesRArray, &M::RdivideRArray}));
static_assert(Has<M, C(const Array<I32>&) const>({&M::PlusLArray, &M::MinusLArray, &M::TimesLArray,
                                                  &M::MtimesLArray, &M::RdivideLArray}));
static_assert(Has<M, C(const Array<Z>&) const>({&M::PlusCArray, &M::MinusCArray, &M::TimesCArray,
                                                &M::MtimesCArray, &M::RdivideCArray}));
static_assert(Has<M, Variant(const Variant&) const>({&M::Plus, &M::Minus, &M::Times, &M::MTimes,
                                                     &M::Rdivide}));

// What a caller may leave out.
static_assert(requires(const M& m, M& w, const clsMatrix& r, const clsLong& l,
                       const clsMatrixComplex& mc, const clsComplex& z, const Array<I32>& whole,
                       const Array<Z>& objects, const Array<double>& reals) {
    w.SetComplexArray(m.GetComplexArray());
    m.MatrixToString();
    w.SetRealAll_L(whole);
    w.SetImageAll_L(whole);
    w.SetRealAll(m.GetRealAll());
    w.SetImageAll(m.GetImageAll());
    m.CopyObject();
    w.CopyObjectDoubleToComplexReal(r);
    w.CopyObjectDoubleToComplexImage(r);
    w.CopyObjectTwoDoubleToComplex(r, r);
    w.CopyObjectLongToComplexReal(l);
    w.CopyObjectLongToComplexImage(l);
    w.CopyObjectTwoLongToComplex(l, l);
    w.CopyObject_mc(mc);
    w.CopyObject_mcArray(objects);
    w.SetComplexAll(reals, reals);
    w.SetComplexAll_L(whole, whole);
    w.Initial_matrix(1, 1);
    m.OutMatrix(1, 1);
    m.Min();
    m.Max();
    m.Minmax();
    m.MinDim();
    m.MaxDim();
    m.MinIndex();
    m.MaxIndex();
    m.MinCC(m);
    m.MaxCC(m);
    m.MinCD(r);
    m.MaxCD(r);
    m.MinCL(l);
    m.MaxCL(l);
    m.MinNum(1.0);
    m.MaxNum(1.0);
    m.MinComplex(z);
    m.MaxComplex(z);
    m.MinMatrixComplex(mc);
    m.MaxMatrixComplex(mc);
    m.All();
    m.AnyObj();
});

} // namespace
} // namespace lumora::test::members
