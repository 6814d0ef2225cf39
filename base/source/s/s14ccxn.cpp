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
// term is Q(b, u) or P(b, u) (s14bafn); each later one is smaller by about
// ((b+2n)/(2 pi T))^2 and by (ln x / (2 pi))^2: the series of psi converges
// for s < 2 pi only, so the expansion is asymptotic, and it is taken only
// where -ln x <= 1 and b is moderate (s14cczn). The smaller of the two tails
// is summed; the other is 1 less it. w = I_x(a, b), w1 = 1 - I_x(a, b).
#include <cmath>

#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_bernoulli.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::s::kBern;
// Terms of the expansion: with -ln x <= 1 and b <= 30 (s14cczn) the n-th
// is below about (b/24)^n/n! + (2 pi)^-2n of the first, under 1e-19 by n = 22.
constexpr int kN = zeb::s::kNBern;

}  // namespace

void s14ccxn(double a, double b, double x, double& w, double& w1) {
  const double eps = x02ajfn();
  double u = 0.0;
  double pref = 0.0;
  {
    // Gamma(a+b) / (Gamma(a) T^b) = exp((a - 1/2) ln(1 + b/a)
    //   + b ln((a+b)/T) - b + D(a+b) - D(a)), T = a + (b-1)/2, in extended
    // precision: (a - 1/2) ln(1 + b/a) is near b, and (a+b)/T =
    // 1 + (b+1)/(2T); both logarithms near 0 come from phi (s14cbxn).
    zeb::ext::Precision guard(a, b, x);
    using zeb::ext::ld;
    const ld la = a;
    const ld lb = b;
    const ld t = la + 0.5L * (lb - 1.0L);
    const ld r1 = lb / la;
    const ld r2 = 0.5L * (lb + 1.0L) / t;
    const ld l1 = r1 - s14cbxn(r1, 1.0L + r1);
    const ld l2 = r2 - s14cbxn(r2, 1.0L + r2);
    const ld e = ((la - 0.5L) * l1 + lb * l2 - lb) + (s14cbvn(la + lb) - s14cbvn(la));
    u = static_cast<double>(-t * s14cbyn(x));  // ln x < 0, its own digits near 1
    pref = static_cast<double>(s14cbwn(e));
    guard.release(u, pref);
  }
  const double tsq = a + 0.5 * (b - 1.0);

  // c_n: psi = exp((b-1) sum_k l_k w^k), w = s^2, l_k = b_k / (2k), so that
  // n c_n = (b-1) sum_k k l_k c_(n-k) = ((b-1)/2) sum_k b_k c_(n-k). Each is
  // built as the sum reaches it: the sum stops after a few terms for most
  // arguments.
  double c[kN + 1];
  c[0] = 1.0;
  const double hb = 0.5 * (b - 1.0);
  auto coef = [&](int n) {
    double acc = 0.0;
    for (int k = 1; k <= n; ++k) acc += kBern[k - 1] * c[n - k];
    c[n] = hb * acc / n;
  };

  char eb[zeb::errbuf_len];
  int fail = 0;
  double p = 0.0;
  double q = 0.0;
  s14bafn(b, u, 0.0, p, q, eb, fail);
  // u^b e^-u / Gamma(b), the start of the recurrences.
  const double lg = s14abfn(b, eb, fail);
  const double r0 = u > 0.0 ? std::exp(b * std::log(u) - u - lg) : 0.0;
  const double it2 = 1.0 / (tsq * tsq);

  double sum = 0.0;
  if (q <= 0.5) {
    // I small: Gamma(b+2n, u)/Gamma(b) by the upward recurrence
    // G_(n+1) = s(s+1) G_n + u^s e^-u (s+1+u) / Gamma(b), s = b + 2n.
    double g = q;
    double r = r0;
    double tn = 1.0;
    for (int n = 0; n <= kN; ++n) {
      if (n > 0) coef(n);
      const double term = c[n] * tn * g;
      sum += term;
      if (n > 0 && std::fabs(term) <= eps * std::fabs(sum)) break;
      const double sv = b + 2.0 * n;
      g = sv * (sv + 1.0) * g + r * (sv + 1.0 + u);
      r *= u * u;
      tn *= it2;
    }
    w = pref * sum;
    w1 = 1.0 - w;
  } else {
    // 1 - I small: gamma(b+2n, u)/Gamma(b) from its series
    // u^s e^-u / Gamma(b) sum_k u^k / (s (s+1) ... (s+k)), all terms positive.
    double r = r0;
    double tn = 1.0;
    for (int n = 0; n <= kN; ++n) {
      double g = p;
      if (n > 0) {
        coef(n);
        const double sv = b + 2.0 * n;
        double term = 1.0 / sv;
        double ser = term;
        for (int k = 1; k < 2000; ++k) {
          term *= u / (sv + k);
          ser += term;
          if (term <= eps * ser) break;
        }
        g = r * ser;
      }
      const double tt = c[n] * tn * g;
      sum += tt;
      if (n > 0 && std::fabs(tt) <= eps * std::fabs(sum)) break;
      r *= u * u;
      tn *= it2;
    }
    w1 = pref * sum;
    w = 1.0 - w1;
  }
}
