// A random program over matrix objects: create, cut, join, operate, index, in range and out of it.
// Whatever the program, every object stays whole, every message is one of the language's own, and
// nothing but run-time errors ends a step.
//
// Input: three bytes a step (operation, two registers of eight), and as many as the step asks for.

#include "numeric/CopyAny.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"
#include "numeric/elementwise/AbsAny.h"
#include "numeric/elementwise/Sqrt.h"
#include "numeric/elementwise/TimesAny.h"
#include "numeric/order/MinMax.h"
#include "numeric/shaping/Cat.h"
#include "numeric/shaping/TransposeAny.h"
#include "support/FuzzInput.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

namespace lumora {
namespace {

using fuzz::Demand;

// clang-format off
const char* const kPlainTexts[] = {
    kIndexExceeds, kMissingTwo, kRowRange, kColumnRange, kMatrixRange, kIndicesMustBeObject,
    kIndicesMustBeLong, kProductsDiffer, kDimensionsMustAgree, kPlusSizes, kMinusSizes, kTimesSizes,
    kMtimesSizes, kRdivideSizes, kDivideByZero, kDivideByZeroTwoStops, kDivideByZeroCapital,
    kLogOfZero, kOverflow, kOverflowNoStop, kSingularityAtan, kSingularityAtanh, kSingularityAcot,
    kIncorrectObject, kIncorrectObjectStop, kIncorrectObjectBlank, kIncorrectBase, kNumberOrCls,
    kIncorrectTypeOfObject, kIncorrectArray, kIncorrectType, kMustBeArray, kIncorectMatrix};
const char* const kTitles[] = {kErrorUsingMin, kErrorUsingMax, kErrorUsingSqrt, kErrorUsingCat,
                               kErrorUsingCatStop, kErrorUsingEye, kErrorUsingRearrange};
// clang-format on

/// Lets only the language's own messages pass, and answers as told.
class KnownMessages : public MessageBoxPort {
public:
    MessageAnswer Show(const std::string& text, const std::string&, MessageButtons buttons,
                       MessageIcon) override
    {
        const bool plain = buttons == MessageButtons::Ok;
        Demand(plain ? std::count(std::begin(kPlainTexts), std::end(kPlainTexts), text) > 0
                     : std::any_of(std::begin(kTitles), std::end(kTitles), [&](const char* title) {
                           return text.starts_with(std::string(title) + "\r\n----------");
                       }));
        return answer;
    }

    MessageAnswer answer = MessageAnswer::Ok;

private:
    MessageBoxScope scope_{*this};
};

} // namespace

class Program {
public:
    explicit Program(std::span<const std::uint8_t> code) : code_(code) {}

    void Run()
    {
        constexpr int kMostSteps = 200;
        for (int step = 0; step < kMostSteps && at_ < code_.size(); ++step) {
            const int operation = Byte();
            Variant& a = registers_[static_cast<std::size_t>(Byte()) % registers_.size()];
            const Variant b = registers_[static_cast<std::size_t>(Byte()) % registers_.size()];
            Variant result;
            messages_.answer = operation < 128 ? MessageAnswer::Ok : MessageAnswer::Cancel;
            if (fuzz::ComesBack([&] { result = Step(operation % 8, a, b); })) Keep(a, result);
            for (const Variant& value : registers_)
                CheckWhole(value);
        }
    }

private:
    std::uint8_t Byte() { return at_ < code_.size() ? code_[at_++] : std::uint8_t{0}; }
    std::int32_t Small() { return Byte() % 7; }
    std::int32_t Index() { return Byte() % 10 - 2; }
    double Number()
    {
        static constexpr double kNumbers[] = {0.0,  -0.0, 1.0,  -1.0,   2.0,   0.5,   -0.5, 3.25,
                                              1e-9, 1e6,  -1e6, 1e-200, 1e200, 710.0, -8.0, 1e307};
        return kNumbers[Byte() % std::size(kNumbers)];
    }
    std::string Text()
    {
        static constexpr const char* kTexts[] = {"",       "1",    "-2.5", "i",
                                                 "1 - 2i", "text", "+",    "1e5i"};
        return kTexts[Byte() % std::size(kTexts)];
    }

    template <class T> static Variant Held(T result)
    {
        if constexpr (requires { OrEmpty(result); })
            return OrEmpty(std::move(result));
        else if constexpr (std::is_same_v<T, bool>)
            return static_cast<std::int16_t>(result);
        else
            return result;
    }

    /// A step's result takes the place of its operand, unless it has grown too large to go on with.
    static void Keep(Variant& place, const Variant& result)
    {
        constexpr std::int32_t kLargest = 40;
        const bool fits = result.Visit([](const auto& held) {
            if constexpr (requires { held->size1; })
                return held->size1 <= kLargest && held->size2 <= kLargest;
            else
                return true;
        });
        if (fits && !result.IsEmpty()) place = result;
    }

    static void CheckWhole(const Variant& value)
    {
        value.Visit([](const auto& held) {
            if constexpr (requires { SheetOf(*held); })
                Demand(fuzz::ComesBack([&] { SheetOf(*held); }));
        });
    }

    template <class M, class Value> Variant Filled(Value value)
    {
        Ref<M> m = MakeRef<M>();
        m->Initial_matrix(Small(), Small());
        for (std::int32_t j = 1; j <= m->size2; ++j)
            for (std::int32_t i = 1; i <= m->size1; ++i)
                value(*m, i, j);
        return m;
    }

    Variant Created()
    {
        switch (Byte() % 10) {
        case 0:
            return Filled<clsMatrix>([&](auto& m, auto i, auto j) { m.Real(i, j, Number()); });
        case 1:
            return Filled<clsLong>(
                [&](auto& m, auto i, auto j) { m.Real(i, j, (Byte() - 128) * 1'000'000); });
        case 2:
            return Filled<clsComplexMatrix>(
                [&](auto& m, auto i, auto j) { m.SetComplex(i, j, Number(), Number()); });
        case 3: {
            Ref<clsMatrixComplex> m = MakeRef<clsMatrixComplex>();
            const Variant parts = Filled<clsComplexMatrix>(
                [&](auto& c, auto i, auto j) { c.SetComplex(i, j, Number(), Number()); });
            m->CopyObject_C(*parts.As<Ref<clsComplexMatrix>>());
            return m;
        }
        case 4:
            return Filled<clsString>([&](auto& m, auto i, auto j) { m.Real(i, j, Text()); });
        case 5:
            return Filled<clsVariant>([&](auto& m, auto i, auto j) {
                m.Real(i, j, i > j ? Variant(Number()) : Variant(Text()));
            });
        case 6:
            return MakeRef<clsComplex>(Number(), Number());
        case 7:
            return Number();
        case 8:
            return Text();
        default:
            return Filled<clsMatrixComplex>([](auto&, auto, auto) {}); // without objects
        }
    }

    Variant PlainArray(const Variant& a)
    {
        return a.Visit([](const auto& held) -> Variant {
            if constexpr (requires { Variant(held->GetRealAll()); })
                return held->GetRealAll();
            else
                return {};
        });
    }

    Variant Routine(const Variant& a, const Variant& b)
    {
        const int which = Byte();
        switch (which % 16) {
        case 0:
            return Cat(static_cast<std::int16_t>(Small()), a, b);
        case 1:
            return TransposeAny(a);
        case 2:
            return AbsAny(a);
        case 3:
            return TimesAny(a, b);
        case 4:
            return Sqrt(a);
        case 5:
            return Min(a, b);
        case 6:
            return Max(a, b);
        case 7:
            return CopyAny(b);
        case 8:
            return Held(GetSizeOfArray(a));
        case 9:
            return Held(clsMatrix().clsEye(Small(), IsNumeric(b) ? Variant(Small()) : b));
        case 10:
            return Held(IsNumericArray(a) && IsIntegerArray(b));
        case 11:
            return Held(IsComplexArray(a) || IsAllZero(b));
        case 12:
            return Held(IsTwoDimensional(a) || IsComplexText(b));
        case 13:
            return Cat(1, a, b);
        case 14:
            return Cat(2, a, b);
        default:
            return b;
        }
    }

    template <class M> Variant Operated(const M& m, const Variant& b, int which)
    {
        if constexpr (requires { m.Rdivide(b); }) {
            switch (which % 7) {
            case 0:
                return m.Plus(b);
            case 1:
                return m.Minus(b);
            case 2:
                return m.Times(b);
            case 3:
                return m.MTimes(b);
            case 4:
                return m.Rdivide(b);
            case 5:
                return m.Power(b);
            default:
                return Held(m.LogBaseM(b));
            }
        }
        return {};
    }

    template <class M> Variant Function(const M& m, const Variant&, int which)
    {
        if constexpr (requires { m.SinM(); }) {
            // clang-format off
            switch (which % 32) {
            case 0:  return Held(m.SinM());  case 1:  return Held(m.AsinM());
            case 2:  return Held(m.SinhM()); case 3:  return Held(m.AsinhM());
            case 4:  return Held(m.CosM());  case 5:  return Held(m.AcosM());
            case 6:  return Held(m.CoshM()); case 7:  return Held(m.AcoshM());
            case 8:  return Held(m.TanM());  case 9:  return Held(m.AtanM());
            case 10: return Held(m.TanhM()); case 11: return Held(m.AtanhM());
            case 12: return Held(m.CotM());  case 13: return Held(m.AcotM());
            case 14: return Held(m.CothM()); case 15: return Held(m.AcothM());
            case 16: return Held(m.SecM());  case 17: return Held(m.AsecM());
            case 18: return Held(m.SechM()); case 19: return Held(m.AsechM());
            case 20: return Held(m.CscM());  case 21: return Held(m.AcscM());
            case 22: return Held(m.CschM()); case 23: return Held(m.AcschM());
            case 24: return Held(m.ExpM());  case 25: return Held(m.LogM());
            case 26: return Held(m.Log2M()); case 27: return Held(m.Log10M());
            case 28: return Held(m.SqrM());  case 29: return Held(m.AbsM());
            case 30: return Held(m.Conj());  default: return Held(m.CTranspose());
            }
            // clang-format on
        }
        return {};
    }

    template <class M> Variant Shaped(M& m, int which)
    {
        std::int16_t line = static_cast<std::int16_t>(Small());
        if constexpr (requires { m.OutMatrix(1, 1); }) {
            switch (which % 8) {
            case 0:
                return Held(m.OutMatrix(Index(), Index(), Index(), Index()));
            case 1:
                return Held(m.OutMatrix(Index(), Index()));
            case 2:
                return Held(m.NewSizeOfMatrix(Index(), Index()));
            case 3:
                return Held(m.Transpose());
            default:
                break;
            }
        }
        if constexpr (requires { m.Rearrange(1, 1, line); })
            if (which % 8 == 4) return m.Rearrange(Index(), Index(), line);
        if constexpr (requires { m.RedimPreserve(1); })
            if (which % 8 == 5) m.RedimPreserve(Index());
        if constexpr (requires { m.CatRefresh(m); })
            if (which % 8 == 6) m.CatRefresh(m);
        if constexpr (requires { m.OutMatrixByVector(Variant(), 1, 1, line); })
            if (which % 8 == 7) {
                const Variant& list = registers_[static_cast<std::size_t>(Byte()) % 8];
                return Held(m.OutMatrixByVector(list, Index(), Index(), line));
            }
        if constexpr (requires { m.MatrixToString(); }) return Held(m.MatrixToString());
        return {};
    }

    template <class M> Variant Ordered(const M& m, int which)
    {
        if constexpr (requires { m.MinDim(); }) {
            const Variant dimention = Small() < 3 ? Variant() : Variant(std::int32_t{Byte() % 4});
            switch (which % 11) {
            case 0:
                return Held(m.Min());
            case 1:
                return Held(m.Max());
            case 2:
                return Held(m.MinDim(dimention));
            case 3:
                return Held(m.MaxDim(dimention));
            case 4:
                return Held(m.MinIndex(dimention));
            case 5:
                return Held(m.MaxIndex(dimention));
            case 6:
                return Held(m.Minmax());
            case 7:
                return Held(m.All(dimention));
            case 8:
                return Held(m.AnyObj(dimention));
            case 9:
                return Held(m.AllAll());
            default:
                return Held(m.AnyAny());
            }
        }
        return {};
    }

    template <class M> Variant Accessed(M& m, const Variant& b, int which)
    {
        const std::int32_t i = Index();
        const std::int32_t j = Index();
        if constexpr (std::is_same_v<M, clsVariant>) {
            // A matrix inside a matrix inside a matrix would grow beyond all bounds.
            if (which % 2 == 0 && !b.Is<Ref<clsVariant>>()) m.Real(i, j, b);
            return m.GetArr(i, j);
        } else if constexpr (requires { m.Real(i, j, Text()); }) {
            m.Real(i, j, Text());
        } else if constexpr (requires { m.SetComplex(i, j, 1.0, 1.0); }) {
            m.SetComplex(i, j, Number(), Number());
        } else if constexpr (std::is_same_v<M, clsMatrixComplex>) {
            m.Real(i, j, clsComplex(Number(), Number()));
            return Held(m.Real(i, j));
        } else if constexpr (requires { m.GetArr(i, j); }) {
            m.Real(i, j, which % 2 == 0 ? 7 : -7);
            return m.GetArr(i, j);
        }
        return {};
    }

    Variant Step(int operation, Variant& a, const Variant& b)
    {
        switch (operation) {
        case 0:
            return Created();
        case 1:
            return Routine(a, b);
        case 2:
            return PlainArray(a);
        default:
            break;
        }
        const int which = Byte();
        return a.Visit([&](auto& held) -> Variant {
            if constexpr (requires { held->TypeOfMatrix; }) {
                auto& m = *held;
                switch (operation) {
                case 3:
                    return Operated(m, b, which);
                case 4:
                    return Function(m, b, which);
                case 5:
                    return Shaped(m, which);
                case 6:
                    return Ordered(m, which);
                default:
                    return Accessed(m, b, which);
                }
            }
            return {};
        });
    }

    std::span<const std::uint8_t> code_;
    std::size_t at_ = 0;
    KnownMessages messages_;
    std::array<Variant, 8> registers_;
};

} // namespace lumora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    lumora::Program({data, size}).Run();
    return 0;
}
