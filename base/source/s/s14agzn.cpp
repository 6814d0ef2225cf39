// ln gamma(z) for z = x + iy with x >= 1/2 and y >= 0, the principal branch
// (real on the positive axis, continuous elsewhere): Stirling's series at
// w = z + n, |w| >= 10,
//   ln gamma(w) = (w - 1/2) ln w - w + (1/2) ln(2 pi) + D(w),
//   D(w) = sum_k B_2k / (2k (2k-1) w^(2k-1)),
// less sum_{i<n} ln(z+i). Both parts are carried in double-double where
// they cancel: the real part when ln gamma(z) is small against ln gamma(w),
// the imaginary part, summed from the angles of w/(z+i), near its zeros.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"

namespace {

// Stirling coefficients B_2k/(2k(2k-1)), k = 1..11: exact rationals rounded to
// double, printed by tools/refdata/fit_s14ah.py; relative truncation error
// of the eleven terms below 2e-19 for |w| >= 10 with Re w > 0 (twice the real
// bound, for the angle).
constexpr double kStirling[] = {
    0.08333333333333333,
    -0.002777777777777778,
    0.0007936507936507937,
    -0.0005952380952380953,
    0.0008417508417508417,
    -0.0019175269175269176,
    0.00641025641025641,
    -0.029550653594771242,
    0.17964437236883057,
    -1.3924322169059011,
    13.402864044168393,
};

// (1/2) ln(2 pi) as hi + lo.
constexpr double kHalfLn2PiHi = 0.9189385332046728;
constexpr double kHalfLn2PiLo = -3.8782941580672414e-17;

// Shift target: Stirling's series is used from |w| >= 10.
constexpr double kRadius = 10.0;

}  // namespace

void s14agzn(double x, double y, double& re, double& im) {
  using namespace zeb::dd;
  int n = 0;
  if (y < kRadius) {
    const double need = std::sqrt(kRadius * kRadius - y * y) - x;
    if (need > 0.0) n = static_cast<int>(std::ceil(need));
  }
  // w = u + iy, u = x + n carried as uh + ul.
  const dd u = two_sum(x, static_cast<double>(n));
  const double uh = u.hi;
  const double big = std::fmax(uh, y);

  // D(w) = (1/w) sum_k c_k t^(k-1), t = 1/w^2, in complex arithmetic; the
  // reciprocal is scaled by the larger part of w.
  const double su = uh / big;
  const double sy = y / big;
  const double den = big * (su * su + sy * sy);
  const double ir = su / den;   // Re(1/w)
  const double ii = -sy / den;  // Im(1/w)
  const double tr = ir * ir - ii * ii;
  const double ti = 2.0 * ir * ii;
  double pr = kStirling[10];
  double pj = 0.0;
  for (int k = 9; k >= 0; --k) {
    const double nr = pr * tr - pj * ti + kStirling[k];
    pj = pr * ti + pj * tr;
    pr = nr;
  }
  const double dre = pr * ir - pj * ii;
  const double dim = pr * ii + pj * ir;

  const double theta = std::atan2(y, uh);
  dd res{0.0, 0.0};
  dd ims{0.0, 0.0};
  if (big < 0x1p450) {
    // ln|w| = (1/2) ln(uh^2 + y^2) in double-double.
    const dd m2 = add(two_prod(uh, uh), two_prod(y, y));
    dd lw = log(m2);
    lw.hi *= 0.5;
    lw.lo *= 0.5;
    res = mul(two_sum(uh, -0.5), lw);
    res = add(res, neg(two_prod(y, theta)));
    res = add(res, -uh);
    res = add(res, dd{kHalfLn2PiHi, kHalfLn2PiLo});
    // First-order effect of ul: ul psi(w), psi(w) ~ ln w - 1/(2w).
    const double hr = 0.5 * ir;  // Re 1/(2w)
    const double hi = 0.5 * ii;  // Im 1/(2w)
    res = add(res, dre + u.lo * (lw.hi - hr));
    // Im: y ln|w| - y + (x - 1/2 + ul) theta + sum_i phi_i + Im D(w), where
    // phi_i = arg(w / (z+i)) = theta - arg(z+i) takes the place of
    // n theta - sum_i arg(z+i): w conj(z+i) = (u(x+i) + y^2) - i y (n-i).
    ims = mul(dd{y, 0.0}, lw);
    ims = add(ims, -y);
    ims = add(ims, mul(two_sum(x, -0.5), theta));
    double ph = 0.0;
    double pl = 0.0;
    for (int i = 0; i < n; ++i) {
      const double phi = std::atan2(-y * (n - i), uh * (x + i) + y * y);
      const dd s2 = two_sum(ph, phi);
      ph = s2.hi;
      pl += s2.lo;
    }
    ims = add(ims, fast_two_sum(ph, pl));
    ims = add(ims, dim + u.lo * (theta - hi));
  } else {
    // Nothing cancels out here, and the squares would overflow; no shift.
    const double lw = std::log(big) + 0.5 * std::log1p(std::fmin(su, sy) * std::fmin(su, sy));
    res.hi = (uh - 0.5) * lw - y * theta - uh + kHalfLn2PiHi + dre;
    ims.hi = y * lw + (uh - 0.5) * theta - y + dim;
  }

  if (n > 0) {
    // |prod (z+i)|^2 in double-double.
    dd m2{1.0, 0.0};
    for (int i = 0; i < n; ++i) {
      const dd xi = two_sum(x, static_cast<double>(i));
      m2 = mul(m2, add(mul(xi, xi), two_prod(y, y)));
    }
    dd lp = log(m2);
    lp.hi *= 0.5;
    lp.lo *= 0.5;
    res = sub(res, lp);
  }
  re = res.hi + res.lo;
  im = ims.hi + ims.lo;
}
