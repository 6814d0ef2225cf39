// The polygamma function psi^(K)(x) of order 0 <= K <= 6 for real x.
//
// For x > 0 the polygamma kernel gives S_K(x) = (-1)^(K+1) psi^(K)(x)/K! as
// a scaled value, so that the factor K! is applied before the range of the
// reals is judged. For x <= 0 the reflection of order K,
//   psi^(K)(x) = (-1)^K psi^(K)(1-x) - pi^(K+1) cot^(K)(pi x),
// with cot^(K) the K-th derivative of cot, a polynomial in c = cot(pi x):
// P_0 = c, P_(K+1) = -(1+c^2) P_K'(c).
//
// Both are carried in the x87 extended format (zeb_ext.h) and rounded once
// to double at the end.
#include <climits>
#include <cmath>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::dd::dd;
using zeb::ext::ld;

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
constexpr zeb::ext::Pairs kPiPowX(kPiPow);

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

// pi in the extended format (mpmath, 40 digits).
constexpr ld kPi = 3.141592653589793238462643383279502884197L;

// The Taylor coefficients (-1)^j/(2j+1)! and (-1)^j/(2j)!, j = 9 down to 0,
// of sin(t)/t and cos(t) in t^2, each formed here as a quotient rounded once
// to the extended format. For |t| <= pi/4 the first omitted terms,
// t^20/20! and t^21/21!, are below 2^-67 of the sums.
struct Taylor {
  ld sin[10];
  ld cos[10];
  constexpr Taylor() : sin{}, cos{} {
    ld fact[20] = {1.0L};  // i! for i <= 19, below 2^64 and so exact
    for (int i = 1; i < 20; ++i) fact[i] = fact[i - 1] * i;
    for (int j = 0; j < 10; ++j) {
      const ld sign = (j % 2 == 0) ? 1.0L : -1.0L;
      sin[9 - j] = sign / fact[2 * j + 1];
      cos[9 - j] = sign / fact[2 * j];
    }
  }
};
constexpr Taylor kTaylor;

// cot(pi r) for 0 < |r| <= 1/2: cos/sin of t = pi r for |r| <= 1/4, and
// tan(pi (1/2 - |r|)) with the sign of r above, 1/2 - |r| being exact there;
// a relative error of a few 2^-64.
ld cot_pi(double r) {
  const double a = std::fabs(r);
  const bool near = a <= 0.25;
  const ld t = kPi * (near ? a : 0.5 - a);
  const ld w = t * t;
  const ld s = t * zeb::ext::horner<2>(kTaylor.sin, w);
  const ld c = zeb::ext::horner<2>(kTaylor.cos, w);
  const ld v = near ? c / s : s / c;
  return r < 0.0 ? -v : v;
}

// The kernel's S_K(y) for y > 0 times (-1)^(K+1) K!, that is psi^(K)(y), in
// the extended format; no order of this routine leaves its range (the
// kernel's value lies within 2^+-16000 for K <= 6).
ld polygamma_pos(double y, int k) {
  dd m;
  long long e = 0;
  s14acyn(y, k, 1, m, e);
  ld v = (static_cast<ld>(m.hi) + m.lo) * kFactorial[k];
  if (e != 0) v = std::ldexp(v, static_cast<int>(e < -20000 ? -20000 : (e > 20000 ? 20000 : e)));
  return (k % 2 == 1) ? v : -v;
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
  zeb::ext::Precision guard(x);
  if (x > 0.0) {
    // Rounded once; orders whose value lies below the range come back
    // subnormal or 0.
    double r = static_cast<double>(polygamma_pos(x, k));
    guard.release(r);
    // Beyond the largest number, but for psi(+inf) = +inf itself.
    if (std::isinf(r) && x <= x02alfn()) {
      zeb::errbuf_record(errbuf, "(3(1X,I5))", {4, 99994, 0});
      zeb::errbuf_close(errbuf, 4, ifail);
      return 0.0;
    }
    zeb::errbuf_close(errbuf, 0, ifail);
    return r;
  }

  // x <= 0: every real from 2^52 up in size is an integer.
  const double n = std::nearbyint(x);
  double result = 0.0;
  bool pole = n == x || !std::isfinite(x);
  if (!pole) {
    const double r = x - n;  // exact, in [-1/2, 1/2]
    const ld c = cot_pi(r);
    const ld w = c * c;
    const double* q = kCotDeriv[k];
    ld p = ((q[3] * w + q[2]) * w + q[1]) * w + q[0];
    if (k % 2 == 0) p *= c;
    p *= kPiPowX.c[k];
    const ld refl = polygamma_pos(1.0 - x, k);
    result = static_cast<double>(((k % 2 == 0) ? refl : -refl) - p);
    // Next to a pole the term of order K+1 exceeds the range of the reals.
    pole = !std::isfinite(result);
  }
  guard.release(result);
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
