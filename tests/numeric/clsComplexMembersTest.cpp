#include "numeric/Members.h"
#include "numeric/clsComplex.h"

// Every member of clsComplex by its name, arguments and result: a lost or mistyped one does not
// build.

namespace lumora::test::members {
namespace {

using M = clsComplex;

// Elementary functions.
static_assert(Has<M, Z() const>(
    {&M::SinM,  &M::SinhM, &M::AsinhM, &M::CosM,   &M::CoshM,  &M::TanM,   &M::AtanM, &M::TanhM,
     &M::CotM,  &M::AcotM, &M::CothM,  &M::SecM,   &M::SechM,  &M::CscM,   &M::CschM, &M::AcschM,
     &M::ExpM,  &M::AsinM, &M::AcosM,  &M::AcoshM, &M::AtanhM, &M::AcothM, &M::AsecM, &M::AsechM,
     &M::AcscM, &M::LogM,  &M::Log2M,  &M::Log10M, &M::SqrM,   &M::Conj,   &M::Sqrt_z}));
static_assert(Has<M, double() const>({&M::AbsM, &M::Atan2_z, &M::Angle_z}));
static_assert(Has<M, double(double) const>({&M::Hcos, &M::Hsin}));
static_assert(Has<M, Variant(const Variant&) const>({&M::Power}));
static_assert(Has<M, Z(const Variant&) const>({&M::LogBaseM}));

// Construction and copies.
static_assert(Has<M, void(double)>({&M::SetReal, &M::SetImage}));
static_assert(Has<M, void(double, double)>({&M::SetComplex}));
static_assert(Has<M, Z() const>({&M::Transpose, &M::CTranspose}));
static_assert(Has<M, Z(const Text&) const>({&M::CopyObject}));
static_assert(Has<M, S(const Variant&) const>({&M::MatrixToString}));

// Operators.
static_assert(Has<M, C(const clsMatrix&) const>({&M::PlusR, &M::MinusR, &M::TimesR, &M::MtimesR,
                                                 &M::RdivideR}));
static_assert(Has<M, C(const clsLong&) const>({&M::PlusL, &M::MinusL, &M::TimesL, &M::MtimesL,
                                               &M::RdivideL}));
static_assert(Has<M, C(const clsComplexMatrix&) const>({&M::PlusC, &M::MinusC, &M::TimesC,
                                                        &M::MtimesC, &M::RdivideC}));
static_assert(Has<M, C(const clsMatrixComplex&) const>({&M::PlusMC, &M::MinusMC, &M::TimesMC,
                                                        &M::MtimesMC, &M::RdivideMC}));
static_assert(Has<M, Z(double) const>({&M::PlusNum, &M::MinusNum, &M::TimesNum, &M::MtimesNum,
                                       &M::RdivideNum}));
static_assert(Has<M, Z(const clsComplex&) const>({&M::PlusComplexNum, &M::MinusComplexNum,
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
static_assert(Has<M, Z(const clsComplex&) const>({&M::Mul_z, &M::Minus_z, &M::Plus_z}));

// What a caller may leave out.
static_assert(requires(const M& m) {
    m.CopyObject();
    m.MatrixToString();
});

} // namespace
} // namespace lumora::test::members
