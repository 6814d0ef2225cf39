// The polygamma function psi^(K)(x) of order 0 <= K <= 6 for real x.
//
// For x > 0 the polygamma kernel gives S_K(x) = (-1)^(K+1) psi^(K)(x)/K! as
// a scaled value, so that the factor K! is applied before the range of the
// reals is judged. For x <= 0 the reflection of order K,
//   psi^(K)(x) = (-1)^K psi^(K)(1-x) - pi^(K+1) cot^(K)(pi x),
// with cot^(K) the K-th derivative of cot, a polynomial in c = cot(pi x):
// P_0 = c, P_(K+1) = -(1+c^2) P_K'(c).
#include <climits>
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::dd::dd;

// pi^(K+1), K = 0..6, as hi + lo, each part correctly rounded
// (tools/refdata/fit_s14ac.py).
constexpr double kPiPow[7][2] = {
    {3.141592653589793, 1.2246467991473532e-16},
    {9.869604401089358, 6.265295508739711e-16},
    {31.00627668029982, 4.1641946985288347e-16},
    {97.40909103400244, -6.3844801978316745e-15},
    {306.01968478528147, -1.6622634971992868e-14},
    {961.3891935753045, -5.20286886314418e-14},
    {3020.2932277767923, -1.9668002126199769e-13},
};

// The coefficients of P_K in w = c^2, from the constant up: P_K = c Q(w)
// for even K, Q(w) for odd K. Exact integers of the recurrence above.
constexpr double kCotDeriv[7][4] = {
    {1, 0, 0, 0},
    {-1, -1, 0, 0},
    {2, 2, 0, 0},
    {-2, -8, -6, 0},
    {16, 40, 24, 0},
    {-16, -136, -240, -120},
    {272, 1232, 1680, 720},
};

constexpr double kFactorial[] = {1, 1, 2, 6, 24, 120, 720};

// pi as hi + lo.
constexpr double kPiHi = 3.141592653589793116;
constexpr double kPiLo = 1.2246467991473532e-16;

// psi^(K)(y) for y >= 1, where nothing overflows: (-1)^(K+1) K! S_K(y), and
// -(-psi(y)) for K = 0.
double polygamma_pos(double y, int k) {
  dd m;
  long long e = 0;
  s14acyn(y, k, 1, m, e);
  const double v = (m.hi + m.lo) * kFactorial[k];
  const double r = std::ldexp(v, static_cast<int>(e < -2200 ? -2200 : e));
  return (k % 2 == 1) ? r : -r;
}

}  // namespace

double s14aefn(double x, int k, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  if (k < 0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99997, 1, k});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  if (k > 6) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {2, 99996, 1, k});
    zeb::errbuf_close(errbuf, 2, ifail);
    return 0.0;
  }
  if (std::isnan(x)) {
    zeb::errbuf_close(errbuf, 0, ifail);
    return x;
  }
  if (x > 0.0) {
    dd m;
    long long e = 0;
    s14acyn(x, k, 1, m, e);
    const double v = (m.hi + m.lo) * kFactorial[k];
    int ev = 0;
    std::frexp(v, &ev);
    if (ev + e > x02blfn()) {
      zeb::errbuf_record(errbuf, "(3(1X,I5))", {4, 99994, 0});
      zeb::errbuf_close(errbuf, 4, ifail);
      return 0.0;
    }
    // Orders whose value lies below the range come back subnormal or 0.
    const double r = std::ldexp(v, static_cast<int>(e < -2200 ? -2200 : e));
    zeb::errbuf_close(errbuf, 0, ifail);
    return (k % 2 == 1) ? r : -r;
  }

  // x <= 0: every real from 2^52 up in size is an integer.
  const double n = std::nearbyint(x);
  double result = 0.0;
  bool pole = n == x || !std::isfinite(x);
  if (!pole) {
    const double r = x - n;  // exact, in [-1/2, 1/2]
    // cot(pi r) in double-double, from sin and cos of pi r carried as
    // hi + lo; the reflection term is then formed in double-double, so that
    // only the rounding of sin and cos reaches it.
    using namespace zeb::dd;
    dd pr = two_prod(kPiHi, r);
    pr.lo += kPiLo * r;
    const double sh = std::sin(pr.hi);
    const double ch = std::cos(pr.hi);
    const dd c = div(fast_two_sum(ch, -pr.lo * sh), fast_two_sum(sh, pr.lo * ch));
    const double* q = kCotDeriv[k];
    dd p{q[3], 0.0};
    if (std::isfinite(c.hi) && std::fabs(c.hi) < 0x1p400) {
      const dd w = mul(c, c);
      for (int j = 2; j >= 0; --j) p = add(mul(p, w), q[j]);
      if (k % 2 == 0) p = mul(p, c);
      p = mul(p, dd{kPiPow[k][0], kPiPow[k][1]});
    } else {
      p.hi = INFINITY;  // at the pole
    }
    const double refl = polygamma_pos(1.0 - x, k);
    const dd res = sub(dd{(k % 2 == 0) ? refl : -refl, 0.0}, p);
    result = res.hi + res.lo;
    pole = !std::isfinite(result);
  }
  if (pole) {
    // The pole term of order K+1 at nint(X) exceeds the range of the reals.
    const double nc = n > 9.2e18 ? 9.2e18 : (n < -9.2e18 ? -9.2e18 : n);
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)",
                       {3, 99995, 1, static_cast<long long>(nc)});
    zeb::errbuf_close(errbuf, 3, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  return result;
}
