// The incomplete gamma pair against closed forms that long double evaluates
// to a few bits beyond double: Q(1, x) = e^-x, Q(1/2, x) = erfc(sqrt x) and,
// for whole a = n, Q(n, x) = e^-x sum_(k<n) x^k/k!. The arguments cross
// every method of s14bafn (series, continued fraction, Taylor form, Temme's
// expansion), so that each is held to about half an ulp in both P and Q,
// including where one of them lies just below 1 and is formed from the
// other's extended value. Also: a TOL of the caller's above the machine
// precision still gives P and Q within it.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include "zeb_s_ib.h"
#include "ulps.h"

namespace {

using ld = long double;

// |got - ref| in units of the last place of the double nearest ref.
using zeb::test::ulps;

void pair(double a, double x, double tol, double& p, double& q) {
  char eb[200];
  int ifail = 0;
  s14bafn(a, x, tol, p, q, eb, ifail);
  ASSERT_EQ(ifail, 0) << a << " " << x;
}

// The methods' tolerance against closed forms good to ~2^-62.
constexpr double kUlps = 0.55;

TEST(IncompleteGamma, ExponentialAtAEqualOne) {
  // a = 1: the series below x = 3/4 (a > alpha), the Taylor form on
  // [3/4, 3/2] and the fraction above.
  for (double x : {1e-300, 1e-12, 0.01, 0.2, 0.5, 0.7499, 0.75, 1.0, 1.2, 1.5, 1.5000001,
                   2.0, 7.3, 40.0, 700.0}) {
    double p = 0.0;
    double q = 0.0;
    pair(1.0, x, 0.0, p, q);
    const ld lx = x;
    EXPECT_LE(ulps(q, expl(-lx)), kUlps) << x;
    EXPECT_LE(ulps(p, -expm1l(-lx)), kUlps) << x;
  }
}

TEST(IncompleteGamma, ErfcAtAEqualOneHalf) {
  // sqrt(x) rounded to 64 bits moves erfc by far less than 2^-60 here.
  for (double x : {1e-20, 1e-6, 0.1, 0.2499, 0.26, 0.6, 1.1, 1.5, 1.6, 3.0, 12.5, 80.0}) {
    double p = 0.0;
    double q = 0.0;
    pair(0.5, x, 0.0, p, q);
    const ld s = sqrtl(static_cast<ld>(x));
    EXPECT_LE(ulps(q, erfcl(s)), kUlps) << x;
    EXPECT_LE(ulps(p, erfl(s)), kUlps) << x;
  }
}

// Q(n, x) = e^-x sum_(k<n) x^k/k!, P(n, x) = e^-x sum_(k>=n) x^k/k!, both of
// positive terms, in long double.
void poisson(int n, double x, ld& p, ld& q) {
  const ld lx = x;
  ld t = 1.0L;
  ld low = 0.0L;
  ld high = 0.0L;
  for (int k = 0; k < n + 4000; ++k) {
    if (k < n) {
      low += t;
    } else {
      high += t;
      if (t < 1e-30L * high) break;
    }
    t *= lx / (k + 1);
  }
  const ld e = expl(-lx);
  p = e * high;
  q = e * low;
}

TEST(IncompleteGamma, PoissonSumsAtWholeA) {
  // a = 2 and 5 cross the series and the fraction; a = 30 and 60 add
  // Temme's expansion on 0.7 a <= x <= 1.4 a.
  const double xs[] = {0.05, 0.5, 1.0, 1.5, 2.2, 4.0, 4.9, 5.2, 9.0, 14.0, 20.0, 21.5,
                       25.0, 29.0, 31.0, 41.0, 43.0, 55.0, 60.0, 70.0, 85.0, 90.0, 150.0};
  for (int n : {2, 5, 30, 60}) {
    for (double x : xs) {
      double p = 0.0;
      double q = 0.0;
      pair(n, x, 0.0, p, q);
      ld rp = 0.0L;
      ld rq = 0.0L;
      poisson(n, x, rp, rq);
      // Temme's expansion takes erfc from the double s15adfn: its rounding,
      // scaled by erfc over the tail, comes on top.
      const bool temme = n >= 20 && 0.7 * n <= x && x <= 1.4 * n;
      const double tol = temme ? 1.25 : kUlps;
      if (rp >= DBL_MIN) {
        EXPECT_LE(ulps(p, rp), tol) << n << " " << x;
      }
      if (rq >= DBL_MIN) {
        EXPECT_LE(ulps(q, rq), tol) << n << " " << x;
      }
    }
  }
}

TEST(IncompleteGamma, CallersToleranceIsMetWhereItCutsTheSums) {
  // One point in each of the series, the fraction and the Taylor form, at
  // tolerances between 1e-12 and 1e-4: the sums stop at TOL, and what they
  // leave must stay within it.
  struct Case {
    double a;
    double x;
    ld p;
    ld q;
  };
  Case cs[] = {{5.0, 1.0, 0.0L, 0.0L}, {2.0, 3.5, 0.0L, 0.0L}, {1.0, 1.2, 0.0L, 0.0L}};
  poisson(5, 1.0, cs[0].p, cs[0].q);
  poisson(2, 3.5, cs[1].p, cs[1].q);
  poisson(1, 1.2, cs[2].p, cs[2].q);
  for (const Case& c : cs) {
    for (double tol : {1e-12, 1e-8, 1e-4}) {
      double p = 0.0;
      double q = 0.0;
      pair(c.a, c.x, tol, p, q);
      EXPECT_LE(fabsl(p - c.p), 2 * tol * c.p) << c.a << " " << c.x << " " << tol;
      EXPECT_LE(fabsl(q - c.q), 2 * tol * c.q) << c.a << " " << c.x << " " << tol;
    }
  }
}

}  // namespace
