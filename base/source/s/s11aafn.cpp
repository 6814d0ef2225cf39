// artanh x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

// atanh(x) - x for x^2 <= 1/2 (s11aazn.cpp).
double s11aazn(double x);

// x^2 <= 0.5: x + x^3/3 + x^5 S(x^2). Above: (1/2) ln q, q the rounded quotient
// (1 + a)/(1 - a), a = abs x. With 1 - a exact and 1 + a as hi + lo, the
// remainder e = (1 + a) - q (1 - a) is exact, and the true quotient
// q + e/(1 - a) enters as ln q + e/(1 + a), a correction of an ulp or so.
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
    // Also a NaN, which passes through. Below x02ajf, atanh x = x + x^3/3
    // rounds to x (and x^2 would underflow).
    if (a < x02ajfn()) return x;
    return x + s11aazn(x);
  }
  const double d = 1.0 - a;  // exact for a in [1/2, 1]
  const zeb::dd::dd n = zeb::dd::two_sum(1.0, a);
  const double q = n.hi / d;
  const zeb::dd::dd qd = zeb::dd::two_prod(q, d);
  const double e = ((n.hi - qd.hi) - qd.lo) + n.lo;  // (1 + a) - q d, exact
  // e/(1 + a) needs a few bits only: 1/(2 - d) = (1 + d/2 + d^2/4)/2 to 1/600
  // for d = 1 - a <= 0.293.
  return std::copysign(0.5 * (std::log(q) + e * (0.5 + d * (0.25 + d * 0.125))), x);
}
