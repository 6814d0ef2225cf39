// One order of the polygamma kernel, in the manner of Amos's algorithm: the
// asymptotic expansion in 1/x, after upward recurrence from below the switch
// point. The value is returned as (m.hi + m.lo) 2^e, so that orders whose
// values lie beyond the range of the reals are still formed; s14aczn judges
// overflow and underflow from it. e is 0 exactly when the value is a normal
// double or 0, m.hi being then the value rounded once.
//
// Order 0: kode 1 gives -psi(x), kode 2 gives ln x - psi(x). Order k >= 1:
// S_k(x) = (-1)^(k+1) psi^(k)(x) / k!, which is the Hurwitz zeta function
// zeta(k+1, x) = sum_i (x+i)^-(k+1).
//
// Order 0 and the orders up to 1000 whose powers of x stay within 2^+-16000
// are carried in the x87 extended format, a rounding of 2^-64 a step; the
// rest, orders beyond 1000 or arguments whose powers leave even that range,
// keep the value scaled throughout in double-double.
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_s_bernoulli.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

// ln(hi + lo) in the extended format to 2^-62 (s01bazn.cpp).
long double s01bazn(double hi, double lo);

namespace {

using zeb::dd::dd;
using zeb::ext::ld;

using zeb::s::kBern;
using zeb::s::kNBern;

// The switch point for order k: the expansion is used from x >= 18.06 + k/2,
// where its 22 terms reach 2^-60 of the value (tools/refdata/fit_s14ac.py
// checks it); 18.06 is the point for the 18 digits that the longest series
// band of chapter s carries.
constexpr double kXmin0 = 18.06;
constexpr double kXminSlope = 0.5;

// B_2j/(2j), j = 1..8: exact rationals rounded to double
// (tools/refdata/fit_s14ac.py); the ninth term is below 2.6e-21 of
// ln x - psi(x) for x >= 18.06.
constexpr double kPsiAsym[] = {
    0.08333333333333333,
    -0.008333333333333333,
    0.003968253968253968,
    -0.004166666666666667,
    0.007575757575757576,
    -0.021092796092796094,
    0.08333333333333333,
    -0.4432598039215686,
};

// Keeps a scaled value's leading part in [1/2, 1).
void renorm(dd& m, long long& e) {
  int k = 0;
  m.hi = std::frexp(m.hi, &k);
  m.lo = std::ldexp(m.lo, -k);
  e += k;
}

// b^p for a double-double b in [1/2, 1] as m 2^e, by binary powering with
// the exponent kept apart, so that nothing overflows or underflows.
void power(dd b, long long p, dd& m, long long& e) {
  m = dd{1.0, 0.0};
  e = 0;
  long long be = 0;
  renorm(b, be);
  for (;;) {
    if (p & 1) {
      m = zeb::dd::mul(m, b);
      e += be;
      renorm(m, e);
    }
    p >>= 1;
    if (p == 0) break;
    b = zeb::dd::mul(b, b);
    be *= 2;
    renorm(b, be);
  }
}

// The bracket of the expansion at y (y.hi >= the switch point), k >= 1:
// A_k(y) = 1/k + 1/(2y) + sum_j b_j (k+1)...(k+2j-1) y^-2j, so that
// S_k(y) = y^-k A_k(y). The first two terms in double-double, the series (up
// to a seventh of them for high orders, whose condition number k+1 covers
// its rounding) in double, with the running product of the factors kept in
// ratio to y^2 so that no part overflows for high orders.
dd bracket(dd y, int k, double tol) {
  using namespace zeb::dd;
  if (y.hi > 0x1p900) {
    // Only 1/(2y) is left of the series; it lies below the last place of 1/k.
    return add(recip(dd{static_cast<double>(k), 0.0}), 0.5 / y.hi);
  }
  const double z = 1.0 / (y.hi * y.hi);
  double r = (k + 1.0) * z;  // (k+1)...(k+2j-1) y^-2j for j = 1
  double ser = 0.0;
  for (int j = 0; j < kNBern; ++j) {
    const double term = kBern[j] * r;
    ser += term;
    if (std::fabs(term) <= tol * std::fabs(ser)) break;
    r *= (k + 2.0 * j + 2.0) * (k + 2.0 * j + 3.0) * z;
  }
  const dd a = add(recip(mul(y, 2.0)), recip(dd{static_cast<double>(k), 0.0}));
  return add(a, ser);
}

// Order k >= 1 with the value kept scaled throughout, in double-double: for
// the orders and arguments whose powers leave the range of the extended
// format. S_k(x) = x^-(k+1) T with
//   T = sum_{i<n} (x/(x+i))^(k+1) + x (x/xs)^k A_k(xs),  xs = x + n,
// or, with no recurrence, S_k(x) = x^-k A_k(x).
void scaled_kernel(double x, int k, double tol, dd& m, long long& e) {
  using namespace zeb::dd;
  const double xmin = kXmin0 + kXminSlope * k;
  const int nrec = x < xmin ? static_cast<int>(std::ceil(xmin - x)) : 0;
  int ex = 0;
  const double fx = std::frexp(x, &ex);
  dd pm;
  long long pe = 0;
  if (nrec == 0) {
    const dd a = bracket(dd{x, 0.0}, k, tol);
    power(dd{fx, 0.0}, k, pm, pe);
    pe += static_cast<long long>(ex) * k;
    m = div(a, pm);
    e = -pe;
    renorm(m, e);
    return;
  }
  dd t{1.0, 0.0};
  bool tail = true;
  for (int i = 1; i < nrec; ++i) {
    const dd q = div(dd{x, 0.0}, two_sum(x, i));
    dd qm;
    long long qe = 0;
    power(q, k + 1LL, qm, qe);
    const double term = std::ldexp(qm.hi, static_cast<int>(qe < -2000 ? -2000 : qe));
    t = add(t, dd{term, std::ldexp(qm.lo, static_cast<int>(qe < -2000 ? -2000 : qe))});
    // The rest of the sum, to infinity, is below term (1 + (x+i)/k).
    if (term * (1.0 + (x + i) / k) <= tol * t.hi) {
      tail = false;
      break;
    }
  }
  if (tail) {
    const dd xs = two_sum(x, nrec);
    const dd a = bracket(xs, k, tol);
    dd qm;
    long long qe = 0;
    power(div(dd{x, 0.0}, xs), k, qm, qe);
    const dd v = mul(mul(a, qm), x);
    const int q = static_cast<int>(qe < -2000 ? -2000 : qe);
    t = add(t, dd{std::ldexp(v.hi, q), std::ldexp(v.lo, q)});
  }
  power(dd{fx, 0.0}, k + 1LL, pm, pe);
  pe += static_cast<long long>(ex) * (k + 1LL);
  m = div(t, pm);
  e = -pe;
  renorm(m, e);
}

// ---------------------------------------------------------------------------
// The kernel in the x87 extended format (zeb_ext.h), for every argument of
// order 0 and for orders up to kMaxFast whose powers stay inside the range
// of the format: the recurrence sums and powers carried to 2^-64 a step,
// with no scaling.

constexpr int kMaxFast = 1000;
// Up to this order the recurrence sums all its terms as one fraction.
constexpr int kMaxFraction = 8;

// b_j = B_2j/(2j)!, j = 1..22, as hi + lo, each part the correctly rounded
// double (tools/refdata/fit_s14ac.py): the series of the orders k >= 1 takes
// them to the 64 bits of the format, its first term being up to a seventh
// of the bracket for high orders.
constexpr double kBernPairs[][2] = {
    {0.08333333333333333, 4.625929269271485e-18},
    {-0.001388888888888889, 5.300543954373577e-20},
    {3.306878306878307e-05, -2.2300719288557665e-21},
    {-8.267195767195768e-07, 3.457597454003665e-23},
    {2.08767569878681e-08, -1.2073450591132599e-24},
    {-5.284190138687493e-10, 3.517096671929869e-27},
    {1.3382536530684679e-11, -2.828354019907999e-29},
    {-3.3896802963225827e-13, -1.4986928409964295e-29},
    {8.586062056277845e-15, -6.05252374381974e-31},
    {-2.174868698558062e-16, 4.961617782549996e-33},
    {5.5090028283602295e-18, -1.49827152194499e-35},
    {-1.3954464685812522e-19, -1.0350590497256251e-35},
    {3.534707039629467e-21, 1.894231142684204e-37},
    {-8.953517427037546e-23, -5.728752743153026e-39},
    {2.267952452337683e-24, 1.3043458462619563e-40},
    {-5.744790668872202e-26, 1.663242973708004e-43},
    {1.455172475614865e-27, -5.613265715443096e-44},
    {-3.6859949406653103e-29, 1.0778256413554197e-45},
    {9.336734257095045e-31, -3.9347970210731877e-47},
    {-2.36502241570063e-32, 2.0347170931532494e-49},
    {5.990671762482134e-34, 1.6265467158179092e-50},
    {-1.5174548844682903e-35, 5.493014407946745e-52},
};
constexpr zeb::ext::Pairs kBernX(kBernPairs);
static_assert(sizeof(kBernPairs) / sizeof(kBernPairs[0]) == kNBern);

// b^p, p >= 1, by binary powering: about p roundings of 2^-64 reach the
// result, which the condition number p of x^-p matches.
inline ld ipow(ld b, int p) {
  ld r = (p & 1) ? b : 1.0L;
  for (p >>= 1; p != 0; p >>= 1) {
    b *= b;
    if (p & 1) r *= b;
  }
  return r;
}

// The exponent e of x = f 2^e, f in [1, 2), from its bits (-1023 for a
// subnormal x, which only makes the range test below stricter).
inline int exponent(double x) {
  return static_cast<int>((std::bit_cast<std::uint64_t>(x) >> 52) & 0x7ff) - 1023;
}

// ln y - psi(y) - 1/(2y) = z (B_2/2 + B_4/4 z + ...), z = 1/y^2, y >= 18.06:
// below 2.6e-4 of ln y - psi(y), so that double suffices.
inline double series0(double z) {
  const double* c = kPsiAsym;
  const double z2 = z * z;
  const double even = c[0] + z2 * (c[2] + z2 * (c[4] + z2 * c[6]));
  const double odd = c[1] + z2 * (c[3] + z2 * (c[5] + z2 * c[7]));
  return z * (even + z * odd);
}

// Order 0: ln x - psi(x) (kode 2) or -psi(x) (kode 1) for any x > 0.
ld order0(double x, int kode) {
  if (x >= kXmin0) {
    // ln x - psi(x) = 1/(2x) + series; -psi(x) = that - ln x, with no
    // cancellation as ln x >= 2.89 is 100 times the rest.
    const double z = 1.0 / (x * x);  // 0 once x^2 overflows: the series is gone
    const ld b = 0.5L / x + series0(z);
    if (kode == 2) return b;
    return x <= DBL_MAX ? b - s01bazn(x, 0.0) : -static_cast<ld>(x);
  }
  // Upward recurrence to xs = x + n in [18.06, 19.06):
  //   ln x - psi(x) = sum_{i<n} 1/(x+i) + [ln xs - psi(xs)] - ln(xs/x),
  //   -psi(x)       = sum_{i<n} 1/(x+i) + [ln xs - psi(xs)] - ln xs.
  // The sum and 1/(2 xs) as two fractions P/Q, the terms of even and of odd
  // i apart so that the chains of dependent steps are half as long, joined
  // by one division; the rounding of each step is 2^-64 of the partial sum.
  const int n = static_cast<int>(std::ceil(kXmin0 - x));
  const dd xs = zeb::dd::two_sum(x, n);
  const ld xsl = static_cast<ld>(xs.hi) + xs.lo;
  ld pe = 1.0L;
  ld qe = 2.0L * xsl;
  ld po = 0.0L;
  ld qo = 1.0L;
  int i = 0;
  for (; i + 1 < n; i += 2) {
    const ld a = x + static_cast<ld>(i);
    const ld b = a + 1.0L;
    pe = pe * a + qe;
    qe *= a;
    po = po * b + qo;
    qo *= b;
  }
  if (i < n) {
    const ld a = x + static_cast<ld>(i);
    pe = pe * a + qe;
    qe *= a;
  }
  const ld sum = (pe * qo + po * qe) / (qe * qo);
  const double ser = series0(1.0 / (xs.hi * xs.hi));
  ld lg;
  if (kode == 1) {
    lg = s01bazn(xs.hi, xs.lo);
  } else if (x > 0x1p-1000) {
    // ln(xs/x) from the ratio, as it may be small against ln xs near 18.
    const ld q = xsl / x;
    const double qh = static_cast<double>(q);
    lg = s01bazn(qh, static_cast<double>(q - qh));
  } else {
    // The ratio would overflow; ln x is large and nothing cancels.
    lg = s01bazn(xs.hi, xs.lo) - s01bazn(x, 0.0);
  }
  return (sum + ser) - lg;
}

// y^-k A_k(y) for y = hi + lo >= 18.06 + k/2 and 1 <= k <= kMaxFast, with
//   A_k(y) = 1/k + 1/(2y) + sum_j b_j (k+1)(k+2)...(k+2j-1) y^-2j,
// as (1 + k (1/(2y) + series)) / (k y^k), one division besides 1/y.
ld expansion(double hi, double lo, int k, ld tol) {
  const ld y = static_cast<ld>(hi) + lo;
  const ld r = 1.0L / y;
  const ld z = r * r;
  const ld yk = ipow(y, k);
  ld c = (k + 1.0L) * z;  // (k+1)...(k+2j-1) y^-2j for j = 1
  ld ser = 0.0L;
  for (int j = 0; j < kNBern; ++j) {
    const ld term = kBernX.c[j] * c;
    ser += term;
    if (std::fabs(term) <= tol * std::fabs(ser)) break;
    c *= (static_cast<double>(k + 2 * j + 2) * static_cast<double>(k + 2 * j + 3)) * z;
  }
  return (1.0L + k * (0.5L * r + ser)) / (k * yk);
}

// S_k(x) for 1 <= k <= kMaxFast: sum_{i<n} (x+i)^-(k+1) and the expansion at
// xs = x + n, or the expansion alone from the switch point up. The sum stops
// once the rest, below t (1 + (x+i)/k) for its last term t, is negligible.
ld order_k(double x, int k, ld tol) {
  const double xmin = kXmin0 + kXminSlope * k;
  if (x >= xmin) return expansion(x, 0.0, k, tol);
  const int n = static_cast<int>(std::ceil(xmin - x));
  const int p = k + 1;
  const dd xs = zeb::dd::two_sum(x, n);
  if (k <= kMaxFraction) {
    // All n <= 23 terms as two fractions P/Q, of the even and the odd i,
    // joined by one division: each Q, a product of powers (x+i)^(k+1) <=
    // 22.06^9, stays below 2^1000.
    ld pe = 0.0L;
    ld qe = 1.0L;
    ld po = 0.0L;
    ld qo = 1.0L;
    int i = 0;
    for (; i + 1 < n; i += 2) {
      const ld a = ipow(x + static_cast<ld>(i), p);
      const ld b = ipow(x + static_cast<ld>(i + 1), p);
      pe = pe * a + qe;
      qe *= a;
      po = po * b + qo;
      qo *= b;
    }
    if (i < n) {
      const ld a = ipow(x + static_cast<ld>(i), p);
      pe = pe * a + qe;
      qe *= a;
    }
    return (pe * qo + po * qe) / (qe * qo) + expansion(xs.hi, xs.lo, k, tol);
  }
  ld s = 1.0L / ipow(x, p);
  for (int i = 1; i < n; ++i) {
    const ld a = x + static_cast<ld>(i);
    const ld t = 1.0L / ipow(a, p);
    s += t;
    if (t * (k + a) <= tol * k * s) return s;
  }
  return s + expansion(xs.hi, xs.lo, k, tol);
}

// v as (m.hi + m.lo) 2^e: e = 0 where v is a normal double, 0 or infinite
// (the limit at x = +inf), so that m.hi is v rounded once; otherwise m.hi
// in [1/2, 1].
void to_scaled(ld v, dd& m, long long& e) {
  const ld a = std::fabs(v);
  e = 0;
  if (a == INFINITY) {
    m = dd{static_cast<double>(v), 0.0};
    return;
  }
  if ((a < static_cast<ld>(DBL_MIN) && a != 0.0L) || a > static_cast<ld>(DBL_MAX)) {
    int k = 0;
    v = std::frexp(v, &k);
    e = k;
  }
  m.hi = static_cast<double>(v);
  m.lo = static_cast<double>(v - m.hi);
}

}  // namespace

void s14acyn(double x, int k, int kode, zeb::dd::dd& m, long long& e) {
  // A term below tol of the sum no longer changes it.
  const double tol = 0.0625 * x02ajfn();
  // The value and every power below lie within 2^+-16000 for these orders
  // and arguments (x + i <= 518.06 < 2^10 in the recurrence).
  const bool fast = k == 0 || (k <= kMaxFast && (k + 1) * (std::abs(exponent(x)) + 1) <= 16000);
  if (!fast) {
    scaled_kernel(x, k, tol, m, e);
    return;
  }
  zeb::ext::Precision guard(x);
  const ld v = k == 0 ? order0(x, kode) : order_k(x, k, tol);
  to_scaled(v, m, e);
  guard.release(m.hi, m.lo);
}
