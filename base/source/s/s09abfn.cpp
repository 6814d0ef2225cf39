// arccos x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

// asin(x) - x = q + r for abs(x) <= 1/2, q the rounded x^3/6 (s09aazn.cpp).
void s09aazn(double x, double& q, double& r);

namespace {

// pi/2 and pi as hi + lo (mpmath, 50 digits).
constexpr double kPio2Hi = 1.5707963267948966;
constexpr double kPio2Lo = 6.123233995736766e-17;
constexpr double kPiHi = 3.141592653589793;
constexpr double kPiLo = 1.2246467991473532e-16;

}  // namespace

// abs(x) <= 1/2: acos x = pi/2 - asin x, with pi/2 - x - x^3/6 summed
// exactly. Above, with z = (1 - abs x)/2 and s = sqrt z (carried as hi + lo
// from the exact remainder z - s^2, the low part entering as sl (1 + z/2)):
// acos x = 2 asin(s) for x > 0, pi - 2 asin(s) for x < 0.
double s09abfn(double x, char* errbuf, int& ifail) {
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
    if (a < x02ajfn()) return kPio2Hi + (kPio2Lo - x);  // x^3/6 is far below
    s09aazn(x, q, r);
    const zeb::dd::dd h = zeb::dd::two_sum(kPio2Hi, -x);
    const zeb::dd::dd h2 = zeb::dd::two_sum(h.hi, -q);
    return h2.hi + (((h.lo + h2.lo) + kPio2Lo) - r);
  }
  const double z = 0.5 * (1.0 - a);  // exact for abs x in [1/2, 1]
  const double sh = std::sqrt(z);
  const zeb::dd::dd sq = zeb::dd::two_prod(sh, sh);
  const double sl = sh > 0.0 ? ((z - sq.hi) - sq.lo) / (2.0 * sh) : 0.0;
  s09aazn(sh, q, r);
  const double tail = sl * (1.0 + 0.5 * z) + r;  // asin(s) - sh - q
  if (x > 0.0) {
    const zeb::dd::dd s = zeb::dd::fast_two_sum(2.0 * sh, 2.0 * q);
    return s.hi + (s.lo + 2.0 * tail);
  }
  const zeb::dd::dd h = zeb::dd::two_sum(kPiHi, -2.0 * sh);
  const zeb::dd::dd h2 = zeb::dd::two_sum(h.hi, -2.0 * q);
  return h2.hi + (((h.lo + h2.lo) + kPiLo) - 2.0 * tail);
}
