// The incomplete gamma functions P(a, x) = gamma(a, x)/Gamma(a) and
// Q(a, x) = 1 - P(a, x), by Gautschi's method with Temme's uniform expansion
// near the transition:
//   a >= 20 and 0.7 a <= x <= 1.4 a: s14bazn for the smaller tail;
//   else with alpha = x + 1/4 (x >= 1/4) or -ln 2/ln x:
//     a > alpha:            the series of P, terms x/(a+k);
//     a <= alpha, x > 1.5:  the continued fraction of Q (Legendre's, run by
//                           the recurrence of its convergents);
//     a <= alpha, x <= 1.5: Q from the Taylor series of gamma(a, x), with
//                           1/gamma(1+a) from the Taylor polynomial of
//                           1/gamma(1+b), b = a, a - 1 or a - 2.
// Each series stops at a term below TOL (at least the machine precision)
// times its sum, and gives up after 600 terms.
//
// The sums run in the x87 extended format and P and Q are each rounded once
// from it. The factor x^a e^-x / gamma(a+1) of the series and the fraction
// is the extended exponential of a double-double logarithm: for a > 1,
// -a phi(x/a) - D(a) - ln(2 pi a)/2, phi(l) = l - 1 - ln l and D the
// correction to Stirling's formula (s14ahzn), so that its error grows with
// a phi rather than with a ln x; for a <= 1, a ln x - x, times 1/gamma(1+a).
#include <cmath>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::ext::ld;

constexpr int kMaxIter = 600;

// 1/gamma(1+b) = 1 + c_2 b + b^2 (c_3 + c_4 b + ... + c_23 b^20): the
// Taylor coefficients c_23 .. c_3 from the highest power, each as
// hi + lo, by mpmath at 50 digits (tools/refdata/fit_s14ba.py).
// Truncation error on |b| <= 1/2: 3.6e-22.
constexpr double kRgam[21][2] = {
    {-2.0583260535665066e-14, -1.4747481491954336e-30},
    {5.100370287454476e-13, 2.253001461085878e-29},
    {-3.696805618642206e-12, 2.7050034921703885e-28},
    {7.782263439905071e-12, 4.397255556595848e-28},
    {1.0434267116911005e-10, -2.9298419956825035e-27},
    {-1.18127457048702e-09, -1.0052356155716208e-25},
    {5.002007644469223e-09, -1.538123614056751e-26},
    {6.116095104481416e-09, -2.693458298171306e-25},
    {-2.056338416977607e-07, -3.0061601618645134e-24},
    {1.133027231981696e-06, -4.622235212104869e-23},
    {-1.2504934821426706e-06, -2.66214092271898e-23},
    {-2.013485478078824e-05, 3.0488773972037385e-23},
    {0.0001280502823881162, -9.359124499198967e-21},
    {-0.00021524167411495098, 2.3758686180729364e-21},
    {-0.0011651675918590652, 5.659947853880981e-20},
    {0.0072189432466631, -3.6006537063394283e-19},
    {-0.009621971527876973, -5.300031368830263e-19},
    {-0.04219773455554433, -3.3579992682480134e-18},
    {0.16653861138229148, 1.0189144546842026e-17},
    {-0.04200263503409524, 1.4920306285650505e-18},
    {-0.6558780715202539, 2.137185197068536e-17},
};
constexpr double kEuler[2] = {0.5772156649015329, -4.942915152430645e-18};  // c_2

constexpr zeb::ext::Pairs<21> kRgamExt(kRgam);

constexpr double kLn2 = 0.6931471805599453;
constexpr double kHalfLn2PiHi = 0.9189385332046728;
constexpr double kHalfLn2PiLo = -3.8782941580672414e-17;

// Above this a + 1 may lie beyond the range of ln gamma (s14abfn's code 2).
constexpr double kLgamCheck = 1e300;

// 1/gamma(1+a) - 1 and 1/gamma(1+a) for 0 < a <= 7/4 in extended precision:
// 1/gamma(1+b) = 1 + b (c_2 + b poly(b)) on |b| <= 1/2, b = a, a - 1 or
// a - 2 (exact), and 1/gamma(1+a) = 1/gamma(1+b) / (a (a-1) ...).
void rgamma1(double a, ld& gm1, ld& g) {
  const double b = a <= 0.5 ? a : (a <= 1.5 ? a - 1.0 : a - 2.0);
  const ld lb = b;
  const ld poly = zeb::ext::horner<2>(kRgamExt, lb);
  const ld bm1 = lb * ((static_cast<ld>(kEuler[0]) + kEuler[1]) + lb * poly);
  if (a <= 0.5) {
    gm1 = bm1;
    g = 1.0L + bm1;
  } else {
    const ld la = a;
    g = (1.0L + bm1) / (a <= 1.5 ? la : la * (la - 1.0L));
    gm1 = g - 1.0L;
  }
}

// 1/(k+1)! for k = 19 down to 0, rounded once to 64 bits at compile time.
struct InvFact {
  ld c[20];
  constexpr InvFact() : c{} {
    ld f = 1.0L;
    for (int k = 0; k < 20; ++k) {
      f *= static_cast<ld>(k + 1);
      c[19 - k] = 1.0L / f;
    }
  }
};
constexpr InvFact kInvFact;

// e^y - 1 for |y| <= 3/4 as y (1 + y/2! + ... + y^19/20!), the rest below
// 2^-70 of the value.
ld expm1_small(ld y) { return y * zeb::ext::horner<2>(kInvFact.c, y); }

// ln(hi + lo) as a double-double, to the 2^-64 relative accuracy of the
// table-reduced extended logarithm s11aaxn; hi positive, subnormal or not.
zeb::dd::dd ln_dd(double hi, double lo) {
  int k = 0;
  if (hi < 0x1p-1000) {
    hi *= 0x1p100;
    lo *= 0x1p100;
    k = -100;
  }
  const ld l = s11aaxn(hi, lo, k);
  const double h = static_cast<double>(l);
  return {h, static_cast<double>(l - h)};
}

// ln(x^a e^-x / gamma(a+1)) as hi + lo for a > 1, so that the exponential
// of it is right to well below an ulp whatever the size of the terms that
// make it up: exp(-a phi(x/a) - D(a)) / sqrt(2 pi a), phi(l) = l - 1 - ln l
// and D the correction to Stirling's formula, so that its error grows with
// a phi rather than with a ln x.
zeb::dd::dd log_factor(double a, double x) {
  using namespace zeb::dd;
  // phi(lambda) near 1 as phi(mu) of mu = (x - a)/a, x - a being exact
  // within a factor 2 of a: mu is carried as hi + lo, the rounding of
  // mu to double moving a phi by up to a phi 2^-52, and phi(hi + lo) is
  // phi(hi) + lo hi/(1 + hi). Away from 1 directly, with lambda - 1 in
  // double-double.
  const dd lam = div(dd{x, 0.0}, a);
  dd phi;
  if (std::fabs(lam.hi - 1.0) <= 0.5) {
    const dd mu = div(dd{x - a, 0.0}, a);
    phi = add(s14bayn(mu.hi), mu.lo * mu.hi / (1.0 + mu.hi));
  } else {
    phi = sub(add(lam, -1.0), ln_dd(lam.hi, lam.lo));
  }
  const dd d = a < 15.0 ? s14ahzn(a) : s14ahyn(a);
  dd r = neg(mul(phi, a));
  r = sub(r, d);
  r = add(r, dd{-kHalfLn2PiHi, -kHalfLn2PiLo});
  dd la = ln_dd(a, 0.0);
  la.hi *= -0.5;
  la.lo *= -0.5;
  return add(r, la);
}

// x^a e^-x / gamma(a+1) in extended precision, with the logarithm of its
// double part in lnf: for a > 1 from log_factor, for a <= 1 as
// e^(a ln x - x) (the exponent in double-double) times 1/gamma(1+a).
ld factor(double a, double x, double& lnf) {
  zeb::dd::dd v;
  ld g = 1.0L;
  if (a <= 1.0) {
    ld gm1;
    rgamma1(a, gm1, g);
    v = zeb::dd::add(zeb::dd::mul(ln_dd(x, 0.0), a), -x);
  } else {
    v = log_factor(a, x);
  }
  lnf = v.hi;
  const ld e = s14cbwn(v.hi);
  return (e + e * v.lo) * g;
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
  // A TOL of the caller's above the machine precision stops each sum at it,
  // as TOL asks; otherwise the sums go on to (or add) their rest so that
  // the result is right to the last bit.
  const bool full = !(tol > eps && tol <= 1.0);
  if (!full) eps = tol;

  if (a >= 20.0 && 0.7 * a <= x && x <= 1.4 * a) {
    double t = 0.0;
    double u = 0.0;
    s14bazn(a, x, eps, t, u);
    if (x >= a) {
      q = t;
      p = u;
    } else {
      p = t;
      q = u;
    }
    zeb::errbuf_close(errbuf, 0, ifail);
    return;
  }

  const double alpha = x >= 0.25 ? x + 0.25 : -kLn2 / std::log(x);
  if (a > kLgamCheck) {
    // a + 1 beyond the range of ln gamma: the transition is a step there.
    // (The factor below is formed without ln gamma, which is needed only
    // for this test, and below kLgamCheck it always succeeds.)
    char eb[zeb::errbuf_len];
    int lfail = 0;
    (void)s14abfn(a + 1.0, eb, lfail);
    if (lfail == 2) {
      if (x >= a) {
        p = 1.0;
      } else {
        q = 1.0;
      }
      zeb::errbuf_close(errbuf, 0, ifail);
      return;
    }
  }
  int code = 0;
  zeb::ext::Precision guard(a, x);

  if (a > alpha) {
    // P = x^a e^-x / gamma(a+1) (1 + x/(a+1) + x^2/((a+1)(a+2)) + ...),
    // summed in extended precision. Where the terms fall slowly the rest
    // after the last is not small against the ulp of the sum: it is added
    // as the geometric series of the next ratio, which bounds it closely.
    const ld lx = x;
    ld term = 1.0L;
    ld sum = 1.0L;
    int k = 1;
    for (; k <= kMaxIter; ++k) {
      term *= lx / (static_cast<ld>(a) + k);
      sum += term;
      if (term <= eps * sum) break;
    }
    if (k > kMaxIter) {
      code = 3;
    } else if (full) {
      sum += term * lx / ((static_cast<ld>(a) + (k + 1)) - lx);
    }
    double lnf = 0.0;
    const ld f = factor(a, x, lnf);
    if (lnf + std::log(static_cast<double>(sum)) <= std::log(x02amfn())) {
      p = 0.0;
      q = 1.0;
    } else {
      ld pp = f * sum;
      if (pp > 1.0L) pp = 1.0L;
      p = static_cast<double>(pp);
      q = static_cast<double>(1.0L - pp);
    }
  } else if (x > 1.5) {
    if (x + 1.0 - a > 1.0 / std::sqrt(x02amfn())) {
      p = 1.0;
      q = 0.0;
    } else {
      // Q = a x^a e^-x / gamma(a+1) f with f the continued fraction
      // (s14bawn), stopped by TOL, then taken on to 2^-64 where TOL does not
      // cut it short.
      const ld la = a;
      bool met = false;
      const ld eps_l = eps;
      const ld f = s14bawn(la, x, eps_l, full ? 0x1p-64L : eps_l, kMaxIter, met);
      if (!met) code = 3;
      double lnf = 0.0;
      ld qq = la * f * factor(a, x, lnf);
      // Below the smallest normal number Q comes back gradually underflowed.
      if (qq > 1.0L) qq = 1.0L;
      q = static_cast<double>(qq);
      p = static_cast<double>(1.0L - qq);
    }
  } else {
    // Q = -(G - 1) - G (x^a - 1) - x^a G T and P = x^a G (1 + T),
    // G = 1/gamma(1+a), T = a sum_{k>=1} (-x)^k / (k! (a+k)), in extended
    // precision: the parts of Q that cancel against 1 are formed apart.
    ld gm1;
    ld g;
    rgamma1(a, gm1, g);
    const ld la = a;
    const ld lx = x;
    ld c = -lx;  // (-x)^k / k!
    ld t = c / (la + 1.0L);
    int k = 2;
    for (; k <= kMaxIter; ++k) {
      c *= -lx / k;
      const ld term = c / (la + k);
      t += term;
      if (std::fabs(term) <= eps * std::fabs(t)) break;
    }
    if (k > kMaxIter) {
      code = 3;
    } else if (full) {
      // The series alternates with terms falling fast: the next one leaves
      // a rest far below the ulp.
      t += c * (-lx / (k + 1)) / (la + (k + 1));
    }
    t *= la;
    const ld em1 = expm1_small(la * s14cbyn(lx));  // x^a - 1, |a ln x| < 3/4
    const ld xg = (1.0L + em1) * g;
    ld qq = (-gm1 - g * em1) - xg * t;
    if (qq < 0.0L) qq = 0.0L;
    q = static_cast<double>(qq);
    p = static_cast<double>(xg * (1.0L + t));
  }
  guard.release(p, q);
  if (code == 3) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {3, 99997, 1, kMaxIter});
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
