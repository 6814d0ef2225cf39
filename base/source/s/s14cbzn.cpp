// ln B(a, b) = ln gamma(a) + ln gamma(b) - ln gamma(a+b) for a, b > 0 with
// a + b finite; NaN for other arguments. From Stirling's formula with its
// correction D (s14ahzn, s14ahyn), exact for all positive arguments:
//   ln B = (1/2) ln(2 pi) - (1/2) ln(a+b) - (a - 1/2) ln((a+b)/a)
//          - (b - 1/2) ln((a+b)/b) + D(a) + D(b) - D(a+b),
// each term in double-double, so that the large ones cancel without loss
// when a and b are large and the small ratio keeps its digits when one is
// much smaller than the other.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"

namespace {

constexpr double kHalfLn2PiHi = 0.9189385332046728;
constexpr double kHalfLn2PiLo = -3.8782941580672414e-17;

zeb::dd::dd stirling_d(double x) { return x < 15.0 ? s14ahzn(x) : s14ahyn(x); }

}  // namespace

double s14cbzn(double a, double b) {
  using namespace zeb::dd;
  if (!(a > 0.0) || !(b > 0.0) || !std::isfinite(a + b)) return NAN;
  if (std::fmax(a, b) > 0x1p900) {
    // Beyond the range of the exact products. With A the larger argument,
    // (A - 1/2) ln(1 + B/A) is near B and needs no more than double; the
    // rest is carried in double-double as below, unless B is huge too, when
    // nothing cancels.
    const double big = std::fmax(a, b);
    const double sml = std::fmin(a, b);
    const dd d = sub(add(stirling_d(big), stirling_d(sml)), stirling_d(big + sml));
    if (sml > 0x1p900) {
      const double s = big + sml;
      return kHalfLn2PiHi - 0.5 * std::log(s) - (big - 0.5) * std::log1p(sml / big) -
             (sml - 0.5) * std::log1p(big / sml) + (d.hi + d.lo);
    }
    const dd s = two_sum(big, sml);
    dd ls = zeb::dd::log(s);
    ls.hi *= -0.5;
    ls.lo *= -0.5;
    dd r = add(dd{kHalfLn2PiHi, kHalfLn2PiLo}, ls);
    r = sub(r, mul(two_sum(sml, -0.5), zeb::dd::log(div(s, sml))));
    r = add(r, -(big - 0.5) * std::log1p(sml / big));
    r = add(r, d);
    return r.hi + r.lo;
  }
  const dd s = two_sum(a, b);
  const dd l1 = zeb::dd::log(div(s, a));  // ln((a+b)/a)
  const dd l2 = zeb::dd::log(div(s, b));  // ln((a+b)/b)
  dd ls = zeb::dd::log(s);
  ls.hi *= -0.5;
  ls.lo *= -0.5;
  dd r = add(dd{kHalfLn2PiHi, kHalfLn2PiLo}, ls);
  r = sub(r, mul(two_sum(a, -0.5), l1));
  r = sub(r, mul(two_sum(b, -0.5), l2));
  r = add(r, stirling_d(a));
  r = add(r, stirling_d(b));
  r = sub(r, stirling_d(s.hi));
  return r.hi + r.lo;
}
