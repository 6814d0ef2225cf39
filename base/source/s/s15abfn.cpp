// Standard normal distribution function, P(x) = erfc(-x/sqrt2)/2.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_s_ib.h"

// erfc(x + xl) in the extended format (s15adzn.cpp).
long double s15adzn(double x, double xl);

// The quotient z = x / 1.4142135623730951 carries a rounding that the lower tail
// amplifies by 2z^2, relative; its low part, from the exact remainder and the
// low part of sqrt2 (mpmath), goes to the kernel with it. Beyond |z| = 32 the
// kernel's cuts decide from z alone, and below 2^-60 z alone rounds the same
// (where the remainder would be subnormal and slow).
double s15abfn(double x) {
  namespace dd = zeb::dd;
  constexpr double kSqrt2Hi = 1.4142135623730951;
  constexpr double kSqrt2Lo = -9.667293313452913e-17;
  // Below 2^-55 the value 1/2 -+ x/sqrt(2 pi) rounds to 1/2.
  if (std::fabs(x) < 0x1p-55) return 0.5;
  double z = x / kSqrt2Hi;
  double zl = 0.0;
  if (std::fabs(z) < 32.0 && std::fabs(z) > 0x1p-60) {
    const dd::dd p = dd::two_prod(z, kSqrt2Hi);
    zl = (((x - p.hi) - p.lo) - z * kSqrt2Lo) * 0.7071067811865476;  // / sqrt2
  }
  zeb::ext::Precision guard(z, zl);
  double r = static_cast<double>(0.5L * s15adzn(-z, -zl));
  guard.release(r);
  return r;
}
