// Properties of the gamma group that the reference tables do not show: the
// orders of s14adf computed together agree bit for bit with each alone, the
// incomplete gamma and beta pairs are complementary and monotone, the
// complex functions keep their recurrences and conjugate symmetry, and the
// kernels refuse what they cannot take without a crash.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <complex>

#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

namespace {

TEST(GammaKernels, OrdersTogetherEqualOrdersAlone) {
  for (double x : {1e-3, 0.7, 3.5, 17.9, 18.06, 42.0, 1e5}) {
    double all[12];
    char eb[200];
    int ifail = 0;
    s14adfn(x, 3, 12, all, eb, ifail);
    ASSERT_EQ(ifail, 0) << x;
    for (int j = 0; j < 12; ++j) {
      double one = 0.0;
      s14adfn(x, 3 + j, 1, &one, eb, ifail);
      EXPECT_EQ(one, all[j]) << x << " order " << 3 + j;
    }
  }
}

TEST(GammaKernels, IncompleteGammaPairIsComplementaryAndMonotone) {
  for (double a : {1e-6, 0.3, 1.0, 4.5, 19.9, 20.0, 150.0, 1e5}) {
    double prev = -1.0;
    for (int i = 1; i <= 200; ++i) {
      const double x = a * i / 60.0;
      double p = 0.0;
      double q = 0.0;
      char eb[200];
      int ifail = 0;
      s14bafn(a, x, 0.0, p, q, eb, ifail);
      ASSERT_EQ(ifail, 0);
      EXPECT_NEAR(p + q, 1.0, 2 * DBL_EPSILON) << a << " " << x;
      EXPECT_GE(p, prev) << a << " " << x;
      prev = p;
    }
  }
}

TEST(GammaKernels, IncompleteGammaToleranceAndEdges) {
  char eb[200];
  int ifail = 0;
  double p = -1.0;
  double q = -1.0;
  s14bafn(3.0, 0.0, 0.0, p, q, eb, ifail);
  EXPECT_EQ(ifail, 0);
  EXPECT_EQ(p, 0.0);
  EXPECT_EQ(q, 1.0);
  // A looser tolerance changes the value by no more than itself.
  double pt = 0.0;
  double qt = 0.0;
  s14bafn(7.0, 2.0, 0.0, p, q, eb, ifail);
  s14bafn(7.0, 2.0, 1e-8, pt, qt, eb, ifail);
  EXPECT_NEAR(pt, p, 1e-8 * p);
  // TOL above 1 is not taken: the machine precision stands.
  s14bafn(7.0, 2.0, 5.0, pt, qt, eb, ifail);
  EXPECT_EQ(pt, p);
  // A NaN argument is refused, not iterated on.
  s14bafn(NAN, 1.0, 0.0, p, q, eb, ifail);
  EXPECT_EQ(ifail, 1);
  s14bafn(1.0, NAN, 0.0, p, q, eb, ifail);
  EXPECT_EQ(ifail, 2);
}

TEST(GammaKernels, IncompleteBetaSymmetryAndChecks) {
  for (double a : {1e-4, 0.5, 3.0, 40.0, 2500.0}) {
    for (double b : {1e-3, 0.7, 6.0, 300.0}) {
      for (double y : {0.999, 0.9, 0.5, 0.25, 0.01}) {
        const double x = 1.0 - y;
        double w = 0.0, w1 = 0.0, v = 0.0, v1 = 0.0;
        ASSERT_EQ(s14cczn(a, b, x, y, w, w1), 0);
        ASSERT_EQ(s14cczn(b, a, y, x, v, v1), 0);
        EXPECT_EQ(w, v1) << a << " " << b << " " << x;
        EXPECT_EQ(w1, v) << a << " " << b << " " << x;
        EXPECT_NEAR(w + w1, 1.0, 2 * DBL_EPSILON);
      }
    }
  }
  double w = 7.0, w1 = 7.0;
  EXPECT_EQ(s14cczn(0.0, 1.0, 0.5, 0.5, w, w1), 1);
  EXPECT_EQ(s14cczn(1.0, NAN, 0.5, 0.5, w, w1), 1);
  EXPECT_EQ(s14cczn(1.0, 1.0, 1.5, -0.5, w, w1), 2);
  EXPECT_EQ(s14cczn(1.0, 1.0, 0.3, 0.3, w, w1), 2);
  EXPECT_EQ(s14cczn(2.0, 3.0, 0.0, 1.0, w, w1), 0);
  EXPECT_EQ(w, 0.0);
  EXPECT_EQ(w1, 1.0);
  EXPECT_EQ(s14cczn(2.0, 3.0, 1.0, 0.0, w, w1), 0);
  EXPECT_EQ(w, 1.0);
  EXPECT_EQ(w1, 0.0);
  // I_x(1, 1) = x.
  EXPECT_EQ(s14cczn(1.0, 1.0, 0.375, 0.625, w, w1), 0);
  EXPECT_NEAR(w, 0.375, 2 * DBL_EPSILON);
  EXPECT_TRUE(std::isnan(s14cbzn(-1.0, 2.0)));
  EXPECT_EQ(s14cbzn(2.5, 0.75), s14cbzn(0.75, 2.5));
}

TEST(GammaKernels, ComplexRecurrencesAndSymmetry) {
  using cplx = std::complex<double>;
  char eb[200];
  int ifail = 0;
  for (cplx z : {cplx(0.3, 0.4), cplx(-2.7, 1.5), cplx(5.0, -7.0), cplx(-30.2, -0.01)}) {
    // psi(z+1) = psi(z) + 1/z
    const cplx a = s14affn(z + 1.0, 0, eb, ifail);
    const cplx b = s14affn(z, 0, eb, ifail) + 1.0 / z;
    EXPECT_LT(std::abs(a - b), 1e-13 * std::abs(a)) << z;
    // conj symmetry off the cut
    const cplx c = s14agfn(std::conj(z), eb, ifail);
    const cplx d = std::conj(s14agfn(z, eb, ifail));
    EXPECT_EQ(c, d) << z;
    // ln gamma(z+1) = ln gamma(z) + ln z, up to a multiple of 2 pi i
    const cplx e = s14agfn(z + 1.0, eb, ifail) - s14agfn(z, eb, ifail) - std::log(z);
    EXPECT_LT(std::abs(e.real()), 1e-12 * (1.0 + std::abs(s14agfn(z, eb, ifail))));
    const double turns = e.imag() / (2 * M_PI);
    EXPECT_NEAR(turns, std::nearbyint(turns), 1e-12) << z;
  }
}

TEST(GammaKernels, ReflectionMatchesThePositiveSide) {
  // psi^(K)(x) and psi^(K)(1-x) at x = 1/2 + t agree through the reflection:
  // the routine's two paths meet at x = 1/2.
  char eb[200];
  int ifail = 0;
  for (int k = 0; k <= 6; ++k) {
    const double below = s14aefn(std::nextafter(0.5, 0.0), k, eb, ifail);
    const double at = s14aefn(0.5, k, eb, ifail);
    EXPECT_NEAR(below, at, 1e-14 * std::fabs(at) + 1e-300) << k;
  }
}

}  // namespace
