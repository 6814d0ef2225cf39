// Error function erf(x).
#include <cmath>

#include "s15aezn.h"
#include "zeb_ext.h"
#include "zeb_s_ib.h"

// erfc(x + xl) in the extended format (s15adzn.cpp).
long double s15adzn(double x, double xl);

// erf(x): the rational of the first range directly; beyond it 1 - erfc(|x|)
// with the sign of x, and +-1 from |x| = 6.5 on, where erfc(|x|) < 4e-20.
// 1 - erfc(|x|) is formed in the x87 extended format, in which it loses at
// most 2^-65, and rounded once.
double s15aefn(double x) {
  const double a = std::fabs(x);
  if (!(a < 6.5)) return a >= 6.5 ? std::copysign(1.0, x) : x;  // x may be NaN
  zeb::ext::Precision guard(x);
  double r = 0.0;
  if (a < 0x1p-33) {
    // x^2/3 < 2^-67.5 leaves 1 - x^2/3 + ... at 1 in the extended format, so
    // that erf_small forms (2/sqrt pi) x, rounded once to 64 bits, and nothing
    // else; here without the rational.
    r = static_cast<double>(zeb::s15ae::kC0 * x);
  } else if (a <= 0.46875) {
    r = static_cast<double>(zeb::s15ae::erf_small(x));
  } else {
    r = static_cast<double>(1.0L - s15adzn(a, 0.0));
    if (x < 0.0) r = -r;
  }
  guard.release(r);
  return r;
}
