// psi^(K)(z) for z = x + iy with x >= 1/2, y >= 0 and 0 <= K <= 6: the
// asymptotic expansion at w = z + n, |w| >= 8 + K/2, after upward recurrence:
//   psi^(K)(z) = psi^(K)(w) - (-1)^K K! sum_{i<n} (z+i)^-(K+1),
//   psi(w) ~ ln w - 1/(2w) - sum_j b_j f_j w^-2j,
//   psi^(K)(w) ~ (-1)^(K+1) K! w^-K [1/K + 1/(2w) + sum_j b_j f_j w^-2j],
// with b_j = B_2j/(2j)!, f_j = (K+1)(K+2)...(K+2j-1). The recurrence sum and
// the leading terms, which cancel near the zeros, in x87 extended precision;
// the tail of the series, below 3e-3 of the leading term, in double.
#include <bit>
#include <cmath>
#include <cstdint>

#include "zeb_ext.h"
#include "zeb_s_bernoulli.h"
#include "zeb_s_ib_aux.h"
#include "zeb_s_series.h"

namespace {

using zeb::ext::ld;
using zeb::s::kNBern;

constexpr int kMaxOrder = 6;
constexpr double kFactorial[] = {1, 1, 2, 6, 24, 120, 720};

// c_Kj = b_j f_j for each order K, from the table of b_j at compile time
// (f_j exact up to 2^53; the terms that carry two roundings are below 3e-3 of
// the leading one, so they move the value by less than 1e-18 of it).
struct Coefs {
  double c[kMaxOrder + 1][kNBern] = {};
  constexpr Coefs() {
    for (int k = 0; k <= kMaxOrder; ++k) {
      double f = k + 1.0;
      for (int j = 0; j < kNBern; ++j) {
        c[k][j] = zeb::s::kBern[j] * f;
        f *= (k + 2.0 * j + 2.0) * (k + 2.0 * j + 3.0);
      }
    }
  }
};
constexpr Coefs kCoef;

constexpr double abs(double v) { return v < 0 ? -v : v; }

// The series is taken until the bound |c_Kj| |w|^-2j of the next term falls
// below this, against a leading term of at least 1/6 (ln 8 for K = 0). With
// the shift to |w| >= 8 + K/2 and the counts of kTerms the truncation error
// is below 1e-18 of psi^(K)(w) (tools/refdata/fit_s14ag.py, which measures
// it against mpmath on the boundary and the circles at which the count
// changes).
constexpr double kTol = 1e-21;

// The number of terms for each order K and each quarter binade of
// a = |w|^-2, from the bound at the top of it (below 2^-63, one term): the
// index i = 4095 - (the exponent and first two fraction bits of a) stands for
// a below 2^(be - 1023) (1 + (m+1)/4), be = (4095 - i) / 4, m = (4095 - i) % 4.
constexpr int kSlots = 256;
struct Terms {
  unsigned char n[kMaxOrder + 1][kSlots] = {};
  constexpr Terms() {
    for (int k = 0; k <= kMaxOrder; ++k) {
      for (int i = 0; i < kSlots; ++i) {
        const int key = 4095 - i;
        double a = 1.0 + ((key & 3) + 1) / 4.0;
        for (int e = key >> 2; e < 1023; ++e) a *= 0.5;
        int nt = 1;
        double bound = a * a;
        while (nt < kNBern && abs(kCoef.c[k][nt]) * bound > kTol) {
          bound *= a;
          ++nt;
        }
        n[k][i] = static_cast<unsigned char>((nt + 1) & ~1);
      }
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

// The kernel for one order, so that the powers unroll.
template <int k>
void kernel(double x, double y, double& re, double& im) {
  const double radius = 8.0 + 0.5 * k;
  int n = 0;
  if (y < radius) {
    const double need = std::sqrt(radius * radius - y * y) - x;
    if (need > 0.0) n = static_cast<int>(std::ceil(need));
  }
  // u = x + n exactly (x >= 1/2, n <= 11).
  const ld u = static_cast<ld>(x) + n;
  const ld yl = y;
  const ld y2 = yl * yl;
  const ld m2 = u * u + y2;
  const ld inv = 1.0L / m2;
  const ld iwr = u * inv;  // 1/w
  const ld iwi = -yl * inv;

  // The series in t = 1/w^2 (double), as many terms as kTerms asks, by two
  // Horner chains in t^2 (the even and the odd powers). Beyond |w| = 2^100
  // it adds nothing, and is left out: 1/w in double could fall among the
  // subnormals, where each operation costs a hundred cycles.
  double sr = 0.0;
  double si = 0.0;
  if (m2 < 0x1p200L) {
    const double* c = kCoef.c[k];
    const double ir = static_cast<double>(iwr);
    const double ii = static_cast<double>(iwi);
    const double tr = ir * ir - ii * ii;
    const double ti = 2.0 * ir * ii;
    const int nt = kTerms.n[k][slot(static_cast<double>(inv))];
    double pr = 0.0;
    double pj = 0.0;
    zeb::series::complex_horner2(c, nt, tr, ti, pr, pj);
    sr = pr * tr - pj * ti;  // ser = t * (the polynomial)
    si = pr * ti + pj * tr;
  }

  // sum_{i<n} (z+i)^-(K+1), smallest terms first
  ld sumr = 0.0L;
  ld sumi = 0.0L;
  for (int i = n - 1; i >= 0; --i) {
    const ld xi = static_cast<ld>(x) + i;
    const ld d = 1.0L / (xi * xi + y2);
    const ld rr = xi * d;
    const ld ri = -yl * d;
    ld pr2 = rr;
    ld pi2 = ri;
    for (int j = 0; j < k; ++j) {
      const ld nr = pr2 * rr - pi2 * ri;
      pi2 = pr2 * ri + pi2 * rr;
      pr2 = nr;
    }
    sumr += pr2;
    sumi += pi2;
  }

  ld vr = 0.0L;
  ld vi = 0.0L;
  if constexpr (k == 0) {
    // psi(z) = ln w - 1/(2w) - ser - sum; arg w from the double nearest u,
    // moved by d arg/du = -y/|w|^2 for the part of u the double drops.
    const double ud = static_cast<double>(u);
    const ld theta = static_cast<ld>(std::atan2(y, ud)) - (u - ud) * yl * inv;
    vr = 0.5L * logl(m2) - 0.5L * iwr - sr - sumr;
    vi = theta - 0.5L * iwi - si - sumi;
  } else {
    // S_K(w) = w^-K [1/K + 1/(2w) + ser]; S_K(z) = S_K(w) + sum
    ld wr = iwr;
    ld wi = iwi;
    for (int j = 1; j < k; ++j) {
      const ld nr = wr * iwr - wi * iwi;
      wi = wr * iwi + wi * iwr;
      wr = nr;
    }
    const ld br = 1.0L / k + 0.5L * iwr + sr;
    const ld bi = 0.5L * iwi + si;
    const ld sign = (k % 2 == 1 ? 1.0L : -1.0L) * kFactorial[k];
    vr = sign * (wr * br - wi * bi + sumr);
    vi = sign * (wr * bi + wi * br + sumi);
  }
  re = static_cast<double>(vr);
  im = static_cast<double>(vi);
}

}  // namespace

void s14afzn(double x, double y, int k, double& re, double& im) {
  zeb::ext::Precision guard;
  switch (k) {
    case 0: kernel<0>(x, y, re, im); break;
    case 1: kernel<1>(x, y, re, im); break;
    case 2: kernel<2>(x, y, re, im); break;
    case 3: kernel<3>(x, y, re, im); break;
    case 4: kernel<4>(x, y, re, im); break;
    case 5: kernel<5>(x, y, re, im); break;
    default: kernel<6>(x, y, re, im); break;
  }
  guard.release(re, im);
}
