// The incomplete gamma functions P(a, x) = gamma(a, x)/Gamma(a) and
// Q(a, x) = 1 - P(a, x), by Gautschi's method with Temme's uniform expansion
// near the transition:
//   a >= 20 and 0.7 a <= x <= 1.4 a: s14bazn for the smaller tail;
//   else with alpha = x + 1/4 (x >= 1/4) or -ln 2/ln x:
//     a > alpha:            the series of P, terms x/(a+k);
//     a <= alpha, x > 1.5:  the continued fraction of Q (Legendre's, run by
//                           the recurrence of its convergents);
//     a <= alpha, x <= 1.5: Q from the Taylor series of gamma(a, x), with
//                           1/gamma(1+a) from its Taylor polynomial for
//                           a <= 1/2 and from s14aafn above.
// Each series stops at a term below TOL (at least the machine precision)
// times its sum, and gives up after 600 terms.
//
// The factor x^a e^-x / gamma(a+1) of the series and the fraction is formed
// as exp(-a phi(x/a) - D(a)) / sqrt(2 pi a), phi(l) = l - 1 - ln l and D the
// correction to Stirling's formula (s14ahzn), for a > 1, so that its error
// grows with a phi rather than with a ln x; below, from ln gamma(a+1).
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

constexpr int kMaxIter = 600;

// 1/gamma(1+a) = 1 + c_2 a + a^2 (c_3 + c_4 a + ... + c_23 a^20): the
// Taylor coefficients c_23 .. c_3 from the highest power, by mpmath at 50
// digits (tools/refdata/fit_s14ba.py); c_23 is -2.058326054e-14 to ten
// digits. Truncation error on (0, 1/2]: 6.4e-22.
constexpr double kRgam[21] = {
    -2.0583260535665066e-14,
    5.100370287454476e-13,
    -3.696805618642206e-12,
    7.782263439905071e-12,
    1.0434267116911005e-10,
    -1.18127457048702e-09,
    5.002007644469223e-09,
    6.116095104481416e-09,
    -2.056338416977607e-07,
    1.133027231981696e-06,
    -1.2504934821426706e-06,
    -2.013485478078824e-05,
    0.0001280502823881162,
    -0.00021524167411495098,
    -0.0011651675918590652,
    0.0072189432466631,
    -0.009621971527876973,
    -0.04219773455554433,
    0.16653861138229148,
    -0.04200263503409524,
    -0.6558780715202539,
};
constexpr double kEuler = 0.5772156649015329;  // c_2

constexpr double kLn2 = 0.6931471805599453;
constexpr double kHalfLn2PiHi = 0.9189385332046728;
constexpr double kHalfLn2PiLo = -3.8782941580672414e-17;

// ln(x^a e^-x / gamma(a+1)) as hi + lo, so that the exponential of it is
// right to about an ulp whatever the size of the terms that make it up.
zeb::dd::dd log_factor(double a, double x, double lgam1) {
  using namespace zeb::dd;
  if (a <= 1.0) {
    dd r = mul(zeb::dd::log(x), a);
    r = add(r, -x);
    return add(r, -lgam1);
  }
  // phi(lambda) = lambda - 1 - ln(lambda), lambda = x/a: near 1 as phi(mu)
  // of mu = (x - a)/a, x - a being exact within a factor 2 of a; away from
  // 1 directly, with lambda and its logarithm in double-double.
  const dd lam = div(dd{x, 0.0}, a);
  dd phi;
  if (std::fabs(lam.hi - 1.0) <= 0.5) {
    phi = s14bayn((x - a) / a);
  } else {
    phi = sub(add(lam, -1.0), zeb::dd::log(lam));
  }
  const dd d = a < 15.0 ? s14ahzn(a) : s14ahyn(a);
  dd r = neg(mul(phi, a));
  r = sub(r, d);
  r = add(r, dd{-kHalfLn2PiHi, -kHalfLn2PiLo});
  dd la = zeb::dd::log(a);
  la.hi *= -0.5;
  la.lo *= -0.5;
  return add(r, la);
}

// exp of hi + lo.
double exp_dd(zeb::dd::dd v) {
  const double e = std::exp(v.hi);
  return e + e * v.lo;
}

}  // namespace

void s14bafn(double a, double x, double tol, double& p, double& q, char* errbuf,
             int& ifail) {
  zeb::errbuf_clear(errbuf);
  p = 0.0;
  q = 0.0;
  if (!(a > 0.0)) {  // a NaN fails here too
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E12.4)", {1, 99999, 1, a});
    zeb::errbuf_close(errbuf, 1, ifail);
    return;
  }
  if (!(x >= 0.0)) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E12.4)", {2, 99998, 1, x});
    zeb::errbuf_close(errbuf, 2, ifail);
    return;
  }
  if (x == 0.0) {
    q = 1.0;
    zeb::errbuf_close(errbuf, 0, ifail);
    return;
  }
  double eps = x02ajfn();
  if (eps < 1e-18) eps = 1e-18;
  if (tol > eps && tol <= 1.0) eps = tol;

  if (a >= 20.0 && 0.7 * a <= x && x <= 1.4 * a) {
    const double t = s14bazn(a, x, eps);
    if (x >= a) {
      q = t;
      p = 1.0 - t;
    } else {
      p = t;
      q = 1.0 - t;
    }
    zeb::errbuf_close(errbuf, 0, ifail);
    return;
  }

  const double alpha = x >= 0.25 ? x + 0.25 : -kLn2 / std::log(x);
  char eb[zeb::errbuf_len];
  int lfail = 0;
  const double lgam1 = s14abfn(a + 1.0, eb, lfail);
  if (lfail == 2) {
    // a + 1 beyond the range of ln gamma: the transition is a step there.
    if (x >= a) {
      p = 1.0;
    } else {
      q = 1.0;
    }
    zeb::errbuf_close(errbuf, 0, ifail);
    return;
  }
  const double lnsafe = std::log(x02amfn());
  int code = 0;

  if (a > alpha) {
    // P = x^a e^-x / gamma(a+1) (1 + x/(a+1) + x^2/((a+1)(a+2)) + ...);
    // the first three terms, which carry most of the sum, in double-double
    // with a + k exact.
    using namespace zeb::dd;
    dd lead{1.0, 0.0};
    dd tk{1.0, 0.0};
    for (int j = 1; j <= 3; ++j) {
      tk = div(mul(tk, x), two_sum(a, static_cast<double>(j)));
      lead = add(lead, tk);
    }
    double term = tk.hi;
    double rest = 0.0;
    int k = 4;
    for (; k <= kMaxIter; ++k) {
      term *= x / (a + k);
      rest += term;
      if (term <= eps * lead.hi) break;
    }
    if (k > kMaxIter) code = 3;
    const double sum = lead.hi + (lead.lo + rest);
    const zeb::dd::dd lf = log_factor(a, x, lgam1);
    if (lf.hi + std::log(sum) <= lnsafe) {
      p = 0.0;
      q = 1.0;
    } else {
      // The sum multiplies outside the exponential, whose argument then
      // carries no more than the factor's own rounding.
      p = sum * exp_dd(lf);
      if (p > 1.0) p = 1.0;
      q = 1.0 - p;
    }
  } else if (x > 1.5) {
    if (x + 1.0 - a > 1.0 / std::sqrt(x02amfn())) {
      p = 1.0;
      q = 0.0;
    } else {
      // Q = a x^a e^-x / gamma(a+1) f, f = 1/(b_0 + a_1/(b_1 + a_2/(b_2 + ...))),
      // a_k = k(a-k), b_k = x + 2k + 1 - a. Gautschi's recurrence sums the
      // fraction, brought to the form (1/b_0) / (1 + c_1/(1 + c_2/(...))),
      // c_k = a_k / (b_(k-1) b_k), as 1 + t_1 + t_2 + ..., t_k = r_k t_(k-1),
      // r_k = -c_k (1 + r_(k-1)) / (1 + c_k (1 + r_(k-1))), and says how
      // deep the fraction must go; the value is then taken by evaluating the
      // fraction from that depth backwards, which does not gather the
      // roundings of the terms as the forward sum does where it converges
      // slowly (x near a, both small).
      double bprev = x + 1.0 - a;  // b_0 >= 3/4
      double r = 0.0;
      double t = 1.0;
      double sum = 1.0;
      int k = 1;
      for (; k <= kMaxIter; ++k) {
        const double bk = x + 2.0 * k + 1.0 - a;
        const double ck = k * (a - k) / (bprev * bk);
        const double h = ck * (1.0 + r);
        r = -h / (1.0 + h);
        t *= r;
        sum += t;
        bprev = bk;
        if (std::fabs(t) <= eps * sum) break;
      }
      const int depth = (k > kMaxIter ? kMaxIter : k) + 2;
      double v = x + 2.0 * depth + 1.0 - a;
      for (int j = depth; j >= 1; --j) v = (x + 2.0 * j - 1.0 - a) + j * (a - j) / v;
      const double f = 1.0 / v;
      if (k > kMaxIter) code = 3;
      // Below the smallest normal number Q comes back gradually underflowed.
      q = (a * f) * exp_dd(log_factor(a, x, lgam1));
      if (q > 1.0) q = 1.0;
      p = 1.0 - q;
    }
  } else {
    // Q = (1 - G) - G expm1(a ln x) - x^a G T, G = 1/gamma(1+a),
    // T = a sum_{k>=1} (-x)^k / (k! (a+k)): the parts that cancel against 1
    // are formed apart, and the three terms, which cancel to a value as
    // small as a tenth of theirs, are carried in double-double; so are the
    // first two terms of the series.
    using namespace zeb::dd;
    dd g;
    dd gm1;  // G - 1
    if (a <= 0.5) {
      double poly = kRgam[0];
      for (int j = 1; j < 21; ++j) poly = poly * a + kRgam[j];
      gm1 = add(two_prod(a, kEuler), (a * a) * poly);
      g = add(gm1, 1.0);
    } else {
      int gfail = 0;
      g = recip(dd{s14aafn(1.0 + a, eb, gfail), 0.0});
      gm1 = add(g, -1.0);
    }
    dd t = div(dd{-x, 0.0}, two_sum(a, 1.0));
    t = add(t, div(mul(two_prod(x, x), 0.5), two_sum(a, 2.0)));
    double c = 0.5 * x * x;  // (-x)^k / k!
    double rest = 0.0;
    int k = 3;
    for (; k <= kMaxIter; ++k) {
      c *= -x / k;
      const double term = c / (a + k);
      rest += term;
      if (std::fabs(term) <= eps * std::fabs(t.hi)) break;
    }
    if (k > kMaxIter) code = 3;
    t = mul(add(t, rest), a);
    const dd alx = mul(zeb::dd::log(x), a);
    const double em1h = std::expm1(alx.hi);
    const dd em1 = fast_two_sum(em1h, alx.lo * (1.0 + em1h));  // x^a - 1
    const dd xa = add(em1, 1.0);
    dd qq = neg(gm1);
    qq = sub(qq, mul(g, em1));
    qq = sub(qq, mul(mul(xa, g), t));
    q = qq.hi + qq.lo;
    if (q < 0.0) q = 0.0;
    p = 1.0 - q;
  }
  if (code == 3) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {3, 99997, 1, kMaxIter});
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
