// Error function erf(x).
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib.h"

// erf(x) for |x| <= 0.46875, and scale * erfc(x + xl), as hi + lo
// (s15aezn.cpp, s15adzn.cpp).
double s15aezn(double x, double& lo);
double s15adzn(double x, double xl, double scale, double& lo);

// erf(x): the rational of the first range directly; beyond it 1 - erfc(|x|)
// with the sign of x, and +-1 from |x| = 6.5 on, where erfc(|x|) < 4e-20.
double s15aefn(double x) {
  namespace dd = zeb::dd;
  const double a = std::fabs(x);
  double lo = 0.0;
  if (a <= 0.46875) {
    const double hi = s15aezn(x, lo);
    return hi + lo;
  }
  if (!(a < 6.5)) return a >= 6.5 ? std::copysign(1.0, x) : x;  // x may be NaN
  const double c = s15adzn(a, 0.0, 1.0, lo);
  const dd::dd r = dd::add(dd::two_sum(1.0, -c), -lo);
  return x < 0.0 ? -r.hi : r.hi;
}
