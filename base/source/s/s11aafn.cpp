// artanh x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"

// atanh(x) - x = q + r for x^2 <= 1/2, q the rounded x^3/3 (s11aazn.cpp).
void s11aazn(double x, double& q, double& r);

// x^2 <= 0.5: x + x^3/3 + x^5 S(x^2), the first two terms in double-double.
// Above: (1/2) ln q, q the rounded quotient
// (1 + a)/(1 - a), a = abs x. With 1 - a exact and 1 + a as hi + lo, the
// remainder e = (1 + a) - q (1 - a) is exact, and the true quotient
// q + e/(1 - a) enters as ln q + e/(1 + a).
double s11aafn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double a = std::fabs(x);
  if (a >= 1.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  const double u = x * x;
  if (!(u > 0.5)) {
    // Also a NaN, which passes through.
    double q = 0.0;
    double r = 0.0;
    s11aazn(x, q, r);
    const zeb::dd::dd s = zeb::dd::fast_two_sum(x, q);
    return s.hi + (s.lo + r);
  }
  const double d = 1.0 - a;  // exact for a in [1/2, 1]
  const zeb::dd::dd n = zeb::dd::two_sum(1.0, a);
  const double q = n.hi / d;
  const zeb::dd::dd qd = zeb::dd::two_prod(q, d);
  const double e = ((n.hi - qd.hi) - qd.lo) + n.lo;  // (1 + a) - q d, exact
  return std::copysign(0.5 * (std::log(q) + e / n.hi), x);
}
