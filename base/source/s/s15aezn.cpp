// erf(x) for |x| <= 0.46875 as hi + lo: the first range of s15adfn and
// s15aefn.
#include <cmath>
#include <cstddef>

#include "zeb_dd.h"
#include "zeb_s_ib.h"

// 2^-k (hi + lo) rounded once (s15adxn.cpp).
double s15adxn(double hi, double lo, int k);

namespace {

namespace dd = zeb::dd;

// erf(x) / x: minimax rational of degree 4/4 in v = x^2 on [0.0, 0.21972656],
// fitted by tools/refdata/fit_s_first.py; max relative error 1.0e-20 with the
// coefficients as stored. Coefficients from the highest power. Numerator:
constexpr double kErfS_P[5][2] = {
    {6.539836064511552e-05, 3.488346701876332e-21},
    {0.0010954330889630956, 1.5226578557172176e-20},
    {0.039983075271297096, 9.864622987475953e-20},
    {0.13216510900366138, 8.977009462201725e-18},
    {1.1283791670955126, 1.5324206730047082e-17},
};
// Denominator:
constexpr double kErfS_Q[5][2] = {
    {0.00034930348029266965, -9.619169601440011e-21},
    {0.008263481080980635, -5.264975176858351e-19},
    {0.085587948380421, 5.00398231122163e-18},
    {0.4504616115377768, -2.2839572505467347e-17},
    {1.0, 0.0},
};

// The polynomial c (pairs hi + lo, highest power first) at x by compensated
// Horner: the rounding error of each step is carried in a second sum, so the
// value is as if evaluated in twice the precision.
template <std::size_t N>
dd::dd horner2(const double (&c)[N][2], double x) {
  double s = c[0][0];
  double e = c[0][1];
  for (std::size_t i = 1; i < N; ++i) {
    const dd::dd p = dd::two_prod(s, x);
    const dd::dd u = dd::two_sum(p.hi, c[i][0]);
    e = e * x + (p.lo + u.lo + c[i][1]);
    s = u.hi;
  }
  return dd::two_sum(s, e);
}

}  // namespace

// erf(x) = x R(x^2), R = P/Q the rational of Cody's form. The rounding of
// v = x^2 enters through R'(v) = -2/(3 sqrt pi) + 2/(5 sqrt pi) v, close enough
// for a term of 2^-53 relative. Below 2^-900, x enters the product scaled by
// 2^64 so that the product is exact and the value, perhaps subnormal, is
// rounded once.
double s15aezn(double x, double& lo) {
  const dd::dd v = dd::two_prod(x, x);
  dd::dd r = dd::div(horner2(kErfS_P, v.hi), horner2(kErfS_Q, v.hi));
  r.lo += v.lo * (-0.37612638903183754 + 0.22567583341910252 * v.hi);
  if (std::fabs(x) < 0x1p-900) {
    const dd::dd e = dd::mul(r, x * 0x1p64);
    lo = 0.0;
    return s15adxn(e.hi, e.lo, 64);
  }
  const dd::dd e = dd::mul(r, x);
  lo = e.lo;
  return e.hi;
}
