// The extended-precision pieces of the beta kernels against the x87
// library functions and exact identities, and the incomplete beta function
// against closed forms where its continued fraction runs deep or its
// complement series runs long.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

namespace {

using ld = long double;
constexpr ld kEpsExt = 0x1p-63L;  // one ulp of 1 in the extended format

ld rel(ld got, ld want) { return fabsl(got - want) / fabsl(want); }

TEST(BetaExtended, LogAndExpAgreeWithTheLibrary) {
  zeb::ext::Precision guard;
  for (ld x : {1e-300L, 3.7e-20L, 0.3L, 0.70710678L, 0.999999L, 1.0000001L, 1.41421356L, 2.0L,
               7.5L, 1234.5L, 6.02e23L, 1.7e308L}) {
    EXPECT_LE(rel(s14cbyn(x), logl(x)), 4 * kEpsExt) << static_cast<double>(x);
  }
  // Near 1 the logarithm keeps its relative accuracy.
  const ld x = 1.0L - 0x1p-40L;
  EXPECT_LE(rel(s14cbyn(x), log1pl(-0x1p-40L)), 4 * kEpsExt);
  EXPECT_EQ(s14cbyn(1.0L), 0.0L);
  for (ld v : {-745.0L, -300.25L, -1.0L, -1e-12L, 0.0L, 0.34L, 0.35L, 1.0L, 88.5L, 709.0L}) {
    EXPECT_LE(rel(s14cbwn(v), expl(v)), 4 * kEpsExt) << static_cast<double>(v);
  }
  EXPECT_EQ(s14cbwn(-20000.0L), 0.0L);
  EXPECT_TRUE(std::isinf(static_cast<double>(s14cbwn(20000.0L))));
}

TEST(BetaExtended, PhiFromEitherSideOfItsSwitch) {
  zeb::ext::Precision guard;
  // Small mu: the series mu^2/2 - mu^3/3 + mu^4/4 - ... with nothing
  // cancelled.
  for (ld mu : {1e-9L, -3e-7L, 1e-4L, -0.01L}) {
    ld want = 0.0L;
    ld pk = -mu;
    for (int k = 2; k <= 12; ++k) {
      pk *= -mu;
      want += pk / k;
    }
    EXPECT_LE(rel(s14cbxn(mu, 1.0L + mu), want), 4 * kEpsExt) << static_cast<double>(mu);
  }
  // Either side of the switch between the series and the logarithm, and
  // near -1 where l carries the digits.
  for (ld mu : {-0.29289L, -0.29290L, 0.41421L, 0.41422L, 3.0L, 1e6L}) {
    EXPECT_LE(rel(s14cbxn(mu, 1.0L + mu), mu - log1pl(mu)), 16 * kEpsExt) << static_cast<double>(mu);
  }
  const ld l = 1e-30L;
  EXPECT_LE(rel(s14cbxn(l - 1.0L, l), (l - 1.0L) - logl(l)), 4 * kEpsExt);
}

TEST(BetaExtended, StirlingCorrectionKeepsItsRecurrence) {
  zeb::ext::Precision guard;
  // D(x) - D(x+1) = (x + 1/2) ln(1 + 1/x) - 1 = u^2/3 + u^4/5 + ...,
  // u = 1/(2x+1).
  for (ld x : {12.0L, 12.5L, 40.0L, 1e3L, 1e7L}) {
    const ld u = 1.0L / (2.0L * x + 1.0L);
    ld want = 0.0L;
    ld uk = 1.0L;
    for (int k = 1; k <= 20; ++k) {
      uk *= u * u;
      want += uk / (2 * k + 1);
    }
    EXPECT_LE(fabsl(s14cbvn(x) - s14cbvn(x + 1.0L) - want), 4 * kEpsExt * s14cbvn(x))
        << static_cast<double>(x);
  }
  // Against ln gamma where little cancels.
  EXPECT_LE(rel(s14cbvn(12.0L), lgammal(12.0L) - 11.5L * logl(12.0L) + 12.0L -
                                    0.918938533204672741780329736405617639861L),
            1e-15L);
}

TEST(BetaExtended, LogBetaRecurrenceAcrossItsBranches) {
  zeb::ext::Precision guard;
  // ln B(a, b+1) = ln B(a, b) + ln(b / (a+b)), across the switch at 12 and
  // for arguments far apart (b + 1 exact).
  const double as[] = {1e-8, 0.3, 2.0, 11.5, 12.0, 300.0, 1e9, 1e300};
  const double bs[] = {0x1p-20, 0.5, 10.75, 11.25, 11.5, 64.0, 5e5};
  for (double a : as) {
    for (double b : bs) {
      const ld lhs = s14cbun(a, b + 1.0);
      const ld rhs = s14cbun(a, b) + s14cbyn(static_cast<ld>(b) / (static_cast<ld>(a) + b));
      const ld scale = fabsl(lhs) + fabsl(s14cbyn(static_cast<ld>(a) + b)) * b + 1.0L;
      EXPECT_LE(fabsl(lhs - rhs), 64 * kEpsExt * scale) << a << " " << b;
    }
  }
  // Exact values: B(1/2, 1/2) = pi, B(3, 4) = 1/60, ln B(1, 1) = 0.
  EXPECT_LE(rel(s14cbun(0.5, 0.5), 1.14472988584940017414342735135305871L), 8 * kEpsExt);
  EXPECT_LE(rel(s14cbun(3.0, 4.0), -logl(60.0L)), 8 * kEpsExt);
  EXPECT_EQ(s14cbzn(1.0, 1.0), 0.0);
  EXPECT_EQ(s14cbzn(1.0, 4.0), -std::log(4.0));
}

TEST(BetaExtended, FactorAgreesWithTheDirectSum) {
  zeb::ext::Precision guard;
  // For moderate a, b the direct a ln x + b ln y - ln B loses nothing that
  // matters: the phi form must agree with it (x + y = 1 exactly).
  for (double a : {12.0, 30.0, 250.0}) {
    for (double b : {12.5, 80.0}) {
      for (double x : {0.0625, 0.296875, 0.5859375}) {
        const double y = 1.0 - x;
        const ld direct = (a * s14cbyn(x) + b * s14cbyn(y)) - s14cbun(a, b);
        EXPECT_LE(fabsl(s14ccwn(a, b, x, y) - direct), 1e3L * kEpsExt * (fabsl(direct) + 1.0L))
            << a << " " << b << " " << x;
      }
    }
  }
}

// I_x(a, b) for integer a, b: the binomial tail P(Bin(a+b-1, x) >= a),
// summed in extended precision.
ld binomial_tail(int a, int b, ld x) {
  const int n = a + b - 1;
  ld sum = 0.0L;
  for (int k = a; k <= n; ++k) {
    sum += expl(lgammal(n + 1.0L) - lgammal(k + 1.0L) - lgammal(n - k + 1.0L) + k * logl(x) +
                (n - k) * log1pl(-x));
  }
  return sum;
}

TEST(BetaExtended, IncompleteBetaWhereItsLoopsRunLong) {
  // Deep continued fraction: a, b large and x near the mean.
  for (int ab : {40, 400}) {
    for (double x : {0.45, 0.49, 0.5}) {
      double w = 0.0, w1 = 0.0;
      ASSERT_EQ(s14cczn(ab, ab + 3, x, 1.0 - x, w, w1), 0);
      const ld want = binomial_tail(ab, ab + 3, x);
      EXPECT_LE(rel(w, want), 1e-14L) << ab << " " << x;
      EXPECT_LE(rel(w1, 1.0L - want), 1e-14L) << ab << " " << x;
    }
  }
  // Long complement series: I_x(a, 1) = x^a with a small and x near 1 leaves
  // 1 - I_x(a, 1) = -expm1(a ln x) small; and I_x(1, b) = 1 - y^b.
  for (double a : {1e-6, 0.01, 0.2}) {
    for (double y : {0.003, 0.02, 0.1}) {
      double w = 0.0, w1 = 0.0;
      const double x = 1.0 - y;
      ASSERT_EQ(s14cczn(a, 1.0, x, y, w, w1), 0);
      EXPECT_LE(rel(w1, -expm1l(a * log1pl(-static_cast<ld>(y)))), 1e-14L) << a << " " << y;
      EXPECT_LE(rel(w, powl(x, a)), 1e-15L) << a << " " << y;
      ASSERT_EQ(s14cczn(1.0, a, y, x, w, w1), 0);
      EXPECT_LE(rel(w, -expm1l(a * log1pl(-static_cast<ld>(y)))), 1e-14L) << a << " " << y;
    }
  }
}

}  // namespace
