// One order of the polygamma kernel, in the manner of Amos's algorithm: the
// asymptotic expansion in 1/x, after upward recurrence from below the switch
// point. The value is returned scaled, as (m.hi + m.lo) 2^e, so that orders
// whose values lie beyond the range of the reals are still formed; s14aczn
// judges overflow and underflow from it.
//
// Order 0: kode 1 gives -psi(x), kode 2 gives ln x - psi(x). Order k >= 1:
// S_k(x) = (-1)^(k+1) psi^(k)(x) / k!, which is the Hurwitz zeta function
// zeta(k+1, x) = sum_i (x+i)^-(k+1).
#include <climits>
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_bernoulli.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::dd::dd;

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

// ln y - psi(y) for y in [18.06, 19.06), where the recurrence of order 0
// lands: 1/(2y) in double-double and eight terms of the series in 1/y^2.
dd bracket0(dd y) {
  using namespace zeb::dd;
  const double z = 1.0 / (y.hi * y.hi);
  const double ser =
      z * (kPsiAsym[0] + z * (kPsiAsym[1] + z * (kPsiAsym[2] + z * (kPsiAsym[3] +
      z * (kPsiAsym[4] + z * (kPsiAsym[5] + z * (kPsiAsym[6] + z * kPsiAsym[7])))))));
  return add(recip(mul(y, 2.0)), ser);
}

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

// The bracket of the expansion at y (y.hi >= the switch point): for k >= 1,
// A_k(y) = 1/k + 1/(2y) + sum_j b_j (k+1)...(k+2j-1) y^-2j, so that
// S_k(y) = y^-k A_k(y); for k = 0, ln y - psi(y) = 1/(2y) + sum_j ... .
// The first two terms in double-double, the series (below 3% of them) in
// double, with the running product of the factors kept in ratio to y^2 so
// that no part overflows for high orders.
dd bracket(dd y, int k, double tol) {
  using namespace zeb::dd;
  if (y.hi > 0x1p900) {
    // Only 1/(2y) is left of the series; it lies below the last place of
    // 1/k, and for k = 0 is far beyond the range of the splitting.
    const double h = 0.5 / y.hi;
    return k > 0 ? add(recip(dd{static_cast<double>(k), 0.0}), h) : dd{h, 0.0};
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
  dd a = recip(mul(y, 2.0));
  if (k > 0) a = add(a, recip(dd{static_cast<double>(k), 0.0}));
  return add(a, ser);
}

}  // namespace

void s14acyn(double x, int k, int kode, zeb::dd::dd& m, long long& e) {
  using namespace zeb::dd;
  // A term below tol of the sum no longer changes it.
  const double tol = 0.0625 * x02ajfn();
  const double xmin = kXmin0 + kXminSlope * k;
  const int nrec = x < xmin ? static_cast<int>(std::ceil(xmin - x)) : 0;

  if (k == 0) {
    e = 0;
    if (nrec == 0) {
      // ln x - psi(x) is the bracket; -psi(x) = bracket - ln x.
      m = bracket(dd{x, 0.0}, 0, tol);
      if (kode == 1) m = sub(m, zeb::dd::log(x));
      return;
    }
    // -psi(x) = 1/x + 1/(x+1) + ... + 1/(x+n-1) - psi(x+n), all in
    // double-double: the sum and the logarithm cancel to a small value near
    // the zero of psi. The first term is scaled by 2^600 when x is tiny, so
    // that it stays within range of the splitting.
    const int sc = x < 0x1p-500 ? 600 : 0;
    // Cascaded summation: the running sum in double, the rounding of each
    // addition and the low parts of the terms gathered apart, so that the
    // loop's chain of dependent operations is one addition long.
    double sh = 0.0;
    double sl = 0.0;
    for (int i = nrec - 1; i >= 1; --i) {
      const dd t = recip(two_sum(x, i));
      const dd u = two_sum(sh, t.hi);
      sh = u.hi;
      sl += u.lo + t.lo;
    }
    dd rest = fast_two_sum(sh, sl);
    const dd xs = two_sum(x, nrec);
    // ln x - psi(x) = [ln(xs) - psi(xs)] + sum - [ln xs - ln x]
    rest = add(rest, bracket0(xs));
    rest = sub(rest, zeb::dd::log(xs));
    if (kode == 2) rest = add(rest, zeb::dd::log(x));
    const dd first = recip(dd{std::ldexp(x, sc), 0.0});
    m = add(first, dd{std::ldexp(rest.hi, -sc), std::ldexp(rest.lo, -sc)});
    e = sc;
    return;
  }

  // Order k >= 1: S_k(x) = x^-(k+1) T with
  //   T = sum_{i<n} (x/(x+i))^(k+1) + x (x/xs)^k A_k(xs),  xs = x + n,
  // or, with no recurrence, S_k(x) = x^-k A_k(x).
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
