// ln B(a, b) = ln gamma(a) + ln gamma(b) - ln gamma(a+b) for a, b > 0 with
// a + b finite; NaN for other arguments. The sum is formed in x87 extended
// precision by s14cbun, from Stirling's formula with every large term taken
// from a ratio, so that what cancels costs no digits of the double result.
// ln B(1, b) = -ln b is taken directly, so that ln B(1, 1) is 0 exactly.
#include <cmath>

#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

double s14cbzn(double a, double b) {
  if (!(a > 0.0) || !(b > 0.0) || !std::isfinite(a + b)) return NAN;
  zeb::ext::Precision guard(a, b);
  double r = 0.0;
  if (a == 1.0 || b == 1.0) {
    r = static_cast<double>(-s14cbyn(a == 1.0 ? b : a));
  } else {
    r = static_cast<double>(s14cbun(a, b));
  }
  guard.release(r);
  return r;
}
