// The complex polygamma and ln gamma where their kernels change course: on
// both sides of the radius at which the upward shift stops, across the point
// (|w| = 2^100) from which the series is cut to its first term, on the real
// axis (whose imaginary part must come out as +0, since the Fortran callers
// print its sign), and under a caller that has narrowed the x87 precision.
#include <fpu_control.h>
#include <gtest/gtest.h>

#include <cmath>
#include <complex>

#include "zeb_s_ib.h"

namespace {

using cplx = std::complex<double>;
using lcplx = std::complex<long double>;

cplx psi(cplx z, int k) {
  char eb[200];
  int ifail = -1;
  const cplx v = s14affn(z, k, eb, ifail);
  EXPECT_EQ(ifail, 0) << z << " k " << k;
  return v;
}

cplx lngamma(cplx z) {
  char eb[200];
  int ifail = -1;
  const cplx v = s14agfn(z, eb, ifail);
  EXPECT_EQ(ifail, 0) << z;
  return v;
}

constexpr double kFact[] = {1, 1, 2, 6, 24};

TEST(ComplexGammaShift, PolygammaRecurrenceAcrossTheShiftRadius) {
  // psi^(K)(z+1) = psi^(K)(z) + (-1)^K K! z^-(K+1), with z just inside and
  // just outside |z| = 8 + K/2 (z+1 then needs one step fewer, or none).
  for (int k = 0; k <= 4; ++k) {
    const double r = 8.0 + 0.5 * k;
    for (double deg : {0.0, 30.0, 60.0, 80.0}) {
      for (double dr : {-0.5, -1e-9, 1e-9, 0.5}) {
        const cplx z = std::polar(r + dr, deg * M_PI / 180.0) - 1.0;
        const cplx step = (k % 2 == 0 ? 1.0 : -1.0) * kFact[k] * std::pow(z, -(k + 1));
        const cplx a = psi(z + 1.0, k);
        const cplx b = psi(z, k) + step;
        EXPECT_LT(std::abs(a - b), 4e-15 * std::abs(a)) << z << " k " << k;
      }
    }
  }
}

TEST(ComplexGammaShift, LogGammaRecurrenceAcrossTheShiftRadius) {
  for (double deg : {0.0, 20.0, 45.0, 70.0, 85.0}) {
    for (double dr : {-0.5, -1e-9, 1e-9, 0.5}) {
      const cplx z = std::polar(8.0 + dr, deg * M_PI / 180.0) - 1.0;
      const cplx e = lngamma(z + 1.0) - lngamma(z) - std::log(z);
      EXPECT_LT(std::abs(e), 4e-15 * std::abs(lngamma(z))) << z;
    }
  }
}

TEST(ComplexGammaShift, LargeArgumentsMatchTheLeadingTerms) {
  // Beyond |w| = 2^100 the kernels keep the first term of the series only;
  // check against the expansions to that order, in extended precision,
  // on both sides of that point and far beyond it.
  for (double m : {0x1p99, 0x1p100 * (1 - 1e-15), 0x1p100 * (1 + 1e-15), 1e150}) {
    for (double deg : {0.0, 45.0, 89.0}) {
      const cplx z = std::polar(m, deg * M_PI / 180.0);
      const lcplx zl(z.real(), z.imag());
      const lcplx lg = (zl - 0.5L) * std::log(zl) - zl + 0.9189385332046727417803297L +
                       1.0L / (12.0L * zl);
      const cplx g = lngamma(z);
      EXPECT_LT(std::abs(lcplx(g.real(), g.imag()) - lg), 2.5e-16L * std::abs(lg)) << z;
      const lcplx p0 = std::log(zl) - 1.0L / (2.0L * zl);
      const cplx p = psi(z, 0);
      EXPECT_LT(std::abs(lcplx(p.real(), p.imag()) - p0), 2.5e-16L * std::abs(p0)) << z;
      // psi'(z) ~ 1/z + 1/(2z^2), psi''(z) ~ -1/z^2 - 1/z^3
      const lcplx p1 = 1.0L / zl + 1.0L / (2.0L * zl * zl);
      const cplx q = psi(z, 1);
      EXPECT_LT(std::abs(lcplx(q.real(), q.imag()) - p1), 2.5e-16L * std::abs(p1)) << z;
      if (m < 1e100) {
        const lcplx p2 = -1.0L / (zl * zl) - 1.0L / (zl * zl * zl);
        const cplx s = psi(z, 2);
        EXPECT_LT(std::abs(lcplx(s.real(), s.imag()) - p2), 2.5e-16L * std::abs(p2)) << z;
      }
    }
  }
  // psi^(4)(1e150) ~ -6e-600 underflows to zero, quietly.
  EXPECT_EQ(psi(cplx(1e150, 0.0), 4), cplx(0.0, 0.0));
}

TEST(ComplexGammaShift, RealArgumentsGivePositiveZeroImaginaryParts) {
  for (double x : {0.5, 1.5, 3.25, 7.99, 8.0, 12.5, 1e40}) {
    const cplx g = lngamma(cplx(x, 0.0));
    EXPECT_EQ(g.imag(), 0.0) << x;
    EXPECT_FALSE(std::signbit(g.imag())) << x;
    for (int k = 0; k <= 4; ++k) {
      const cplx p = psi(cplx(x, 0.0), k);
      EXPECT_EQ(p.imag(), 0.0) << x << " k " << k;
      EXPECT_FALSE(std::signbit(p.imag())) << x << " k " << k;
    }
  }
}

TEST(ComplexGammaShift, NarrowedX87PrecisionChangesNothing) {
  // The kernels carry their sums in the 64-bit x87 format: a caller that
  // left the precision control at 53 bits must get the same bits back, and
  // find its own setting unchanged.
  const cplx zs[] = {{1.4616, 0.01}, {0.7, 3.0}, {-2.3, 0.4}, {5.5, -7.25}, {30.0, 2.0}};
  cplx ref[5][6];
  for (int i = 0; i < 5; ++i) {
    ref[i][5] = lngamma(zs[i]);
    for (int k = 0; k <= 4; ++k) ref[i][k] = psi(zs[i], k);
  }
  fpu_control_t saved = 0;
  _FPU_GETCW(saved);
  fpu_control_t narrow = (saved & ~_FPU_EXTENDED) | _FPU_DOUBLE;
  _FPU_SETCW(narrow);
  cplx got[5][6];
  for (int i = 0; i < 5; ++i) {
    got[i][5] = lngamma(zs[i]);
    for (int k = 0; k <= 4; ++k) got[i][k] = psi(zs[i], k);
  }
  fpu_control_t after = 0;
  _FPU_GETCW(after);
  _FPU_SETCW(saved);
  EXPECT_EQ(after, narrow);
  for (int i = 0; i < 5; ++i) {
    for (int j = 0; j < 6; ++j) EXPECT_EQ(got[i][j], ref[i][j]) << zs[i] << " " << j;
  }
}

}  // namespace
