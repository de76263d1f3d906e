#include "numeric/Members.h"
#include "numeric/clsMatrix.h"

// Every member of clsMatrix by its name, arguments and result: a lost or mistyped one does not
// build.

namespace lumora::test::members {
namespace {

using M = clsMatrix;

// Speech.
static_assert(Has<M, Variant(I32, I32&, I32&) const>({&M::Parcor_Burg, &M::Parcor_Burg1}));
static_assert(Has<M, R() const>({&M::Pred_Lat, &M::MinmaxIndex}));
static_assert(Has<M, R(const M&, const M&, I32) const>({&M::Parcor_Resid}));
static_assert(Has<M, R(const M&, const M&, double, I32) const>({&M::Parcor_Direct}));
static_assert(Has<M, double(I32, I32, const Variant&) const>({&M::ScallProd}));
static_assert(Has<M, L(const Variant&) const>({&M::Gt, &M::FoundIndexesExstremumInVector_Max}));
static_assert(Has<M, R(double) const>({&M::Compression_Expansion, &M::Compression_ExpansionPrec,
                                       &M::Compression_Expansion_Matrix}));
static_assert(Has<M, R(const Variant&) const>({&M::SoundMinusAverage1,
                                               &M::ExstremumValueAndIndexMax}));
static_assert(Has<M, R(I32&, const Variant&) const>({&M::SortExstremumMax}));
static_assert(Has<M, I32(I32&, I32&, double, double) const>({&M::BinSearchInArray}));

// Elementary functions.
static_assert(Has<M, R() const>({&M::SinM, &M::SinhM, &M::AsinhM, &M::CosM, &M::CoshM, &M::TanM,
                                 &M::AtanM, &M::TanhM, &M::CotM, &M::AcotM, &M::CothM, &M::SecM,
                                 &M::SechM, &M::CscM, &M::CschM, &M::AcschM, &M::ExpM, &M::Conj,
                                 &M::AbsM}));
static_assert(Has<M, Variant() const>({&M::AsinM, &M::AcosM, &M::AcoshM, &M::AtanhM, &M::AcothM,
                                       &M::AsecM, &M::AsechM, &M::AcscM, &M::LogM, &M::Log2M,
                                       &M::Log10M, &M::SqrM}));
static_assert(Has<M, Variant(const Variant&) const>({&M::Power, &M::LogBaseM}));

// Construction, access, copies.
static_assert(Has<M, M&(const Array<I32>&, const Text&)>({&M::SetRealAll_L}));
static_assert(Has<M, M&(Array<double>, const Text&)>({&M::SetRealAll}));
static_assert(Has<M, Array<double>() const>({&M::GetRealAll}));
static_assert(Has<M, double(I32, I32) const>({&M::Real}));
static_assert(Has<M, void(I32, I32, double)>({&M::Real, &M::Set_elements_matrix}));
static_assert(Has<M, Variant(const Variant&, const Variant&) const>({&M::GetArr}));
static_assert(Has<M, void(I32, I32, const Text&)>({&M::Initial_matrix}));
static_assert(Has<M, R(const Text&) const>({&M::CopyObject}));
static_assert(Has<M, M&(const clsLong&, const Text&)>({&M::CopyObjectLongToDouble}));
static_assert(Has<M, M&(const clsComplexMatrix&, const Text&)>(
    {&M::CopyObjectComplexRealToDouble, &M::CopyObjectComplexImageToDouble}));
static_assert(Has<M, S(const Variant&) const>({&M::MatrixToString}));

// Shaping.
static_assert(Has<M, R() const>({&M::Transpose, &M::CTranspose}));
static_assert(Has<M, R(const Variant&, const Variant&) const>({&M::clsEye}));
static_assert(Has<M, Variant(I32, I32, I16&) const>({&M::Rearrange}));
static_assert(Has<M, R(I32, I32, I32, I32) const>({&M::OutMatrix}));
static_assert(Has<M, R(I32, I32)>({&M::NewSizeOfMatrix}));
static_assert(Has<M, R(const Variant&, I32, I32, I16) const>({&M::OutMatrixByVector}));
static_assert(Has<M, void(I32)>({&M::RedimPreserve}));
static_assert(Has<M, void(const M&)>({&M::CatRefresh}));

// Order statistics.
static_assert(Has<M, double() const>({&M::Min, &M::Max}));
static_assert(Has<M, R() const>({&M::Minmax}));
static_assert(Has<M, R(const Variant&) const>({&M::MinDim, &M::MaxDim}));
static_assert(Has<M, L(const Variant&) const>({&M::MinIndex, &M::MaxIndex, &M::All, &M::AnyObj}));
static_assert(Has<M, R(const M&) const>({&M::MinRR, &M::MaxRR}));
static_assert(Has<M, R(const clsLong&) const>({&M::MinRL, &M::MaxRL}));
static_assert(Has<M, R(double) const>({&M::MinNum, &M::MaxRNum}));
static_assert(Has<M, C(const clsComplex&) const>({&M::MinComplexNum, &M::MaxComplexNum}));
static_assert(Has<M, bool() const>({&M::AllAll, &M::AnyAny}));

// Transforms and solvers.
static_assert(Has<M, Variant(I32) const>({&M::fftm, &M::ifftm}));
static_assert(Has<M, Variant(const Variant&, const Text&) const>({&M::Sum, &M::Reverse,
                                                                  &M::Cumsum}));
static_assert(Has<M, R(const M&) const>({&M::SolutionOfSistem, &M::LeastSqures}));
static_assert(Has<M, R() const>({&M::Inv}));
static_assert(Has<M, R(const Variant&, double, I32) const>({&M::Hanning_Normaliz}));
static_assert(Has<M, void(I32)>({&M::FillObject}));

// Operators.
static_assert(Has<M, R(const clsMatrix&) const>({&M::PlusR, &M::MinusR, &M::TimesR, &M::MtimesR,
                                                 &M::RdivideR}));
static_assert(Has<M, R(const clsLong&) const>({&M::PlusL, &M::MinusL, &M::TimesL, &M::MtimesL,
                                               &M::RdivideL}));
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
static_assert(Has<M, R(const Array<I32>&) const>({&M::PlusLArray, &M::MinusLArray, &M::TimesLArray,
                                                  &M::RdivideLArray}));
static_assert(Has<M, C(const Array<Z>&) const>({&M::PlusCArray, &M::MinusCArray, &M::TimesCArray,
                                                &M::MtimesCArray, &M::RdivideCArray}));
static_assert(Has<M, L(const Array<I32>&) const>({&M::MtimesLArray}));
static_assert(Has<M, Variant(const Variant&) const>({&M::Plus, &M::Minus, &M::Times, &M::MTimes,
                                                     &M::Rdivide}));

// What a caller may leave out.
static_assert(requires(const M& m, M& w, const clsLong& l, const clsComplexMatrix& c,
                       const Array<I32>& whole) {
    m.MatrixToString();
    w.SetRealAll_L(whole);
    w.SetRealAll(m.GetRealAll());
    m.CopyObject();
    w.CopyObjectLongToDouble(l);
    w.CopyObjectComplexRealToDouble(c);
    w.CopyObjectComplexImageToDouble(c);
    w.Initial_matrix(1, 1);
    m.clsEye(1);
    m.OutMatrix(1, 1);
    m.MinDim();
    m.MaxDim();
    m.MinIndex();
    m.MaxIndex();
    m.All();
    m.AnyObj();
    m.Sum();
    m.Reverse();
    m.Cumsum();
});

} // namespace
} // namespace lumora::test::members
