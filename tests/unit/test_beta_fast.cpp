// The small-a pieces of the incomplete beta kernel: the logarithm of the
// gamma ratio gamma(a+b)/(gamma(1+a) gamma(b)) against references and its
// recurrence in b, and the complement 1 - I_x(a, b) formed from the power
// series where the positive series would run long. References at 50 digits
// by mpmath, every input a double taken exactly
// (tools/refdata/gen_s14ccvn.py).
#include <gtest/gtest.h>

#include <cmath>

#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

namespace {

using ld = long double;
constexpr ld kEpsExt = 0x1p-64L;

struct RatioRef {
  double a, b;
  ld want;
};

TEST(BetaSmallA, GammaRatioAgainstReferences) {
  zeb::ext::Precision guard;
  // b below and above the shift to 12, a from 1e-12 to 1, a against b from
  // 1e-10 to 80.
  const RatioRef refs[] = {
      {2.556e-08, 0.236, -9.979696990103029400459524e-8L},
      {0.002273, 0.01042, -0.1972850219662569327006138L},
      {0.003432, 7.468, 0.008637749656698638327439618L},
      {0.5, 3.0, 0.6286086594223741377443082L},
      {0.3, 50.0, 1.279678940715487821709065L},
      {1e-05, 100000.0, 0.0001209012790528316323809883L},
      {1.0, 12.5, 2.525728644308255439784287L},
      {1e-12, 11.99, 3.019007948569088706703903e-12L},
  };
  for (const auto& r : refs) {
    // The error bound of the kernel, a small multiple of 2^-64 a (1/b + ln(b+13)).
    const ld scale = r.a * (1.0L / r.b + logl(r.b + 13.0L));
    EXPECT_LE(fabsl(s14ccvn(r.a, r.b) - r.want), 16 * kEpsExt * scale) << r.a << " " << r.b;
  }
}

TEST(BetaSmallA, GammaRatioRecurrenceAndFixedPoint) {
  zeb::ext::Precision guard;
  // gamma(a+1)/(gamma(1+a) gamma(1)) = 1 for every a: both halves of the
  // difference are the same computation.
  for (double a : {1e-300, 1e-9, 0.25, 1.0}) EXPECT_EQ(s14ccvn(a, 1.0), 0.0L) << a;
  // G(a, b+1) = G(a, b) (b+a)/b, across the shift (b + 1 = 12 and 12.5) and
  // for tiny a, where the step log1p(a/b) is all that is left.
  for (double a : {1e-14, 3e-6, 0.01, 0.7}) {
    for (double b : {0x1p-20, 0.375, 3.0, 11.0, 11.5, 40.0}) {  // b + 1 exact
      const ld step = s14ccvn(a, b + 1.0) - s14ccvn(a, b);
      const ld want = log1pl(static_cast<ld>(a) / b);
      const ld scale = a * (1.0L / b + logl(b + 14.0L));
      EXPECT_LE(fabsl(step - want), 32 * kEpsExt * scale) << a << " " << b;
    }
  }
}

struct BetaRef {
  double a, b, x;
  ld i, c;
};

TEST(BetaSmallA, ComplementFromThePowerSeries) {
  // a small and x small: I_x(a, b) near 1 and its complement of the order of
  // a, with y near 1 where the series of the complement converges slowly
  // (b below 100, on this side of the expansion in incomplete gamma functions).
  // The last three are controls on the other side of the switch at 1 - I = 1/4.
  const BetaRef refs[] = {
      {1e-08, 0.3, 0.01, 0.9999999247655152240419256L, 7.523448477595807436124518e-8L},
      {2e-05, 3.0, 0.05, 0.9999681106508069920750498L, 0.00003188934919300792495023605L},
      {0.003, 7.5, 0.03, 0.9964916436765614414024726L, 0.003508356323438558597527408L},
      {0.05, 0.5, 0.2, 0.8686706803134462274994968L, 0.1313293196865537725005032L},
      {0.001, 90.0, 0.01, 0.9997393527837492072102331L, 0.0002606472162507927897668898L},
      {1e-10, 99.0, 0.005, 0.99999999994325588762357L, 5.674411237643001045404989e-11L},
      {0.01, 0.99, 0.4, 0.9907601095867400497923272L, 0.009239890413259950207672836L},
      {0.2, 0.01, 0.3, 0.03977754458797434595736448L, 0.9602224554120256540426355L},
      {0.9, 0.001, 0.3, 0.0004428483610668878930292377L, 0.9995571516389331121069708L},
      {0.5, 1.5, 0.1, 0.3958186964094078651737073L, 0.6041813035905921348262927L},
  };
  for (const auto& r : refs) {
    const double y = 1.0 - r.x;
    double w = 0.0, w1 = 0.0;
    ASSERT_EQ(s14cczn(r.a, r.b, r.x, y, w, w1), 0);
    EXPECT_LE(fabsl(w - r.i), 2.0L * 0x1p-53L * r.i) << r.a << " " << r.b << " " << r.x;
    EXPECT_LE(fabsl(w1 - r.c), 2.0L * 0x1p-53L * r.c) << r.a << " " << r.b << " " << r.x;
    // The mirrored call runs the same path and gives the same bits.
    double v = 0.0, v1 = 0.0;
    ASSERT_EQ(s14cczn(r.b, r.a, y, r.x, v, v1), 0);
    EXPECT_EQ(v, w1);
    EXPECT_EQ(v1, w);
  }
}

}  // namespace
