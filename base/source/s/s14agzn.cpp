// ln gamma(z) for z = x + iy with x >= 1/2 and y >= 0, the principal branch
// (real on the positive axis, continuous elsewhere): Stirling's series at
// w = z + n, |w| >= 8,
//   ln gamma(w) = (w - 1/2) ln w - w + (1/2) ln(2 pi) + D(w),
//   D(w) = sum_k B_2k / (2k (2k-1) w^(2k-1)),
// less ln prod_{i<n} (z+i). The large parts, which cancel where ln gamma(z)
// is small, are carried in x87 extended precision (11 bits beyond double):
// the real part takes ln|w| and ln|prod (z+i)|^2 from logl, the imaginary
// part gathers n arg w - sum arg(z+i) as the angle of the one product
// prod w conj(z+i), each factor of which turns it by less than a right angle
// clockwise, so that counting its crossings of the negative real axis puts
// that angle on the right branch. D(w), below 1/96 of the rest, in double.
#include <bit>
#include <cmath>
#include <cstdint>

#include "zeb_ext.h"
#include "zeb_s_bernoulli.h"
#include "zeb_s_ib_aux.h"
#include "zeb_s_series.h"

namespace {

using zeb::ext::ld;

// Stirling coefficients B_2k/(2k(2k-1)) = b_k (2k-2)!, k = 1..16, from the
// table b_k = B_2k/(2k)! at compile time: the first is 1/12 rounded once,
// the others carry two roundings, which at |w| >= 8 (their sum below 2e-3 of
// 1/(12 w)) move D(w) by less than 1e-19.
struct Stirling {
  double c[16] = {};
  constexpr Stirling() {
    double f = 1.0;  // (2k-2)!
    for (int k = 1; k <= 16; ++k) {
      c[k - 1] = zeb::s::kBern[k - 1] * f;
      f *= (2.0 * k - 1.0) * (2.0 * k);
    }
  }
};
constexpr Stirling kStirling;
constexpr int kNStirling = 16;

// (1/2) ln(2 pi) as hi + lo.
constexpr double kHalfLn2PiHi = 0.9189385332046728;
constexpr double kHalfLn2PiLo = -3.8782941580672414e-17;
constexpr double kTwoPiHi = 6.283185307179586;
constexpr double kTwoPiLo = 2.4492935982947064e-16;

// Shift target: the series is used from |w| >= 8, where with the counts of
// kTerms it leaves an absolute error below 1e-19 (tools/refdata/fit_s14ag.py,
// which measures it against mpmath on the boundary and the circles at which
// the count changes).
constexpr double kRadius = 8.0;

// Terms are taken until the next one, bounded by |c_k| |w|^-(2k-1), is below
// this (absolute, against results that cancel to no less than about 0.1).
constexpr double kTol = 1e-21;

constexpr double abs(double v) { return v < 0 ? -v : v; }

// The number of terms for each quarter binade of a = |w|^-2, from the bound
// at the top of it (below 2^-63, one term), rounded up to an even count for
// the two chains of the sum: the index i = 4095 - (the exponent and first two
// fraction bits of a) stands for a below 2^(be - 1023) (1 + (m+1)/4),
// be = (4095 - i) / 4, m = (4095 - i) % 4.
constexpr int kSlots = 256;
struct Terms {
  unsigned char n[kSlots] = {};
  constexpr Terms() {
    for (int i = 0; i < kSlots; ++i) {
      const int key = 4095 - i;
      double a = 1.0 + ((key & 3) + 1) / 4.0;
      for (int e = key >> 2; e < 1023; ++e) a *= 0.5;
      double r = 2.0;  // sqrt(a) from above, by bisection
      double lo = 0.0;
      for (int j = 0; j < 80; ++j) {
        const double mid = 0.5 * (lo + r);
        if (mid * mid >= a) r = mid; else lo = mid;
      }
      int nt = 1;
      double bound = a * r;  // |w|^-3
      while (nt < kNStirling && abs(kStirling.c[nt]) * bound > kTol) {
        bound *= a;
        ++nt;
      }
      n[i] = static_cast<unsigned char>((nt + 1) & ~1);
    }
  }
};
constexpr Terms kTerms;

// The slot of a positive double a below 2 in kTerms (zero and subnormals in
// the last).
inline int slot(double a) {
  const int i = 4095 - static_cast<int>(std::bit_cast<std::uint64_t>(a) >> 50);
  return i < kSlots ? i : kSlots - 1;
}

}  // namespace

void s14agzn(double x, double y, double& re, double& im) {
  zeb::ext::Precision guard;
  int n = 0;
  if (y < kRadius) {
    const double need = std::sqrt(kRadius * kRadius - y * y) - x;
    if (need > 0.0) n = static_cast<int>(std::ceil(need));
  }
  // u = x + n is exact in 64 bits (x >= 1/2, n <= 8).
  const ld u = static_cast<ld>(x) + n;
  const ld yl = y;
  const ld m2 = u * u + yl * yl;  // no overflow in the extended range
  const ld lw = 0.5L * logl(m2);
  const ld inv = 1.0L / m2;
  // arg w from the double nearest u, moved by d arg/du = -y/|w|^2 for the
  // part of u that the double drops.
  const double ud = static_cast<double>(u);
  const ld theta = static_cast<ld>(std::atan2(y, ud)) - (u - ud) * yl * inv;

  // D(w) = (1/w) sum_k c_k t^(k-1), t = 1/w^2, in double: two Horner chains
  // in t^2, for the even and the odd k. Beyond |w| = 2^100 only the first
  // term counts, and it is formed in the extended range: 1/w in double could
  // fall among the subnormals, where each operation costs a hundred cycles.
  const double* c = kStirling.c;
  ld dre = c[0] * u * inv;
  ld dim = -c[0] * yl * inv;
  if (m2 < 0x1p200L) {
    const double ir = static_cast<double>(u * inv);    // Re 1/w
    const double ii = static_cast<double>(-yl * inv);  // Im 1/w
    const double tr = ir * ir - ii * ii;
    const double ti = 2.0 * ir * ii;
    const int nt = kTerms.n[slot(static_cast<double>(inv))];
    double pr = 0.0;
    double pj = 0.0;
    zeb::series::complex_horner2(c, nt, tr, ti, pr, pj);
    dre = pr * ir - pj * ii;
    dim = pr * ii + pj * ir;
  }

  ld res = (u - 0.5L) * lw - yl * theta - u + (static_cast<ld>(kHalfLn2PiHi) + kHalfLn2PiLo) + dre;
  // Im: y ln|w| - y + (x - 1/2) arg w + [n arg w - sum_i arg(z+i)] + Im D.
  ld ims = yl * lw - yl + (static_cast<ld>(x) - 0.5L) * theta + dim;

  if (n > 0) {
    // |prod (z+i)|^2, and prod w conj(z+i) = prod [(u(x+i) + y^2) - i y (n-i)]
    // with the number of its clockwise passes over the negative real axis.
    ld mp = 1.0L;
    ld qr = 1.0L;
    ld qi = 0.0L;
    int turns = 0;
    const ld y2 = yl * yl;
    for (int i = 0; i < n; ++i) {
      const ld xi = static_cast<ld>(x) + i;
      mp *= xi * xi + y2;
      const ld fr = u * xi + y2;
      const ld fi = -yl * (n - i);
      const ld nr = qr * fr - qi * fi;
      const ld ni = qr * fi + qi * fr;
      if (qi < 0.0L && ni >= 0.0L) ++turns;
      qr = nr;
      qi = ni;
    }
    res -= 0.5L * logl(mp);
    ld phi = std::atan2(static_cast<double>(qi), static_cast<double>(qr));
    // The double angle is good to an ulp of itself; where the imaginary
    // part, and a tenth of the real part, come out well below it (near the
    // zeros of psi on the real axis, or where arg gamma crosses zero), the
    // angle in 64 bits.
    const ld rough = ims + phi;
    if (4.0 * std::fmax(std::fabs(static_cast<double>(rough)), 0.1 * std::fabs(static_cast<double>(res))) <
        std::fabs(static_cast<double>(phi))) {
      phi = atan2l(qi, qr);
    }
    if (turns > 0) phi -= turns * (static_cast<ld>(kTwoPiHi) + kTwoPiLo);
    ims += phi;
  }
  re = static_cast<double>(res);
  im = static_cast<double>(ims);
  guard.release(re, im);
}
