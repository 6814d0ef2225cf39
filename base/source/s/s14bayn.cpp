// phi(mu) = mu - ln(1+mu) >= 0 for mu > -1, as hi + lo with full relative
// accuracy also where it is small: the exponent of the factors
// x^a e^-x / gamma(a+1) and x^a y^b / B(a,b), which are formed as
// exp(-a phi(x/a - 1) ...) so that their error grows with a phi rather
// than with a ln x.
//   |mu| <= 1/2: with u = mu/(2+mu), ln(1+mu) = 2 atanh(u), so
//     phi = mu u - 2 u^3 (1/3 + u^2/5 + u^4/7 + ...), |u| <= 1/3;
//   otherwise mu - ln(1+mu) with 1 + mu and the logarithm in double-double.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"

zeb::dd::dd s14bayn(double mu) {
  using namespace zeb::dd;
  if (std::fabs(mu) <= 0.5) {
    const dd u = div(dd{mu, 0.0}, two_sum(2.0, mu));
    const double w = u.hi * u.hi;
    // 2u^3 (1/3 + w/5 + ... + w^19/41): w <= 1/9, the next term is below
    // 2^-66. The leading 2u^3/3, up to a seventh of phi, in double-double;
    // the rest, below 1/15 of it, in double, where its rounding is below
    // 2^-57 of phi.
    double s = 1.0 / 41;
    for (int k = 19; k >= 2; --k) s = s * w + 1.0 / (2 * k + 1);
    const dd u3 = mul(mul(u, u), u);
    const dd lead = div(mul(u3, 2.0), 3.0);
    return sub(sub(mul(u, mu), lead), dd{2.0 * u.hi * w * w * s, 0.0});
  }
  return sub(dd{mu, 0.0}, zeb::dd::log(two_sum(1.0, mu)));
}
