// ln(x^a y^b / B(a, b)), y = 1 - x given apart, in x87 extended precision:
// the factor of the incomplete beta function.
// Both a and b of 12 or more: with x0 = a/(a+b), y0 = b/(a+b) and Stirling's
// formula with its correction D (s14cbvn),
//   x^a y^b / B(a, b) = sqrt(a b / (2 pi (a+b)))
//                       exp(-a phi(x/x0 - 1) - b phi(y/y0 - 1) - D(a) - D(b) + D(a+b)),
// phi(mu) = mu - ln(1+mu) >= 0 (s14cbxn): a ln(x/x0) + b ln(y/y0) =
// -a phi - b phi because a (x/x0 - 1) + b (y/y0 - 1) = 0. The large terms
// a ln x and ln B(a,b) never meet, so the error grows with a phi + b phi,
// not with a ln x. x/x0 - 1 = (x b - y a)/a, from exact products while
// they stay in range.
// Otherwise a ln x + b ln y - ln B(a, b) (s14cbun): with the smaller of a
// and b below 12 the terms are no larger than a few times ln of the larger.
// Needs a, b > 0, 0 < x, y <= 1, and the 64-bit precision control held by
// the caller.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

ld s14ccwn(double a, double b, double x, double y) {
  constexpr ld kHalfLn2Pi = 0.918938533204672741780329736405617639861L;
  if (std::fmin(a, b) < 12.0) {
    return (a * s14cbyn(x) + b * s14cbyn(y)) - s14cbun(a, b);
  }
  const ld la = a;
  const ld lb = b;
  const ld s = la + lb;
  ld delta = 0.0L;  // x b - y a
  if (std::fmax(a, b) < 0x1p900) {
    const zeb::dd::dd d = zeb::dd::sub(zeb::dd::two_prod(x, b), zeb::dd::two_prod(y, a));
    delta = static_cast<ld>(d.hi) + d.lo;
  } else {
    delta = x * lb - y * la;
  }
  const ld p1 = s14cbxn(delta / la, x * s / la);
  const ld p2 = s14cbxn(-delta / lb, y * s / lb);
  const ld d = s14cbvn(s) - (s14cbvn(la) + s14cbvn(lb));
  const ld h = 0.5L * s14cbyn(la * lb / s) - kHalfLn2Pi;
  return ((h - la * p1) - lb * p2) + d;
}
