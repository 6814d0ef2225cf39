// ln B(a, b) in x87 extended precision for a, b > 0 with a + b finite, for
// s14cbzn and the factor of the incomplete beta function. With A the larger
// argument and B the smaller, s = A + B, and D the correction to Stirling's
// formula (s14cbvn, for arguments of 12 and more):
//   B >= 12:  ln B = (1/2) ln(2 pi) - (1/2) ln s - (B - 1/2) ln(s/B)
//                    - (A - 1/2) ln(1 + B/A) + D(A) + D(B) - D(s),
//             every large term formed from a ratio, so that nothing large
//             cancels when A and B are large or B/A is small;
//   B < 12:   ln gamma(B) from z_B = B + n_B >= 12 by Stirling's formula and
//             the product P_B = B (B+1) ... (B+n_B-1), and
//             ln gamma(A) - ln gamma(s) from z = A + n (n = 0 when A >= 12)
//             as -(z - 1/2) ln(1 + B/z) - B ln(z + B) + B + D(z) - D(z+B)
//             less ln(P_A / P_s), the products of the same n factors from A
//             and from s; the three products share one logarithm.
// Needs the 64-bit precision control held by the caller.
#include <cmath>

#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

namespace {

constexpr ld kHalfLn2Pi = 0.918938533204672741780329736405617639861L;
constexpr double kX0 = 12.0;

// ln(1 + t) for 0 < t <= 1 as t - phi(t).
ld log1p_ext(ld t) { return t - s14cbxn(t, 1.0L + t); }

}  // namespace

ld s14cbun(double a, double b) {
  const ld big = a > b ? a : b;
  const ld sml = a > b ? b : a;
  const ld s = big + sml;
  if (sml >= kX0) {
    const ld l1 = log1p_ext(sml / big);
    const ld ls = s14cbyn(s);
    const ld l2 = s14cbyn(s / sml);
    const ld d = (s14cbvn(big) + s14cbvn(sml)) - s14cbvn(s);
    return ((kHalfLn2Pi - 0.5L * ls) - (sml - 0.5L) * l2 - (big - 0.5L) * l1) + d;
  }
  // ln gamma(B) = (z_B - 1/2) ln z_B - z_B + (1/2) ln(2 pi) + D(z_B) - ln P_B.
  // n_B = ceil(12 - B) >= 1.
  const double rb = kX0 - static_cast<double>(sml);
  int nb = static_cast<int>(rb);
  if (nb < rb) ++nb;
  const ld zb = sml + nb;
  ld prod = 1.0L;  // P_A P_B / P_s
  for (int k = 0; k < nb; ++k) prod *= sml + k;
  int n = 0;
  if (big < kX0) {
    const double r = kX0 - static_cast<double>(big);
    n = static_cast<int>(r);
    if (n < r) ++n;
    ld pa = 1.0L;
    ld ps = 1.0L;
    for (int k = 0; k < n; ++k) {
      pa *= big + k;
      ps *= s + k;
    }
    prod *= pa / ps;
  }
  const ld z = big + n;
  const ld zs = z + sml;
  const ld lgb = (zb - 0.5L) * s14cbyn(zb) - zb + kHalfLn2Pi;
  const ld diff = sml - (z - 0.5L) * log1p_ext(sml / z) - sml * s14cbyn(zs);
  const ld d = (s14cbvn(zb) + s14cbvn(z)) - s14cbvn(zs);
  return ((lgb + diff) - s14cbyn(prod)) + d;
}
