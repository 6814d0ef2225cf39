// The polygamma kernel along its seams: each order keeps the recurrence
// S_k(x) = x^-(k+1) + S_k(x+1) where x and x+1 fall on different paths (the
// recurrence against the expansion, the order whose recurrence is one
// fraction against the higher orders whose sum stops early, the extended
// format against the scaled double-double of orders beyond 1000), the
// reflection of psi^(K) for x <= 0 keeps it across the pieces of cot(pi x),
// and the range of the reals is judged right at its edges.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

namespace {

char eb[200];

// S_k(x) from the kernel's scaled value, in the extended format, whose range
// holds these orders' values and whose precision shows the kernel's own
// error beyond the last place of a double.
long double kernel(double x, int k) {
  zeb::dd::dd m;
  long long e = 0;
  s14acyn(x, k, 1, m, e);
  return std::ldexp(static_cast<long double>(m.hi) + m.lo, static_cast<int>(e));
}

// S_k(x) by s14adf, which must succeed.
double scaled(double x, int k) {
  double v = 0.0;
  int ifail = 0;
  s14adfn(x, k, 1, &v, eb, ifail);
  EXPECT_EQ(ifail, 0) << x << " order " << k;
  return v;
}

TEST(PolygammaKernel, RecurrenceAcrossPaths) {
  struct Case {
    int k;
    double x;
  };
  // x + 1 lands beyond the switch 18.06 + k/2 while x lies below it, or
  // both lie below it with a sum of many terms, or x is small.
  const Case cases[] = {
      {1, 17.5},   {1, 0.3},    {2, 18.0},   {5, 3.7},    {8, 21.8},
      {8, 0.02},   {9, 21.9},   {9, 4.25},   {40, 37.6},  {40, 12.0},
      {300, 167.7}, {300, 150.0}, {300, 9.5},  {1000, 517.8}, {1000, 0.75},
      {1001, 518.0}, {1005, 0.75}, {1200, 1.25},
  };
  for (const Case& c : cases) {
    const long double a = kernel(c.x, c.k);
    const long double b = kernel(c.x + 1.0, c.k);
    const long double want = std::pow(static_cast<long double>(c.x), -(c.k + 1.0L)) + b;
    EXPECT_LE(std::fabs(a - want), DBL_EPSILON * want) << c.x << " order " << c.k;
  }
  // Order 0: psi(x+1) = psi(x) + 1/x, from -psi (s14adf) and from
  // psi - ln x (s14acf), which has f(x+1) = f(x) + 1/x - ln(1 + 1/x).
  for (double x : {1e-3, 0.25, 5.0, 17.5, 17.9}) {
    const double a = scaled(x, 0);
    const double b = scaled(x + 1.0, 0);
    EXPECT_LE(std::fabs(a - (1.0L / x + b)), 2 * DBL_EPSILON * std::fabs(a)) << x;
    int ifail = 0;
    const double f = s14acfn(x, eb, ifail);
    const double g = s14acfn(x + 1.0, eb, ifail);
    const long double want = f + 1.0L / x - std::log1p(1.0L / x);
    EXPECT_LE(std::fabs(g - want), 3 * DBL_EPSILON * std::fmax(std::fabs(f), std::fabs(g))) << x;
  }
}

TEST(PolygammaKernel, ReflectionKeepsTheRecurrence) {
  // psi^(K)(x+1) = psi^(K)(x) + (-1)^K K! x^-(K+1), at x whose distance to
  // the nearest integer lies on either side of 1/4 (the two forms of
  // cot(pi x)), and at x in (-1, 0), where x + 1 is positive.
  const double fact[] = {1, 1, 2, 6, 24, 120, 720};
  for (int k = 0; k <= 6; ++k) {
    for (double x : {-3.9, -3.75, std::nextafter(-3.75, 0.0), -3.6, -2.5, -1.3, -0.8, -0.1}) {
      int ifail = 0;
      const double a = s14aefn(x, k, eb, ifail);
      ASSERT_EQ(ifail, 0);
      const double b = s14aefn(x + 1.0, k, eb, ifail);
      ASSERT_EQ(ifail, 0);
      const long double term = (k % 2 ? -fact[k] : fact[k]) * std::pow(static_cast<long double>(x), -(k + 1.0L));
      const long double big = std::fmax(std::fabs(a), std::fmax(std::fabs(b), std::fabs(term)));
      EXPECT_LE(std::fabs(b - (a + term)), 4 * DBL_EPSILON * big) << x << " K " << k;
    }
  }
}

TEST(PolygammaKernel, RangeEdges) {
  // S_k(2^-10) ~ 2^(10(k+1)): order 100 stands, order 102 overflows and
  // clears the whole array.
  double ans[3] = {7, 7, 7};
  int ifail = -1;
  s14adfn(0x1p-10, 100, 1, ans, eb, ifail);
  EXPECT_EQ(ifail, 0);
  EXPECT_NEAR(ans[0], 0x1p1010, 0x1p1010 * 1e-12);
  s14adfn(0x1p-10, 100, 3, ans, eb, ifail);
  EXPECT_EQ(ifail, 5);
  EXPECT_EQ(ans[0], 0.0);
  EXPECT_EQ(ans[2], 0.0);
  // S_k(x) = x^-k (1/k + 1/(2x) + ...) at x = 2^20: order 50 is normal,
  // order 51 underflows to 0 alone.
  s14adfn(0x1p20, 50, 2, ans, eb, ifail);
  EXPECT_EQ(ifail, 4);
  EXPECT_NEAR(ans[0], 0x1p-1000 * (1.0 / 50 + 0x1p-21), 0x1p-1000 * 1e-11);
  EXPECT_EQ(ans[1], 0.0);
  // psi^(6)(x) = 720 x^-7 + ... overflows for tiny x; psi itself grows
  // without bound, and psi^(K) of larger K fades to 0.
  EXPECT_EQ(s14aefn(1e-300, 6, eb, ifail), 0.0);
  EXPECT_EQ(ifail, 4);
  EXPECT_EQ(s14aefn(INFINITY, 0, eb, ifail), INFINITY);
  EXPECT_EQ(ifail, 0);
  EXPECT_EQ(s14aefn(INFINITY, 3, eb, ifail), 0.0);
  EXPECT_EQ(ifail, 0);
  // ln x - psi(x) ~ 1/(2x) at the edge of the normal range.
  EXPECT_EQ(s14acfn(0x1p1020, eb, ifail), -0x1p-1021);
  EXPECT_EQ(ifail, 0);
}

}  // namespace
