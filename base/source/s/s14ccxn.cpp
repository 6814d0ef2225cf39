// The incomplete beta function for a large against b (a >= 100, b <= a/20,
// b <= 30, x >= 1/e) by its expansion in incomplete gamma functions.
// With x = e^-s,
//   I_x(a, b) = (1/B(a,b)) int_{-ln x}^inf e^{-T s} s^{b-1} psi(s) ds,
//   T = a + (b-1)/2,  psi(s) = (sinh(s/2)/(s/2))^(b-1) = sum_n c_n s^2n,
// so that, with u = -T ln x,
//   I_x(a, b) = Gamma(a+b)/(Gamma(a) T^b) sum_n c_n T^-2n Gamma(b+2n, u)/Gamma(b),
//   1 - I_x(a, b) = the same sum with gamma(b+2n, u) in place of Gamma(b+2n, u).
// ln(sinh(t)/t) gives ln psi = (b-1) sum_k B_2k s^2k / (2k (2k)!), and the
// c_n follow by the recurrence of the exponential of a series. The first
// term is Q(b, u) or P(b, u); each later one is smaller by about
// ((b+2n)/(2 pi T))^2 and by (ln x / (2 pi))^2: the series of psi converges
// for s < 2 pi only, so the expansion is asymptotic, and it is taken only
// where -ln x <= 1 and b is moderate (s14cczn). The smaller of the two tails
// is summed; the other is 1 less it. w = I_x(a, b), w1 = 1 - I_x(a, b).
//
// Everything runs in the x87 extended format and w and w1 are each rounded
// once from it: u, the prefactor and the first term P(b, u) or Q(b, u) are
// the largest parts of the error, and each is kept to a few units of 2^-64.
// The first term comes from the series of P (u <= max(b, 3/2)) or Legendre's
// continued fraction of Q (u above), with the factor u^b e^-u / gamma(b+1)
// formed in extended precision; where b is below u <= 3/2 and Q could be
// small against 1, it comes from s14bafn at u rounded to double, moved to u
// by the first term of Taylor's series.
#include <cmath>

#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_bernoulli.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::ext::ld;
using zeb::s::kBern;
// Terms of the expansion: with -ln x <= 1 and b <= 30 (s14cczn) the n-th
// is below about (b/24)^n/n! + (2 pi)^-2n of the first, under 1e-19 by n = 22.
constexpr int kN = zeb::s::kNBern;

// Terms of the first term's series or fraction before they are given up.
constexpr int kMaxIter = 2000;

// ln gamma(1 + b) for 0 < b <= 30: by Stirling's formula at z = 1 + b + n >= 13,
// less the logarithm of (1+b) (2+b) ... (n+b).
ld lgamma1(ld b) {
  constexpr ld kHalfLn2Pi = 0.918938533204672741780329736405617639861L;
  ld z = 1.0L + b;
  ld prod = 1.0L;
  while (z < 13.0L) {
    prod *= z;
    z += 1.0L;
  }
  const ld lz = (z - 0.5L) * s14cbyn(z) - z + kHalfLn2Pi + s14cbvn(z);
  return prod == 1.0L ? lz : lz - s14cbyn(prod);
}

// P(b, u) and Q(b, u) in extended precision, each with the relative accuracy
// of the smaller, given f = u^b e^-u / gamma(1+b); false where that is not
// assured (b < u <= 3/2, where Q can cancel against 1).
bool gamma_pq(ld b, ld u, ld f, ld& p, ld& q) {
  const ld m = b > 1.5L ? b : 1.5L;
  if (u <= m) {
    // P = f (1 + u/(b+1) + u^2/((b+1)(b+2)) + ...).
    if (u > b) return false;
    ld term = 1.0L;
    ld sum = 1.0L;
    for (int k = 1; k <= kMaxIter; ++k) {
      term *= u / (b + k);
      sum += term;
      if (term <= 0x1p-66L * sum) break;
    }
    p = f * sum;
    if (p > 1.0L) p = 1.0L;
    q = 1.0L - p;
    return true;
  }
  // Q = b f / (u + 1 - b + a_1/(u + 3 - b + a_2/(...))), a_k = k (b - k):
  // the continued fraction of s14bawn, to 2^-66.
  bool met = false;
  const ld g = s14bawn(b, u, 0x1p-66L, 0x1p-66L, kMaxIter, met);
  q = b * f * g;
  if (q > 1.0L) q = 1.0L;
  p = 1.0L - q;
  return true;
}

}  // namespace

void s14ccxn(double a, double b, double x, double& w, double& w1) {
  zeb::ext::Precision guard(a, b, x);
  const ld la = a;
  const ld lb = b;
  const ld t = la + 0.5L * (lb - 1.0L);
  // Gamma(a+b) / (Gamma(a) T^b) = exp((a - 1/2) ln(1 + b/a)
  //   + b ln((a+b)/T) - b + D(a+b) - D(a)): (a - 1/2) ln(1 + b/a) is near
  // b, and (a+b)/T = 1 + (b+1)/(2T); both logarithms near 0 come from phi
  // (s14cbxn).
  const ld r1 = lb / la;
  const ld r2 = 0.5L * (lb + 1.0L) / t;
  const ld l1 = r1 - s14cbxn(r1, 1.0L + r1);
  const ld l2 = r2 - s14cbxn(r2, 1.0L + r2);
  const ld e = ((la - 0.5L) * l1 + lb * l2 - lb) + (s14cbvn(la + lb) - s14cbvn(la));
  const ld pref = s14cbwn(e);
  const ld u = -t * s14cbyn(x);  // ln x < 0, its own digits near 1
  // f = u^b e^-u / gamma(1+b); r0 = b f, the start of the recurrences.
  const ld f = u > 0.0L ? s14cbwn(lb * s14cbyn(u) - u - lgamma1(lb)) : 0.0L;
  const ld r0 = lb * f;

  ld p = 0.0L;
  ld q = 0.0L;
  if (u > 0.0L && !gamma_pq(lb, u, f, p, q)) {
    // P and Q at ud = u rounded, moved to u by dP/du = u^(b-1) e^-u / Gamma(b).
    const double ud = static_cast<double>(u);
    char eb[zeb::errbuf_len];
    int fail = 0;
    double pd = 0.0;
    double qd = 0.0;
    s14bafn(b, ud, 0.0, pd, qd, eb, fail);
    const ld dp = (u - ud) * (r0 / u);
    p = pd + dp;
    q = qd - dp;
  } else if (!(u > 0.0L)) {
    q = 1.0L;
  }

  // c_n: psi = exp((b-1) sum_k l_k w^k), w = s^2, l_k = b_k / (2k), so that
  // n c_n = (b-1) sum_k k l_k c_(n-k) = ((b-1)/2) sum_k b_k c_(n-k). Each is
  // built as the sum reaches it: the sum stops after a few terms for most
  // arguments.
  ld c[kN + 1];
  c[0] = 1.0L;
  const ld hb = 0.5L * (lb - 1.0L);
  auto coef = [&](int n) {
    ld acc = 0.0L;
    for (int k = 1; k <= n; ++k) acc += kBern[k - 1] * c[n - k];
    c[n] = hb * acc / n;
  };
  const ld it2 = 1.0L / (t * t);
  constexpr ld kTol = 0x1p-64L;

  ld sum = 0.0L;
  ld wi = 0.0L;
  ld wj = 0.0L;
  if (q <= 0.5L) {
    // I small: Gamma(b+2n, u)/Gamma(b) by the upward recurrence
    // G_(n+1) = s(s+1) G_n + u^s e^-u (s+1+u) / Gamma(b), s = b + 2n.
    ld g = q;
    ld r = r0;
    ld tn = 1.0L;
    for (int n = 0; n <= kN; ++n) {
      if (n > 0) coef(n);
      const ld term = c[n] * tn * g;
      sum += term;
      if (n > 0 && fabsl(term) <= kTol * fabsl(sum)) break;
      const ld sv = lb + 2.0L * n;
      g = sv * (sv + 1.0L) * g + r * (sv + 1.0L + u);
      r *= u * u;
      tn *= it2;
    }
    wi = pref * sum;
    wj = 1.0L - wi;
  } else {
    // 1 - I small: gamma(b+2n, u)/Gamma(b) from its series
    // u^s e^-u / Gamma(b) sum_k u^k / (s (s+1) ... (s+k)), all terms positive.
    ld r = r0;
    ld tn = 1.0L;
    for (int n = 0; n <= kN; ++n) {
      ld g = p;
      if (n > 0) {
        coef(n);
        const ld sv = lb + 2.0L * n;
        ld term = 1.0L / sv;
        ld ser = term;
        for (int k = 1; k < kMaxIter; ++k) {
          term *= u / (sv + k);
          ser += term;
          if (term <= kTol * ser) break;
        }
        g = r * ser;
      }
      const ld tt = c[n] * tn * g;
      sum += tt;
      if (n > 0 && fabsl(tt) <= kTol * fabsl(sum)) break;
      r *= u * u;
      tn *= it2;
    }
    wj = pref * sum;
    wi = 1.0L - wj;
  }
  w = static_cast<double>(wi);
  w1 = static_cast<double>(wj);
  guard.release(w, w1);
}
