// Error function erf(x).
#include <cmath>

#include "zeb_ext.h"
#include "zeb_s_ib.h"

// erf(x) for |x| <= 0.46875 in extended precision, and scale * erfc(x + xl)
// rounded with the rest in lo (s15aezn.cpp, s15adzn.cpp).
long double s15aezn(double x);
double s15adzn(double x, double xl, double scale, double& lo);

// erf(x): the rational of the first range directly; beyond it 1 - erfc(|x|)
// with the sign of x, and +-1 from |x| = 6.5 on, where erfc(|x|) < 4e-20.
// 1 - c - lo, with erfc(|x|) = c + lo, is formed in the x87 extended format
// (long double), in which it loses at most 2^-65, and rounded once.
double s15aefn(double x) {
  const double a = std::fabs(x);
  if (!(a < 6.5)) return a >= 6.5 ? std::copysign(1.0, x) : x;  // x may be NaN
  zeb::ext::Precision guard(x);
  double r = 0.0;
  if (a <= 0.46875) {
    r = static_cast<double>(s15aezn(x));
  } else {
    double lo = 0.0;
    const double c = s15adzn(a, 0.0, 1.0, lo);
    r = static_cast<double>((1.0L - c) - lo);
    if (x < 0.0) r = -r;
  }
  guard.release(r);
  return r;
}
