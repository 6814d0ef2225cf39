// ln(x^a y^b / B(a, b)), y = 1 - x given apart, as hi + lo: the factor of
// the incomplete beta function. With x0 = a/(a+b), y0 = b/(a+b) and
// Stirling's formula with its correction D (s14ahzn, s14ahyn),
//   x^a y^b / B(a, b) = sqrt(a b / (2 pi (a+b)))
//                       exp(-a phi(x/x0) - b phi(y/y0) - D(a) - D(b) + D(a+b)),
// phi(l) = l - 1 - ln l >= 0: a ln(x/x0) + b ln(y/y0) = -a phi - b phi
// because a (x/x0 - 1) + b (y/y0 - 1) = 0. The large terms a ln x and
// ln B(a,b) never meet, so the error grows with a phi + b phi, not with
// a ln x. x/x0 - 1 = (x b - y a)/a is formed from exact products.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"

namespace {

using zeb::dd::dd;

constexpr double kHalfLn2PiHi = 0.9189385332046728;
constexpr double kHalfLn2PiLo = -3.8782941580672414e-17;

dd stirling_d(double x) { return x < 15.0 ? s14ahzn(x) : s14ahyn(x); }

// phi(l) for l = 1 + mu = x (a+b)/a, given mu as hi + lo and x, s = a+b, a.
dd phi(dd mu, double x, dd s, double a) {
  using namespace zeb::dd;
  if (std::fabs(mu.hi) <= 0.5) return s14bayn(mu.hi + mu.lo);
  const dd l = div(mul(s, x), a);  // 1 + mu with its own digits when mu ~ -1
  return sub(add(l, -1.0), zeb::dd::log(l));
}

}  // namespace

dd s14ccyn(double a, double b, double x, double y) {
  using namespace zeb::dd;
  if (std::fmax(a, b) > 0x1p900) {
    // Beyond the range of the exact products: in double.
    const double lb = s14cbzn(a, b);
    return {a * std::log(x) + b * std::log(y) - lb, 0.0};
  }
  const dd s = two_sum(a, b);
  const dd delta = sub(two_prod(x, b), two_prod(y, a));  // x b - y a
  const dd mu1 = div(delta, a);
  const dd mu2 = div(neg(delta), b);
  dd r = neg(mul(phi(mu1, x, s, a), a));
  r = sub(r, mul(phi(mu2, y, s, b), b));
  r = sub(r, stirling_d(a));
  r = sub(r, stirling_d(b));
  r = add(r, stirling_d(s.hi));
  // (1/2) ln(a b / (a+b)) - (1/2) ln(2 pi)
  dd h = zeb::dd::log(div(two_prod(a, b), s));
  h.hi *= 0.5;
  h.lo *= 0.5;
  r = add(r, h);
  return sub(r, dd{kHalfLn2PiHi, kHalfLn2PiLo});
}
