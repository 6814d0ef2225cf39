// arcsin x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"

// R(u) with asin(x) = x + x^3 R(x^2), x^2 <= 1/4 (s09aazn.cpp).
double s09aazn(double u);

namespace {

// pi/2 = kPio2Hi + kPio2Lo (mpmath, 50 digits).
constexpr double kPio2Hi = 1.5707963267948966;
constexpr double kPio2Lo = 6.123233995736766e-17;

}  // namespace

// abs(x) <= 1/2: the series. Above: with z = (1 - abs x)/2 and s = sqrt z,
// asin(abs x) = pi/2 - 2 asin(s) = pi/2 - 2s - 2s z R(z). Near x = 1/2 the
// two leading terms cancel by a factor 3, so s is carried as hi + lo (from the
// exact remainder z - s^2) and pi/2 - 2s is formed exactly.
double s09aafn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double a = std::fabs(x);
  if (a > 1.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (!(a > 0.5)) {
    // Also a NaN, which passes through.
    const double u = x * x;
    return x + x * (u * s09aazn(u));
  }
  const double z = 0.5 * (1.0 - a);  // exact for abs x in [1/2, 1]
  const double sh = std::sqrt(z);
  const zeb::dd::dd sq = zeb::dd::two_prod(sh, sh);
  const double sl = sh > 0.0 ? ((z - sq.hi) - sq.lo) / (2.0 * sh) : 0.0;
  const zeb::dd::dd h = zeb::dd::two_sum(kPio2Hi, -2.0 * sh);
  const double lo = (h.lo + kPio2Lo) - 2.0 * (sl + sh * (z * s09aazn(z)));
  return std::copysign(h.hi + lo, x);
}
