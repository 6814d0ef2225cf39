// arcsin and arccos, formed in the x87 extended format and rounded once,
// against the C library's asinl and acosl (64-bit significands, good to a
// few thousandths of an ulp of the double result): on both sides of the cut
// at 1/2, where pi/2 - 2 asin(s) cancels most, next to +-1, and in the
// series band; the exact ends and the failure for abs(x) > 1.
#include <gtest/gtest.h>

#include <cmath>

#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "ulps.h"

namespace {

using ld = long double;

using zeb::test::ulps;

double asin_(double x) {
  char eb[zeb::errbuf_len];
  int ifail = -1;
  const double v = s09aafn(x, eb, ifail);
  EXPECT_EQ(ifail, 0) << x;
  return v;
}

double acos_(double x) {
  char eb[zeb::errbuf_len];
  int ifail = -1;
  const double v = s09abfn(x, eb, ifail);
  EXPECT_EQ(ifail, 0) << x;
  return v;
}

constexpr double kTol = 0.501;

void check(double x) {
  EXPECT_LE(ulps(asin_(x), asinl(x)), kTol) << std::hexfloat << x;
  EXPECT_LE(ulps(acos_(x), acosl(x)), kTol) << std::hexfloat << x;
}

TEST(ArcSinCosExt, AcrossTheCutAndTheSeriesBand) {
  for (int i = 0; i <= 4000; ++i) {
    const double x = 0.3 + 0.4 * i / 4000.0;  // 0.3 to 0.7, the cut at 1/2
    check(x);
    check(-x);
    const double y = 0x1p-30 + 0.3 * i / 4000.0;
    check(y);
    check(-y);
  }
  for (double x : {std::nextafter(0.5, 0.0), 0.5, std::nextafter(0.5, 1.0)}) {
    check(x);
    check(-x);
  }
}

TEST(ArcSinCosExt, NextToOne) {
  for (int j = 1; j <= 53; ++j) {
    const double x = 1.0 - std::ldexp(1.0, -j);
    check(x);
    check(-x);
  }
  EXPECT_EQ(asin_(1.0), 0x1.921fb54442d18p0);
  EXPECT_EQ(asin_(-1.0), -0x1.921fb54442d18p0);
  EXPECT_EQ(acos_(1.0), 0.0);
  EXPECT_EQ(acos_(-1.0), 0x1.921fb54442d18p1);
  EXPECT_EQ(asin_(0.0), 0.0);
  EXPECT_TRUE(std::signbit(asin_(-0.0)));
  EXPECT_EQ(acos_(0.0), 0x1.921fb54442d18p0);
  EXPECT_EQ(asin_(1e-300), 1e-300);
}

TEST(ArcSinCosExt, OutsideTheDomain) {
  char eb[zeb::errbuf_len];
  for (double x : {std::nextafter(1.0, 2.0), -1.5, HUGE_VAL}) {
    int ifail = -1;
    EXPECT_EQ(s09aafn(x, eb, ifail), 0.0);
    EXPECT_EQ(ifail, 1);
    ifail = -1;
    EXPECT_EQ(s09abfn(x, eb, ifail), 0.0);
    EXPECT_EQ(ifail, 1);
  }
}

}  // namespace
