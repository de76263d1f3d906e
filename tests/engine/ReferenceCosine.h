#pragma once

#include <mpfr.h>

namespace lumora::test {

/// Cosine rounded to nearest by a library of arbitrary precision.
inline double ReferenceCosine(double radians)
{
    mpfr_t value;
    mpfr_init2(value, 53);
    mpfr_set_d(value, radians, MPFR_RNDN);
    mpfr_cos(value, value, MPFR_RNDN);
    const double cosine = mpfr_get_d(value, MPFR_RNDN);
    mpfr_clear(value);
    return cosine;
}

} // namespace lumora::test
