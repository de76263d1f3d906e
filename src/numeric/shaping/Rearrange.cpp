#include "numeric/Sentinel.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"
#include "numeric/shaping/ShapedStores.h"
#include "numeric/shaping/Shaping.h"

#include <limits>

// Rearrange of the matrix classes: two lines exchange their places.

namespace lumora {

namespace {

/// The sign of the line that moves: over an odd distance it turns, as one step of a determinant.
class Turned {
public:
    Turned(std::int32_t X, std::int32_t Y) : turns_(((X ^ Y) & 1) != 0) {}

    double operator()(double x) const { return turns_ ? -x : x; }
    std::int32_t operator()(std::int32_t x) const
    {
        if (!turns_) return x;
        if (x == std::numeric_limits<std::int32_t>::min()) Raise(ErrorNumber::Overflow);
        return -x;
    }

private:
    bool turns_;
};

template <class M, class Moved = std::identity>
Variant Rearranged(const M& m, std::int32_t X, std::int32_t Y, std::int16_t& s, Moved moved = {})
{
    if (s != 2) s = 1;
    const Lines lines = s == 1 ? Lines::Rows : Lines::Columns;
    if (std::max(X, Y) > (s == 1 ? m.size1 : m.size2))
        return OrEmpty(TitledFailure(kErrorUsingRearrange, s == 1 ? kRowsBeyond : kColumnsBeyond));
    return Shaped(m, [&](const auto& from) { return Exchanged(from, lines, X, Y, moved); });
}

using I32 = std::int32_t;
using I16 = std::int16_t;

} // namespace

// clang-format off
Variant clsMatrix::Rearrange       (I32 X, I32 Y, I16& s) const { return Rearranged(*this, X, Y, s, Turned(X, Y)); }
Variant clsLong::Rearrange         (I32 X, I32 Y, I16& s) const { return Rearranged(*this, X, Y, s, Turned(X, Y)); }
Variant clsComplexMatrix::Rearrange(I32 X, I32 Y, I16& s) const { return Rearranged(*this, X, Y, s); }
Variant clsString::Rearrange       (I32 X, I32 Y, I16& s) const { return Rearranged(*this, X, Y, s); }
Variant clsVariant::Rearrange      (I32 X, I32 Y, I16& s) const { return Rearranged(*this, X, Y, s); }
// clang-format on

} // namespace lumora
