#include "numeric/Members.h"
#include "numeric/clsMatrixComplex.h"

// Every member of clsMatrixComplex by its name, arguments and result: a lost or mistyped one does
// not build.

namespace lumora::test::members {
namespace {

using M = clsMatrixComplex;

// Elementary functions.
static_assert(Has<M, MC() const>({&M::SinM,   &M::SinhM,  &M::AsinhM, &M::CosM,   &M::CoshM,
                                  &M::TanM,   &M::AtanM,  &M::TanhM,  &M::CotM,   &M::AcotM,
                                  &M::CothM,  &M::SecM,   &M::SechM,  &M::CscM,   &M::CschM,
                                  &M::AcschM, &M::ExpM,   &M::AsinM,  &M::AcosM,  &M::AcoshM,
                                  &M::AtanhM, &M::AcothM, &M::AsecM,  &M::AsechM, &M::AcscM,
                                  &M::LogM,   &M::Log2M,  &M::Log10M, &M::SqrM,   &M::Conj}));
static_assert(Has<M, R() const>({&M::AbsM}));
static_assert(Has<M, Variant(const Variant&) const>({&M::Power}));
static_assert(Has<M, MC(const Variant&) const>({&M::LogBaseM}));

// Construction, access, copies.
static_assert(Has<M, Array<Z>() const>({&M::GetRealAll}));
static_assert(Has<M, Array<double>() const>({&M::GetRealArrAll, &M::GetImageArrAll, &M::GetRealArr,
                                             &M::GetImageArr}));
static_assert(Has<M, MC(const Text&) const>({&M::CopyObject}));
static_assert(Has<M, M&(Array<Z>, const Text&)>({&M::SetRealAll}));
static_assert(
    Has<M, M&(const Array<double>&, const Array<double>&, const Text&)>({&M::SetComplexAll}));
static_assert(Has<M, M&(const clsComplexMatrix&, const Text&)>({&M::CopyObject_C}));
static_assert(Has<M, Z(I32, I32) const>({&M::Real}));
static_assert(Has<M, void(I32, I32, const clsComplex&)>({&M::Real, &M::Set_elements_matrix}));
static_assert(Has<M, void()>({&M::Destructor}));
static_assert(Has<M, void(I32, I32, const Text&)>({&M::Initial_matrix}));

// Shaping.
static_assert(Has<M, MC() const>({&M::Transpose, &M::CTranspose}));
static_assert(Has<M, MC(I32, I32, I32, I32) const>({&M::OutMatrix}));
static_assert(Has<M, MC(I32, I32)>({&M::NewSizeOfMatrix}));
static_assert(Has<M, MC(const Variant&, I32, I32, I16) const>({&M::OutMatrixByVector}));

// Order statistics.
static_assert(Has<M, Z(double) const>({&M::Min, &M::Max}));
static_assert(Has<M, MC(double) const>({&M::Minmax}));
static_assert(Has<M, Variant(const Variant&, double) const>({&M::MinDim, &M::MaxDim}));
static_assert(Has<M, L(const Variant&, double) const>({&M::MinIndex, &M::MaxIndex}));
static_assert(Has<M, MC(const M&, double) const>({&M::MinMCMC, &M::MaxMCMC}));
static_assert(Has<M, MC(const clsMatrix&, double) const>({&M::MinMCD, &M::MaxMCD}));
static_assert(Has<M, MC(const clsLong&, double) const>({&M::MinMCL, &M::MaxMCL}));
static_assert(Has<M, MC(double, double) const>({&M::MinNum, &M::MaxNum}));
static_assert(Has<M, MC(const clsComplex&, double) const>({&M::MinComplex, &M::MaxComplex}));
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
static_assert(Has<M, MC(const clsMatrixComplex&) const>({&M::PlusMC, &M::MinusMC, &M::TimesMC,
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
                       const clsComplexMatrix& c, const clsComplex& z, const Array<double>& reals) {
    m.CopyObject();
    w.SetRealAll(m.GetRealAll());
    w.SetComplexAll(reals, reals);
    w.CopyObject_C(c);
    w.Initial_matrix(1, 1);
    m.OutMatrix(1, 1);
    m.Min();
    m.Max();
    m.Minmax();
    m.MinDim();
    m.MaxDim();
    m.MinIndex();
    m.MaxIndex();
    m.MinMCMC(m);
    m.MaxMCMC(m);
    m.MinMCD(r);
    m.MaxMCD(r);
    m.MinMCL(l);
    m.MaxMCL(l);
    m.MinNum(1.0);
    m.MaxNum(1.0);
    m.MinComplex(z);
    m.MaxComplex(z);
    m.All();
    m.AnyObj();
});

} // namespace
} // namespace lumora::test::members
