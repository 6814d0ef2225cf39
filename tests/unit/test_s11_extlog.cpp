// The table-reduced extended logarithm (s11aaxn, the entry the beta and
// incomplete gamma kernels call) against the C library's logl: within
// 2^-62 of the value on both edges of every row of its table, in the lowest
// and highest binades it takes, next to 1 from either side, with a low part
// and with powers of 2 added over the whole extended range; and arcosh and arsinh at the ends of the
// double range, where ln(2x) is taken from x/4.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

namespace {

using ld = long double;
constexpr ld kLn2 = 0.693147180559945309417232121458176568L;
constexpr ld kTol = 0x1p-62L;

ld rel(ld got, ld want) { return fabsl(got - want) / fabsl(want); }

TEST(ExtendedLog, EveryRowEdgeAcrossTheRange) {
  zeb::ext::Precision guard;
  // Row i holds m within 1/256 of 1 + i/128: its edges are 1 + (2i +- 1)/256,
  // just inside and just outside.
  for (int e : {-1022, -500, -1, 0, 1, 37, 1021}) {
    for (int j = 0; j <= 256; ++j) {
      const double edge = 1.0 + j / 256.0;
      for (double m : {std::nextafter(edge, 0.0), edge, std::nextafter(edge, 4.0)}) {
        if (m < 1.0 || m >= 2.0) continue;
        const double hi = std::ldexp(m, e);
        const ld want = logl(hi);
        if (want == 0.0L) {
          EXPECT_EQ(s11aaxn(hi, 0.0, 0), 0.0L);
          continue;
        }
        EXPECT_LE(rel(s11aaxn(hi, 0.0, 0), want), kTol) << std::hexfloat << hi;
      }
    }
  }
}

TEST(ExtendedLog, NextToOneAndWithALowPart) {
  zeb::ext::Precision guard;
  // Either side of 1, where the first and the last row keep r exact.
  for (int j = 1; j <= 60; ++j) {
    const double d = std::ldexp(1.0, -j);
    if (j <= 52) {
      EXPECT_LE(rel(s11aaxn(1.0 + d, 0.0, 0), log1pl(d)), kTol) << j;
    }
    if (j <= 53) {
      EXPECT_LE(rel(s11aaxn(1.0 - d, 0.0, 0), log1pl(-static_cast<ld>(d))), kTol) << j;
    }
    // hi = 1 and a low part alone.
    if (j >= 54) {
      EXPECT_LE(rel(s11aaxn(1.0, d, 0), log1pl(d)), kTol) << j;
      EXPECT_LE(rel(s11aaxn(1.0, -d, 0), log1pl(-static_cast<ld>(d))), kTol) << j;
    }
  }
  // A low part of a quarter ulp in the middle of the rows.
  for (int j = 0; j < 128; ++j) {
    const double hi = 1.5 + j / 512.0;
    const double lo = std::ldexp(hi, -55);
    EXPECT_LE(rel(s11aaxn(hi, lo, 0), logl(static_cast<ld>(hi) + lo)), kTol) << j;
    EXPECT_LE(rel(s11aaxn(hi, -lo, 0), logl(static_cast<ld>(hi) - lo)), kTol) << j;
  }
}

TEST(ExtendedLog, PowersOfTwoAdded) {
  zeb::ext::Precision guard;
  // Up to the ends of the extended exponent range, which s14cbyn reaches.
  for (int k : {-15000, -2000, -100, -1, 1, 3, 1100, 15000}) {
    for (double hi : {0x1p-1022, 0.75, 1.0, std::nextafter(1.0, 0.0), 1.2345, 0x1.fffffffffffffp1021}) {
      const ld want = logl(ldexpl(hi, k));
      EXPECT_LE(rel(s11aaxn(hi, 0.0, k), want), kTol) << std::hexfloat << hi << " " << k;
    }
  }
  // ln(2^k / 2^k) is exactly 0 whatever k.
  EXPECT_EQ(s11aaxn(0x1p-3, 0.0, 3), 0.0L);
  EXPECT_EQ(s11aaxn(0x1p900, 0.0, -900), 0.0L);
}

TEST(ExtendedLog, LargestArgumentsOfArcoshAndArsinh) {
  char eb[zeb::errbuf_len];
  for (double x : {1.0000000001e9, 0x1p1020, 0x1.fffffffffffffp1021, 0x1p1022, 0x1p1023, DBL_MAX}) {
    const ld want = logl(x) + kLn2;  // ln(2x)
    int ifail = -1;
    const double c = s11acfn(x, eb, ifail);
    EXPECT_EQ(ifail, 0);
    EXPECT_LE(fabsl(c - want), 0.501L * ldexpl(1.0L, std::ilogb(c) - 52)) << std::hexfloat << x;
    EXPECT_EQ(s11abfn(x), c) << std::hexfloat << x;
    EXPECT_EQ(s11abfn(-x), -c) << std::hexfloat << x;
  }
  int ifail = -1;
  EXPECT_EQ(s11acfn(HUGE_VAL, eb, ifail), HUGE_VAL);
  EXPECT_EQ(ifail, 0);
  EXPECT_TRUE(std::isnan(s11acfn(NAN, eb, ifail)));
  EXPECT_EQ(s11abfn(-HUGE_VAL), -HUGE_VAL);
  EXPECT_TRUE(std::isnan(s11abfn(NAN)));
}

}  // namespace
