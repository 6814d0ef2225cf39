// erf(x) for |x| <= 0.46875 in the x87 extended format (zeb_ext.h), for a
// caller that holds a zeb::ext::Precision: the first range of erf and erfc,
// inline in s15aefn.cpp and s15adzn.cpp.
#pragma once

#include "zeb_ext.h"

namespace zeb::s15ae {

// S(v) of erf(x) = (2/sqrt(pi)) (x - x^3/3 + x^5 S(x^2)): minimax rational of
// degree 3/3 in v = x^2 on [0.0, 0.21972656], fitted by
// tools/refdata/fit_s_first.py; max erf-relative error 1.7e-19 with the
// coefficients rounded to double. Coefficients from the highest power.
// Numerator:
constexpr double kErfS_P[4] = {
    -7.960298887560657e-06,
    0.0008646579714681379,
    0.009617821300916471,
    0.10000000000000038,
};
// Denominator:
constexpr double kErfS_Q[4] = {
    0.0020060558860413797,
    0.0419392003387233,
    0.3342734511047096,
    1.0,
};

// 2/sqrt(pi) (mpmath, 50 digits).
constexpr long double kC0 = 1.1283791670955125738961589031215452L;

// erf(x) = x R(x^2), R the rational of Cody's form, held as
// (2/sqrt pi) (1 - v/3 + v^2 S(v)), v = x^2, S = P/Q: the handful of
// roundings stay below 2^-62 of the value, and x^2 and the products stay
// normal however small x is, so that the one conversion to double rounds a
// subnormal value once.
inline long double erf_small(double x) {
  using zeb::ext::ld;
  const ld v = static_cast<ld>(x) * x;
  const ld s = zeb::ext::horner<2>(kErfS_P, v) / zeb::ext::horner<2>(kErfS_Q, v);
  return kC0 * x * (1.0L - v * (1.0L / 3 - v * s));
}

}  // namespace zeb::s15ae
