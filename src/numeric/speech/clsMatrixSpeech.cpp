#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/speech/BinSearch.h"
#include "numeric/speech/Compression.h"
#include "numeric/speech/Exstremum.h"
#include "numeric/speech/Gt.h"
#include "numeric/speech/Parcor.h"
#include "numeric/speech/PredictionFilter.h"
#include "numeric/speech/Samples.h"

// The tools of speech analysis: result, member, what it does.

namespace lumora {

namespace {

using I32 = std::int32_t;

} // namespace

// clang-format off
Variant        clsMatrix::Parcor_Burg                      (I32 Npred, I32& Window, I32& Shift)                                              const { return ParcorTable(*this, Npred, Window, Shift, LoneFrame::Row); }
Variant        clsMatrix::Parcor_Burg1                     (I32 Npred, I32& Window, I32& Shift)                                              const { return ParcorTable(*this, Npred, Window, Shift, LoneFrame::RowOrColumn); }
Ref<clsMatrix> clsMatrix::Pred_Lat                         ()                                                                                const { return PredictorOf(*this); }
Ref<clsMatrix> clsMatrix::Parcor_Resid                     (const clsMatrix& Parcor, const clsMatrix& VectInit, I32 Nint)                    const { return Residual(*this, Parcor, VectInit, Nint); }
Ref<clsMatrix> clsMatrix::Parcor_Direct                    (const clsMatrix& Parcor, const clsMatrix& VectInit, double Q_T, I32 Nint)        const { return Synthesis(*this, Parcor, VectInit, Q_T, Nint); }

double         clsMatrix::ScallProd                        (I32 IndexFirst, I32 IndexSecond, const Variant& length1)                         const { return DotProduct(*this, IndexFirst, IndexSecond, length1); }
Ref<clsMatrix> clsMatrix::SoundMinusAverage1               (const Variant& Num)                                                              const { return MinusAverage(*this, Num); }
Ref<clsLong>   clsMatrix::Gt                               (const Variant& a)                                                                const { return Greater(*this, a); }

Ref<clsMatrix> clsMatrix::Compression_Expansion            (double koef)                                                                     const { return Interpolated(*this, koef); }
Ref<clsMatrix> clsMatrix::Compression_ExpansionPrec        (double koef)                                                                     const { return InterpolatedToLength(*this, koef); }
Ref<clsMatrix> clsMatrix::Compression_Expansion_Matrix     (double koef)                                                                     const { return Picked(*this, koef); }

Ref<clsLong>   clsMatrix::FoundIndexesExstremumInVector_Max(const Variant& Level)                                                            const { return PlacesOfMaxima(*this, Level); }
Ref<clsMatrix> clsMatrix::ExstremumValueAndIndexMax        (const Variant& Level)                                                            const { return MaximaInOrder(*this, Level); }
Ref<clsMatrix> clsMatrix::SortExstremumMax                 (I32& Quantity, const Variant& Level)                                             const { return LargestMaxima(*this, Quantity, Level); }
I32            clsMatrix::BinSearchInArray                 (I32& Left, I32& Right, double Num, double Tolerance)                             const { return FirstNotBelow(*this, Left, Right, Num, Tolerance); }
Ref<clsMatrix> clsMatrix::MinmaxIndex                      ()                                                                                const { return Minmax(); }
// clang-format on

} // namespace lumora
