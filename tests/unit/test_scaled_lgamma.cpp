// The correction to Stirling's formula, D(x) = ln gamma(x) - (x-1/2) ln x + x
// - ln(2 pi)/2. Its kernels hand hi + lo to the incomplete gamma function,
// which needs more than a double from them, so they are checked to 2^-62
// against 25-digit references on both sides of each cut and at the ends of
// the range, and through the recurrence D(x) - D(x+1) = g(x) across every
// piece of their tables; then the entry's failure and its independence of the
// x87 precision control.
#include <fpu_control.h>
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>

#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

namespace {

using ld = long double;

ld kernel(double x) {
  const zeb::dd::dd d = x < 15.0 ? s14ahzn(x) : s14ahyn(x);
  return static_cast<ld>(d.hi) + d.lo;
}

double entry(double x, int& ifail) {
  char eb[zeb::errbuf_len];
  ifail = -1;
  return s14ahfn(x, eb, ifail);
}

// D(x) by mpmath at 60 digits (the recurrence-free definition; Stirling's
// series to k = 14 above 1000), rounded to 25.
struct Ref {
  double x;
  ld d;
};
constexpr Ref kRefs[] = {
    {0x1p-1074, 371.3010974274859584152733L},
    {0x1p-60, 19.8754768835936865771759L},
    {0x1.8p-3, 0.3377586718828317918114738L},
    {0x1.fffffffffffffp-2, 0.1534264097200273602995367L},
    {0.5, 0.1534264097200273452913839L},
    {1.0, 0.08106146679532725821967026L},
    {0x1.7ffffffffffffp+0, 0.05481412105191766181020828L},
    {1.5, 0.0548141210519176538961387L},
    {2.0, 0.04134069595540929409382208L},
    {0x1.3ffffffffffffp+1, 0.03316287351993629331781871L},
    {2.5, 0.03316287351993628748511051L},
    {2.75, 0.03017408243368455677094423L},
    {0x1.fffffffffffffp+1, 0.02079067210376509541043614L},
    {4.0, 0.02079067210376509311152277L},
    {6.3, 0.01321648271466466499937155L},
    {0x1.fffffffffffffp+2, 0.01041126526197209765216711L},
    {8.0, 0.01041126526197209649747857L},
    {10.0, 0.008330563433362871256469319L},
    {12.5, 0.006665247032707682442356181L},
    {0x1.dffffffffffffp+3, 0.005554733551962802028656842L},
    {15.0, 0.00555473355196280137103869L},
    {100.0, 0.0008333305556349146833812417L},
    {0x1p26, 1.241763432820638011642438e-9L},
    {1e100, 8.333333333333333200809241e-102L},
    {0x1p900, 9.85876821805645592477293e-273L},
    {0x1.fffffffffffffp+1023, 4.635570538556670062756366e-310L},
};

// Half an ulp of the double nearest v, subnormal or not.
ld half_ulp(ld v) {
  if (v < DBL_MIN) return 0x1p-1075L;
  int e = 0;
  frexpl(v, &e);
  return ldexpl(1.0L, e - 54);
}

TEST(ScaledLogGamma, KernelsAndEntryAgainstReferences) {
  for (const Ref& r : kRefs) {
    // Below 1/2 the product (x + 1/2) ln(1 + 1/x) near 1 rounds in 64 bits
    // (no caller needs more there); past 2^900 only hi is kept.
    ld tol = (r.x < 0.5 ? 0x1p-60L : 0x1p-62L) * r.d;
    if (r.x >= 0x1p900) tol = half_ulp(r.d);
    EXPECT_LE(fabsl(kernel(r.x) - r.d), tol) << r.x;
    int ifail = -1;
    const double v = entry(r.x, ifail);
    EXPECT_EQ(ifail, 0);
    EXPECT_LE(fabsl(v - r.d), 1.01L * half_ulp(r.d)) << r.x;
  }
}

// g(x) = D(x) - D(x+1) = (x + 1/2) ln(1 + 1/x) - 1 = sum_k u^2k/(2k+1),
// u = 1/(2x+1): the series, all terms positive, from x = 1/2 (u^2 <= 1/4, 40
// terms reach 2^-80); below, the logarithm, where g is near the product.
ld g(ld x) {
  if (x < 0.5L) return (x + 0.5L) * log1pl(1.0L / x) - 1.0L;
  const ld u = 1.0L / (2.0L * x + 1.0L);
  const ld w = u * u;
  ld s = 0.0L;
  for (int k = 40; k >= 1; --k) s = s * w + 1.0L / (2 * k + 1);
  return s * w;
}

TEST(ScaledLogGamma, KernelsKeepTheRecurrenceAcrossEveryPiece) {
  // About a thousand points from 0.01 to 16, every Taylor band and each of
  // the 21 polynomial pieces several times over, and the step into
  // Stirling's series at 15; D(x + 1) < D(x), so the two errors of 2^-62.5
  // at most stay below 2^-61 of D(x), and below 2^-59 where x < 1/2.
  int n = 0;
  for (double x0 = 0.01; x0 < 16.0; x0 += 0.0161803398875) {
    const double x = std::ldexp(std::nearbyint(std::ldexp(x0, 40)), -40);  // x + 1 exact
    const ld d = kernel(x);
    const ld lhs = d - kernel(x + 1.0);
    const ld tol = (x < 0.5 ? 0x1p-59L : 0x1p-61L) * d;
    EXPECT_LE(fabsl(lhs - g(x)), tol) << x;
    ++n;
  }
  EXPECT_GT(n, 900);
}

TEST(ScaledLogGamma, KernelsAgreeWhereStirlingsSeriesIsValidToo) {
  // s14ahyn is good from 10; between 10 and 15 both kernels apply.
  for (double x = 10.0; x < 15.0; x += 0.37) {
    EXPECT_LE(fabsl(kernel(x) - [&] {
                const zeb::dd::dd d = s14ahyn(x);
                return static_cast<ld>(d.hi) + d.lo;
              }()),
              0x1p-61L * kernel(x))
        << x;
  }
}

TEST(ScaledLogGamma, FailsForArgumentsNotAboveZero) {
  const double bad[] = {0.0, -0.0, -0x1p-1074, -1.0, -std::numeric_limits<double>::infinity(),
                        std::numeric_limits<double>::quiet_NaN()};
  for (double x : bad) {
    int ifail = -1;
    EXPECT_EQ(entry(x, ifail), 0.0) << x;
    EXPECT_EQ(ifail, 1) << x;
  }
  int ifail = -1;
  EXPECT_EQ(entry(std::numeric_limits<double>::infinity(), ifail), 0.0);
  EXPECT_EQ(ifail, 0);
}

TEST(ScaledLogGamma, SameResultsUnderANarrowedPrecisionControl) {
  const double xs[] = {1e-200, 0.3, 0.9, 1.9, 2.6, 7.7, 14.2, 15.5, 3e9, 1e306};
  double want[10];
  int ifail = 0;
  for (int i = 0; i < 10; ++i) want[i] = entry(xs[i], ifail);
  fpu_control_t saved = 0;
  _FPU_GETCW(saved);
  const fpu_control_t narrow = (saved & ~_FPU_EXTENDED) | _FPU_DOUBLE;
  _FPU_SETCW(narrow);
  double got[10];
  for (int i = 0; i < 10; ++i) got[i] = entry(xs[i], ifail);
  fpu_control_t after = 0;
  _FPU_GETCW(after);
  _FPU_SETCW(saved);
  EXPECT_EQ(after, narrow);
  for (int i = 0; i < 10; ++i) EXPECT_EQ(got[i], want[i]) << xs[i];
}

}  // namespace
