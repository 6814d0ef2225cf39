// The erfc kernel's tabulated exponential and its short cuts: erfc across
// every bin of exp(-Y^2) and of exp(-j/64), on both sides of the range cuts,
// against the C library's long double erfcl (a 64-bit significand, so good to
// a few thousandths of an ulp of the double result); the tiny arguments that
// P, Q, erfc and erf answer without their rationals, on both sides of each
// threshold; and the values under a narrowed x87 precision control.
#include <fpu_control.h>
#include <gtest/gtest.h>

#include <cmath>

#include "zeb_s_ib.h"
#include "ulps.h"

namespace {

using ld = long double;

// |got - ref| in ulps of the double nearest ref, the subnormal ulp below the
// normal range.
using zeb::test::ulps;

constexpr double kTol = 0.52;

TEST(ErfcExt, EveryBinOfTheExponentialTables) {
  // Y = k/16 runs over the whole table up to 26.6; within each bin the ends
  // and the middle, where D = (A - Y)(A + Y) reaches from 0 to 2A/16, and so
  // j = round(64 D) over all of kExpD in the top bins.
  for (int k = 7; k <= 425; ++k) {
    const double y = k / 16.0;
    for (double a : {y, std::nextafter(y, 0.0), y + 1.0 / 32, y + 1.0 / 64, y + 3.0 / 64,
                     std::nextafter(y + 1.0 / 16, 0.0)}) {
      if (a <= 0.46875 || a >= 26.6) continue;
      EXPECT_LE(ulps(s15adfn(a), erfcl(a)), kTol) << std::hexfloat << a;
      if (a < 6.5) {
        EXPECT_LE(ulps(s15adfn(-a), erfcl(-a)), kTol) << std::hexfloat << -a;
        EXPECT_LE(ulps(s15aefn(a), erfl(a)), kTol) << std::hexfloat << a;
      }
    }
  }
  // A dense sweep of the last bins, where D and j are largest.
  for (int i = 0; i < 4000; ++i) {
    const double a = 26.5 - 1.0 / 16 + (26.6 - 26.5 + 1.0 / 16) * i / 4000.0;
    EXPECT_LE(ulps(s15adfn(a), erfcl(a)), kTol) << std::hexfloat << a;
  }
}

TEST(ErfcExt, BothSidesOfTheRangeCuts) {
  for (double c : {0.46875, 4.0}) {
    for (double a : {std::nextafter(c, 0.0), c, std::nextafter(c, 8.0)}) {
      EXPECT_LE(ulps(s15adfn(a), erfcl(a)), kTol) << std::hexfloat << a;
      EXPECT_LE(ulps(s15adfn(-a), erfcl(-a)), kTol) << std::hexfloat << -a;
      EXPECT_LE(ulps(s15aefn(a), erfl(a)), kTol) << std::hexfloat << a;
    }
  }
  // The last value before the cut to 0 is subnormal and the first after it 0.
  const double last = std::nextafter(26.6, 0.0);
  EXPECT_LE(ulps(s15adfn(last), erfcl(last)), kTol);
  EXPECT_EQ(s15adfn(26.6), 0.0);
  EXPECT_EQ(s15adfn(std::nextafter(-6.5, 0.0)), static_cast<double>(erfcl(-6.5L)));
}

TEST(ErfcExt, TinyArgumentsRoundAsTheSeries) {
  // erfc(x) = 1 - (2/sqrt pi) x and P(x) = 1/2 + x/sqrt(2 pi) to far below
  // an ulp here; the one-term series rounded once is the correct value.
  constexpr ld k2Rpi = 1.1283791670955125738961589031215452L;
  constexpr ld kRs2pi = 0.39894228040143267793994605993438187L;
  for (int e = -80; e <= -30; ++e) {
    for (double m : {1.0, 1.3, 1.75, 1.999}) {
      for (double s : {-1.0, 1.0}) {
        const double x = s * std::ldexp(m, e);
        EXPECT_EQ(s15adfn(x), static_cast<double>(1.0L - k2Rpi * x)) << std::hexfloat << x;
        EXPECT_EQ(s15abfn(x), static_cast<double>(0.5L + kRs2pi * x)) << std::hexfloat << x;
        EXPECT_EQ(s15acfn(x), static_cast<double>(0.5L - kRs2pi * x)) << std::hexfloat << x;
        // erf(x) = (2/sqrt pi) x (1 - x^2/3): the cubic term still shows at
        // 2^-30 and not below 2^-33.
        const ld xl = x;
        EXPECT_LE(ulps(s15aefn(x), k2Rpi * xl * (1.0L - xl * xl / 3)), kTol) << std::hexfloat << x;
      }
    }
  }
  EXPECT_EQ(s15aefn(0x1p-1074), 0x1p-1074);
  EXPECT_EQ(s15aefn(-0x1.8p-1060), static_cast<double>(k2Rpi * -0x1.8p-1060));
  EXPECT_EQ(s15abfn(-0x1p-1074), 0.5);
}

TEST(ErfcExt, NormalIntegralsAgainstErfcOfTheExactQuotient) {
  // Where |x| <= 8 the quotient x/sqrt2 rounded to 64 bits changes erfc by
  // less than 2^-57, relative (0.02 ulp), so erfcl of it stands as the
  // reference, with that much more room.
  constexpr ld kRsqrt2 = 0.70710678118654752440084436210484903928L;
  for (int i = -4000; i <= 4000; ++i) {
    const double x = i / 500.0 + 0x1p-12;
    const ld z = x * kRsqrt2;
    EXPECT_LE(ulps(s15abfn(x), erfcl(-z) / 2), kTol + 0.02) << std::hexfloat << x;
    EXPECT_LE(ulps(s15acfn(x), erfcl(z) / 2), kTol + 0.02) << std::hexfloat << x;
  }
}

TEST(ErfcExt, NarrowedPrecisionControl) {
  // A caller that left the x87 unit at 53 bits gets the same values and its
  // own control word back.
  const double xs[] = {0x1p-40, 0.3, -0.7, 2.5, -3.9, 5.5, 20.0, 26.5};
  double want[8][4];
  for (int i = 0; i < 8; ++i) {
    want[i][0] = s15adfn(xs[i]);
    want[i][1] = s15aefn(xs[i]);
    want[i][2] = s15abfn(xs[i]);
    want[i][3] = s15acfn(xs[i]);
  }
  fpu_control_t saved = 0;
  _FPU_GETCW(saved);
  const fpu_control_t narrow = (saved & ~_FPU_EXTENDED) | _FPU_DOUBLE;
  _FPU_SETCW(narrow);
  double got[8][4];
  for (int i = 0; i < 8; ++i) {
    got[i][0] = s15adfn(xs[i]);
    got[i][1] = s15aefn(xs[i]);
    got[i][2] = s15abfn(xs[i]);
    got[i][3] = s15acfn(xs[i]);
  }
  fpu_control_t after = 0;
  _FPU_GETCW(after);
  _FPU_SETCW(saved);
  EXPECT_EQ(after, narrow);
  for (int i = 0; i < 8; ++i)
    for (int j = 0; j < 4; ++j) EXPECT_EQ(got[i][j], want[i][j]) << xs[i] << " " << j;
}

}  // namespace
