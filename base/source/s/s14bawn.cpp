// The continued fraction of the upper incomplete gamma function,
//   f = 1/(b_0 + a_1/(b_1 + a_2/(b_2 + ...))),
//   a_k = k (a - k),  b_k = x + 2k + 1 - a,
// so that Q(a, x) = a x^a e^-x / gamma(a+1) f, summed by the three-term
// recurrence of its convergents A_k/B_k in extended precision: no division
// in the chain of dependent steps, and roundings at the level of the
// format's. B_k grows like a factorial; a rare rescaling keeps it in range.
// The sum stops once a convergent moves the value by at most eps of it, and
// with fine < eps goes on while the moves exceed fine of it, the last of
// which are cheap, the fraction converging geometrically there. met tells
// whether the eps test was passed within the steps 0 .. maxit. Needs the
// 64-bit precision control (zeb::ext::Precision) held by the caller.
#include <cmath>

#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

ld s14bawn(ld a, ld x, ld eps, ld fine, int maxit, bool& met) {
  ld ap = 1.0L;  // A_(k-1)
  ld bp = 0.0L;  // B_(k-1)
  ld ac = 0.0L;  // A_k
  ld bc = 1.0L;  // B_k
  ld fprev = 0.0L;
  ld f = 0.0L;
  met = false;
  for (int k = 0; k <= maxit; ++k) {
    // Step k: numerator a_k (1 for k = 0), denominator b_k.
    const ld ak = k == 0 ? 1.0L : k * (a - k);
    const ld bk = (x - a) + (2 * k + 1);
    const ld an = bk * ac + ak * ap;
    const ld bn = bk * bc + ak * bp;
    ap = ac;
    bp = bc;
    ac = an;
    bc = bn;
    f = ac / bc;
    const ld d = std::fabs(f - fprev);
    if (d <= eps * f) met = true;
    if (met && d <= fine * f) break;
    fprev = f;
    if (std::fabs(bc) > 0x1p8000L) {
      ap *= 0x1p-8000L;
      bp *= 0x1p-8000L;
      ac *= 0x1p-8000L;
      bc *= 0x1p-8000L;
    }
  }
  return f;
}
