#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>

// The member of an operator that each kind of operand asks for: a line an operand, the same for all
// classes.

namespace lumora {

// clang-format off
struct MtimesMembers {
    static auto Of(const auto& a, const clsComplex& b)             { return a.MtimesComplexNum(b); }
    static auto Of(const auto& a, const clsMatrix& b)              { return a.MtimesR(b); }
    static auto Of(const auto& a, const clsLong& b)                { return a.MtimesL(b); }
    static auto Of(const auto& a, const clsComplexMatrix& b)       { return a.MtimesC(b); }
    static auto Of(const auto& a, const clsMatrixComplex& b)       { return a.MtimesMC(b); }
    static auto Of(const auto& a, const Array<std::int32_t>& b)    { return a.MtimesLArray(b); }
    static auto Of(const auto& a, const Array<double>& b)          { return a.MtimesRArray(b); }
    static auto Of(const auto& a, const Array<Ref<clsComplex>>& b) { return a.MtimesCArray(b); }
    static auto Of(const auto& a, double b)                        { return a.MtimesNum(b); }
};

struct TimesMembers {
    static auto Of(const auto& a, const clsComplex& b)             { return a.TimesComplexNum(b); }
    static auto Of(const auto& a, const clsMatrix& b)              { return a.TimesR(b); }
    static auto Of(const auto& a, const clsLong& b)                { return a.TimesL(b); }
    static auto Of(const auto& a, const clsComplexMatrix& b)       { return a.TimesC(b); }
    static auto Of(const auto& a, const clsMatrixComplex& b)       { return a.TimesMC(b); }
    static auto Of(const auto& a, const Array<std::int32_t>& b)    { return a.TimesLArray(b); }
    static auto Of(const auto& a, const Array<double>& b)          { return a.TimesRArray(b); }
    static auto Of(const auto& a, const Array<Ref<clsComplex>>& b) { return a.TimesCArray(b); }
    static auto Of(const auto& a, double b)                        { return a.TimesNum(b); }
};

struct PlusMembers {
    static auto Of(const auto& a, const clsComplex& b)             { return a.PlusComplexNum(b); }
    static auto Of(const auto& a, const clsMatrix& b)              { return a.PlusR(b); }
    static auto Of(const auto& a, const clsLong& b)                { return a.PlusL(b); }
    static auto Of(const auto& a, const clsComplexMatrix& b)       { return a.PlusC(b); }
    static auto Of(const auto& a, const clsMatrixComplex& b)       { return a.PlusMC(b); }
    static auto Of(const auto& a, const Array<std::int32_t>& b)    { return a.PlusLArray(b); }
    static auto Of(const auto& a, const Array<double>& b)          { return a.PlusRArray(b); }
    static auto Of(const auto& a, const Array<Ref<clsComplex>>& b) { return a.PlusCArray(b); }
    static auto Of(const auto& a, double b)                        { return a.PlusNum(b); }
};

struct MinusMembers {
    static auto Of(const auto& a, const clsComplex& b)             { return a.MinusComplexNum(b); }
    static auto Of(const auto& a, const clsMatrix& b)              { return a.MinusR(b); }
    static auto Of(const auto& a, const clsLong& b)                { return a.MinusL(b); }
    static auto Of(const auto& a, const clsComplexMatrix& b)       { return a.MinusC(b); }
    static auto Of(const auto& a, const clsMatrixComplex& b)       { return a.MinusMC(b); }
    static auto Of(const auto& a, const Array<std::int32_t>& b)    { return a.MinusLArray(b); }
    static auto Of(const auto& a, const Array<double>& b)          { return a.MinusRArray(b); }
    static auto Of(const auto& a, const Array<Ref<clsComplex>>& b) { return a.MinusCArray(b); }
    static auto Of(const auto& a, double b)                        { return a.MinusNum(b); }
};

struct RdivideMembers {
    static auto Of(const auto& a, const clsComplex& b)             { return a.RdivideComplexNum(b); }
    static auto Of(const auto& a, const clsMatrix& b)              { return a.RdivideR(b); }
    static auto Of(const auto& a, const clsLong& b)                { return a.RdivideL(b); }
    static auto Of(const auto& a, const clsComplexMatrix& b)       { return a.RdivideC(b); }
    static auto Of(const auto& a, const clsMatrixComplex& b)       { return a.RdivideMC(b); }
    static auto Of(const auto& a, const Array<std::int32_t>& b)    { return a.RdivideLArray(b); }
    static auto Of(const auto& a, const Array<double>& b)          { return a.RdivideRArray(b); }
    static auto Of(const auto& a, const Array<Ref<clsComplex>>& b) { return a.RdivideCArray(b); }
    static auto Of(const auto& a, double b)                        { return a.RdivideNum(b); }
};
// clang-format on

} // namespace lumora
