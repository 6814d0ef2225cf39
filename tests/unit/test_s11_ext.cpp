// artanh, arsinh and arcosh in the x87 extended format: each band against
// the C library's long double functions (64-bit significands, so that the
// reference is good to a few thousandths of an ulp of the double result),
// over every bin of the logarithm's reduction table and both sides of each
// cut; arcosh next to 1 against its own series; the x87 precision control.
#include <fpu_control.h>
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "ulps.h"

namespace {

using ld = long double;

using zeb::test::ulps;

double atanh_(double x) {
  char eb[zeb::errbuf_len];
  int ifail = -1;
  const double v = s11aafn(x, eb, ifail);
  EXPECT_EQ(ifail, 0) << x;
  return v;
}

double acosh_(double x) {
  char eb[zeb::errbuf_len];
  int ifail = -1;
  const double v = s11acfn(x, eb, ifail);
  EXPECT_EQ(ifail, 0) << x;
  return v;
}

constexpr double kTol = 0.53;

TEST(InverseHyperbolicExt, SeriesBandsUpToTheirCuts) {
  // The series are weakest where u = x^2 is largest: sqrt(1/2) for artanh,
  // 1 for arsinh. Dense sweeps of the upper half, and the cut points.
  for (int i = 0; i <= 4000; ++i) {
    const double x = 0.35 + (std::sqrt(0.5) - 0.35) * i / 4000.0;
    EXPECT_LE(ulps(atanh_(x), atanhl(x)), kTol) << std::hexfloat << x;
    EXPECT_LE(ulps(atanh_(-x), atanhl(-x)), kTol) << std::hexfloat << -x;
    const double y = 0.5 + 0.5 * i / 4000.0;
    EXPECT_LE(ulps(s11abfn(y), asinhl(y)), kTol) << std::hexfloat << y;
    EXPECT_LE(ulps(s11abfn(-y), asinhl(-y)), kTol) << std::hexfloat << -y;
  }
  for (double x : {0x1.6a09e667f3bccp-1, 0x1.6a09e667f3bcdp-1, 0x1.6a09e667f3bcep-1}) {
    EXPECT_LE(ulps(atanh_(x), atanhl(x)), kTol) << std::hexfloat << x;
  }
  for (double x : {std::nextafter(1.0, 0.0), 1.0, std::nextafter(1.0, 2.0)}) {
    EXPECT_LE(ulps(s11abfn(x), asinhl(x)), kTol) << std::hexfloat << x;
  }
}

TEST(InverseHyperbolicExt, LogarithmBandsOverEveryReductionBin) {
  // Steps of 2^-10 of a binade reach each of the 128 bins of m in [1, 2)
  // eight times; the binades run from the cut to 1e9 and on to the largest
  // doubles, where ln(2x) is taken from x/2.
  for (int e = 0; e <= 30; e += 3) {
    for (int j = 0; j < 1024; ++j) {
      const double x = std::ldexp(1.0 + j / 1024.0 + 0x1p-40, e);
      EXPECT_LE(ulps(s11abfn(x), asinhl(x)), kTol) << std::hexfloat << x;
      EXPECT_LE(ulps(acosh_(x), acoshl(x)), kTol) << std::hexfloat << x;
    }
  }
  for (int e : {30, 31, 100, 500, 1000, 1023}) {
    for (int j = 0; j < 1024; j += 7) {
      const double x = std::ldexp(1.0 + j / 1024.0, e);
      const ld ref = logl(2.0L * x);
      EXPECT_LE(ulps(s11abfn(x), ref), kTol) << std::hexfloat << x;
      EXPECT_LE(ulps(s11abfn(-x), -ref), kTol) << std::hexfloat << -x;
      EXPECT_LE(ulps(acosh_(x), ref), kTol) << std::hexfloat << x;
    }
  }
  EXPECT_LE(ulps(s11abfn(DBL_MAX), logl(2.0L * DBL_MAX)), kTol);
  EXPECT_LE(ulps(acosh_(DBL_MAX), logl(2.0L * DBL_MAX)), kTol);
  // artanh above the cut: the quotient (1 + a)/(1 - a) from 5.8 to 2^54.
  for (int i = 0; i <= 4000; ++i) {
    const double x = std::sqrt(0.5) + (1.0 - std::sqrt(0.5)) * i / 4001.0;
    EXPECT_LE(ulps(atanh_(x), atanhl(x)), kTol) << std::hexfloat << x;
  }
  for (int k = 1; k <= 2000; k += 37) {
    const double x = 1.0 - k * 0x1p-53;
    EXPECT_LE(ulps(atanh_(-x), atanhl(-x)), kTol) << std::hexfloat << -x;
  }
}

TEST(InverseHyperbolicExt, ArcoshNextToOne) {
  // x = 1 + d: arcosh x = sqrt(2d) (1 - d/12 + 3d^2/160), good to d^3 in the
  // x87 format for d <= 2^-30, where t - 1 is only about sqrt(2d) and a
  // rounding of t itself would cost 2^-64/sqrt(2d) relative.
  for (int k = 1; k <= 3000; k += 3) {
    for (int s : {0, 10, 22}) {
      const ld d = ldexpl(k, s - 52);
      const double x = static_cast<double>(1.0L + d);
      const ld ref = sqrtl(2.0L * d) * (1.0L - d / 12.0L + 3.0L * d * d / 160.0L);
      EXPECT_LE(ulps(acosh_(x), ref), kTol) << std::hexfloat << x;
    }
  }
}

TEST(InverseHyperbolicExt, NarrowedPrecisionControl) {
  // A caller that left the x87 unit at 53 bits gets the same values and its
  // own control word back.
  const double xs[] = {0.3, 0.7, 0.9, 0.75, 3.5, 1.0 + 0x1p-40, 7e9};
  double want[7][3];
  for (int i = 0; i < 7; ++i) {
    want[i][0] = xs[i] < 1.0 ? atanh_(xs[i]) : 0.0;
    want[i][1] = s11abfn(xs[i]);
    want[i][2] = xs[i] >= 1.0 ? acosh_(xs[i]) : 0.0;
  }
  fpu_control_t saved = 0;
  _FPU_GETCW(saved);
  const fpu_control_t narrow = (saved & ~_FPU_EXTENDED) | _FPU_DOUBLE;
  _FPU_SETCW(narrow);
  double got[7][3];
  for (int i = 0; i < 7; ++i) {
    got[i][0] = xs[i] < 1.0 ? atanh_(xs[i]) : 0.0;
    got[i][1] = s11abfn(xs[i]);
    got[i][2] = xs[i] >= 1.0 ? acosh_(xs[i]) : 0.0;
  }
  fpu_control_t after = 0;
  _FPU_GETCW(after);
  _FPU_SETCW(saved);
  EXPECT_EQ(after, narrow);
  for (int i = 0; i < 7; ++i) {
    for (int j = 0; j < 3; ++j) EXPECT_EQ(got[i][j], want[i][j]) << xs[i] << " " << j;
  }
}

}  // namespace
