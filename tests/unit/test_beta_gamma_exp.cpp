// The expansion of the incomplete beta function in incomplete gamma
// functions (a large against b, x near 1), against closed forms: for
// integers a and b, I_x(a, b) is the binomial tail
//   sum_{k<b} C(a+b-1, k) y^k x^(a+b-1-k),
// a few terms summed in extended precision, and for b = 1 it is x^a. The
// points cover the first term P(b, u) and Q(b, u), u = -(a + (b-1)/2) ln x,
// from its series (u below b) and its continued fraction (u above), with
// I and 1 - I each the smaller tail, and both orders of the arguments.
#include <gtest/gtest.h>

#include <cmath>

#include "zeb_s_ib_aux.h"
#include "ulps.h"

namespace {

using ld = long double;

using zeb::test::ulps;

// sum_{k<b} C(n, k) y^k x^(n-k), n = a + b - 1, x = 1 - y exactly.
ld binomial_tail(int a, int b, double x, double y) {
  const int n = a + b - 1;
  ld c = 1.0L;
  ld s = 0.0L;
  for (int k = 0; k < b; ++k) {
    s += c * powl(y, k) * powl(x, n - k);
    c = c * (n - k) / (k + 1);
  }
  return s;
}

TEST(BetaGammaExpansion, IntegerArgumentsAgainstBinomialSums) {
  const int as[] = {100, 250, 1000, 20000};
  const int bs[] = {1, 2, 3, 5, 8};
  const double ys[] = {0.5, 0.25, 0.1, 1e-2, 3e-3, 1e-3, 1e-4, 1e-6, 1e-9};
  for (const int a : as) {
    for (const int b : bs) {
      for (const double y0 : ys) {
        const double x = 1.0 - y0;
        const double y = 1.0 - x;  // exact
        if (x < 0.37) continue;
        const ld want = binomial_tail(a, b, x, y);
        double w = 0.0;
        double w1 = 0.0;
        ASSERT_EQ(s14cczn(a, b, x, y, w, w1), 0);
        if (want > 1e-300L) {
          EXPECT_LE(ulps(w, want), 1.0) << a << " " << b << " " << y;
        }
        const ld comp = 1.0L - want;
        // The complement from 1 less the sum keeps its digits above 1/64.
        if (comp > 0.015625L) {
          EXPECT_LE(ulps(w1, comp), 1.0) << a << " " << b << " " << y;
        }
        // The same expansion with the arguments swapped.
        double v = 0.0;
        double v1 = 0.0;
        ASSERT_EQ(s14cczn(b, a, y, x, v, v1), 0);
        EXPECT_EQ(v, w1);
        EXPECT_EQ(v1, w);
      }
    }
  }
}

TEST(BetaGammaExpansion, PowerOfXForUnitB) {
  // I_x(a, 1) = x^a, 1 - I_x(a, 1) = 1 - x^a = -expm1(a ln x).
  const double as[] = {100.5, 317.25, 4096.0, 1e5 + 0.375};
  const double ys[] = {0.3, 1e-3, 2.5e-5, 1e-8};
  for (const double a : as) {
    for (const double y0 : ys) {
      const double x = 1.0 - y0;
      const double y = 1.0 - x;
      const ld l = a * log1pl(-static_cast<ld>(y));
      double w = 0.0;
      double w1 = 0.0;
      ASSERT_EQ(s14cczn(a, 1.0, x, y, w, w1), 0);
      if (l > -690.0L) {
        EXPECT_LE(ulps(w, expl(l)), 1.0) << a << " " << y;
      }
      EXPECT_LE(ulps(w1, -expm1l(l)), 1.0) << a << " " << y;
    }
  }
}

}  // namespace
