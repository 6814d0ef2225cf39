// Upper tail of the standard normal distribution, Q(x) = erfc(x/sqrt2)/2.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib.h"

// scale * erfc(x + xl) rounded, and what remains as lo (s15adzn.cpp).
double s15adzn(double x, double xl, double scale, double& lo);

// The quotient z = x / 1.4142135623730951 carries a rounding that the tail
// amplifies by 2z^2, relative; its low part, from the exact remainder and the
// low part of sqrt2 (mpmath), goes to the kernel with it. Beyond |z| = 32 the
// kernel's cuts decide from z alone, and below 2^-60 z alone rounds the same
// (where the remainder would be subnormal and slow).
double s15acfn(double x) {
  namespace dd = zeb::dd;
  constexpr double kSqrt2Hi = 1.4142135623730951;
  constexpr double kSqrt2Lo = -9.667293313452913e-17;
  const double z = x / kSqrt2Hi;
  double zl = 0.0;
  if (std::fabs(z) < 32.0 && std::fabs(z) > 0x1p-60) {
    const dd::dd p = dd::two_prod(z, kSqrt2Hi);
    zl = (((x - p.hi) - p.lo) - z * kSqrt2Lo) * 0.7071067811865476;  // / sqrt2
  }
  double lo = 0.0;
  return s15adzn(z, zl, 0.5, lo);
}
