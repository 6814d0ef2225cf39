// 1 - exp(2 pi i z) for z = x + iy with y >= 0, with full relative accuracy
// also where it is small (z near an integer):
//   1 - q = [-expm1(-2 pi y) + e^(-2 pi y) 2 sin^2(pi x)]
//           - i e^(-2 pi y) 2 sin(pi x) cos(pi x),
// with x reduced by the nearest integer first, exactly, and pi x carried as
// hi + lo. Also gives 1 + q and q, which the reflection of the complex
// polygamma needs.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"

void s14agyn(double x, double y, double& re, double& im, double& pre,
             double& pim, double& qre, double& qim) {
  constexpr double kPiHi = 3.141592653589793116;
  constexpr double kPiLo = 1.2246467991473532e-16;
  // Every real from 2^52 up in size is an integer: sin(pi x) = 0.
  const double xr = std::fabs(x) < 0x1p52 ? x - std::nearbyint(x) : 0.0;
  zeb::dd::dd p = zeb::dd::two_prod(kPiHi, xr);
  p.lo += kPiLo * xr;
  const double s0 = std::sin(p.hi);
  const double c0 = std::cos(p.hi);
  const double s = s0 + p.lo * c0;  // sin(pi x)
  const double c = c0 - p.lo * s0;  // cos(pi x)
  const double t = -2.0 * kPiHi * y;
  // One exponential: e from expm1 where e > 1/2, expm1 from e below, each
  // difference exact or within half an ulp of a result of at least 1/2.
  double e = 0.0;
  double em1 = 0.0;
  if (t > -0.6931471805599453) {
    em1 = std::expm1(t);
    e = 1.0 + em1;
  } else {
    e = std::exp(t);
    em1 = e - 1.0;
  }
  re = -em1 + e * (2.0 * s * s);
  im = -e * (2.0 * s * c);
  // Re(1 + q) = 1 + e (1 - 2 s^2) = -expm1(-2 pi y) + 2 e c^2.
  pre = -em1 + e * (2.0 * c * c);
  pim = -im;
  qre = e * (1.0 - 2.0 * s * s);
  qim = -im;
}
