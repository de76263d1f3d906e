#pragma once

#include <mpfr.h>

namespace lumora::test {

/// A function of an angle rounded to nearest by a library of arbitrary precision.
inline double Rounded(int (*function)(mpfr_t, const mpfr_t, mpfr_rnd_t), double radians)
{
    mpfr_t value;
    mpfr_init2(value, 53);
    mpfr_set_d(value, radians, MPFR_RNDN);
    function(value, value, MPFR_RNDN);
    const double result = mpfr_get_d(value, MPFR_RNDN);
    mpfr_clear(value);
    return result;
}

inline double ReferenceCosine(double radians)
{
    return Rounded(mpfr_cos, radians);
}

inline double ReferenceSine(double radians)
{
    return Rounded(mpfr_sin, radians);
}

} // namespace lumora::test
