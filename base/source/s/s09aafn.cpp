// arcsin x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

// asin(x) - x = q + r for abs(x) <= 1/2, q the rounded x^3/6 (s09aazn.cpp).
void s09aazn(double x, double& q, double& r);

namespace {

// pi/2 = kPio2Hi + kPio2Lo (mpmath, 50 digits).
constexpr double kPio2Hi = 1.5707963267948966;
constexpr double kPio2Lo = 6.123233995736766e-17;

}  // namespace

// abs(x) <= 1/2: x + x^3/6 + x^5 S(x^2), the first two terms in
// double-double. Above: with z = (1 - abs x)/2 and s = sqrt z,
// asin(abs x) = pi/2 - 2 asin(s). Near x = 1/2 the leading terms cancel by a
// factor 3, so s is carried as hi + lo (from the exact remainder z - s^2),
// its low part entering as sl (1 + z/2), and pi/2 - 2s - s^3/3 is summed
// exactly.
double s09aafn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double a = std::fabs(x);
  if (a > 1.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  double q = 0.0;
  double r = 0.0;
  if (!(a > 0.5)) {
    // Also a NaN, which passes through. Below x02ajf, asin x = x + x^3/6
    // rounds to x (and x^2 would underflow).
    if (a < x02ajfn()) return x;
    s09aazn(x, q, r);
    const zeb::dd::dd s = zeb::dd::fast_two_sum(x, q);
    return s.hi + (s.lo + r);
  }
  const double z = 0.5 * (1.0 - a);  // exact for abs x in [1/2, 1]
  const double sh = std::sqrt(z);
  const zeb::dd::dd sq = zeb::dd::two_prod(sh, sh);
  const double sl = sh > 0.0 ? ((z - sq.hi) - sq.lo) / (2.0 * sh) : 0.0;
  s09aazn(sh, q, r);
  const zeb::dd::dd h = zeb::dd::two_sum(kPio2Hi, -2.0 * sh);
  const zeb::dd::dd h2 = zeb::dd::two_sum(h.hi, -2.0 * q);
  const double lo = ((h.lo + h2.lo) + kPio2Lo) - 2.0 * (sl * (1.0 + 0.5 * z) + r);
  return std::copysign(h2.hi + lo, x);
}
