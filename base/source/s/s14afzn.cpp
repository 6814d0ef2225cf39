// psi^(K)(z) for z = x + iy with x >= 1/2, y >= 0 and 0 <= K <= 6: the
// asymptotic expansion at w = z + n, |w| >= 18.06 + K/2 (the switch point of
// the real kernel s14acyn), after upward recurrence:
//   psi^(K)(z) = psi^(K)(w) - (-1)^K K! sum_{i<n} (z+i)^-(K+1),
//   psi(w) ~ ln w - 1/(2w) - sum_j B_2j/(2j) w^-2j,
//   psi^(K)(w) ~ (-1)^(K+1) K! w^-K [1/K + 1/(2w) + sum_j b_j f_j w^-2j],
// with b_j = B_2j/(2j)!, f_j = (K+1)(K+2)...(K+2j-1). Complex arithmetic in
// double; the sums are compensated.
#include <cmath>
#include <complex>

#include "zeb_dd.h"
#include "zeb_s_bernoulli.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using cplx = std::complex<double>;

using zeb::s::kBern;

constexpr double kFactorial[] = {1, 1, 2, 6, 24, 120, 720};

// 1/w for w = a + ib, scaled so that no square overflows.
cplx inv(double a, double b) {
  const double m = std::fmax(std::fabs(a), std::fabs(b));
  const double sa = a / m;
  const double sb = b / m;
  const double d = m * (sa * sa + sb * sb);
  return {sa / d, -sb / d};
}

// A complex sum kept as a running sum and the gathered roundings of each
// part (two_sum), so that the terms of one sign that make it up lose no more
// than their own rounding.
struct Sum {
  double rh = 0.0, rl = 0.0, ih = 0.0, il = 0.0;
  void add(cplx t) {
    const zeb::dd::dd a = zeb::dd::two_sum(rh, t.real());
    rh = a.hi;
    rl += a.lo;
    const zeb::dd::dd b = zeb::dd::two_sum(ih, t.imag());
    ih = b.hi;
    il += b.lo;
  }
  cplx value() const { return {rh + rl, ih + il}; }
};

}  // namespace

void s14afzn(double x, double y, int k, double& re, double& im) {
  const double tol = 0.0625 * x02ajfn();
  const double radius = 18.06 + 0.5 * k;
  int n = 0;
  if (y < radius) {
    const double need = std::sqrt(radius * radius - y * y) - x;
    if (need > 0.0) n = static_cast<int>(std::ceil(need));
  }
  const cplx w(x + n, y);
  const cplx iw = inv(w.real(), w.imag());
  const cplx t = iw * iw;

  // The series in t = 1/w^2, its terms' factors kept in ratio to |w|^2.
  cplx ser(0.0, 0.0);
  cplx tj = t;
  double f = (k == 0) ? 1.0 : k + 1.0;  // f_1, or (2j-1)! for order 0
  for (int j = 0; j < zeb::s::kNBern; ++j) {
    const cplx term = (kBern[j] * f) * tj;
    ser += term;
    if (std::abs(term) <= tol * std::abs(ser)) break;
    f *= (k + 2.0 * j + 2.0) * (k + 2.0 * j + 3.0);
    tj *= t;
  }
  Sum sum;
  double sign = 1.0;
  if (k == 0) {
    // psi(w) = ln w - 1/(2w) - ser
    const double lr = std::log(std::abs(w));
    sum.add({lr, std::arg(w)});
    sum.add(-0.5 * iw);
    sum.add(-ser);
    // less sum 1/(z+i)
    for (int i = n - 1; i >= 0; --i) sum.add(-inv(x + i, y));
  } else {
    // S_K(w) = w^-K [1/K + 1/(2w) + ser]; S_K(z) = S_K(w) + sum (z+i)^-(K+1)
    cplx wk = iw;
    for (int j = 1; j < k; ++j) wk *= iw;
    sum.add(wk * (1.0 / k + 0.5 * iw + ser));
    for (int i = n - 1; i >= 0; --i) {
      const cplx r = inv(x + i, y);
      cplx p = r;
      for (int j = 0; j < k; ++j) p *= r;
      sum.add(p);
    }
    sign = (k % 2 == 1 ? 1.0 : -1.0) * kFactorial[k];
  }
  const cplx v = sign * sum.value();
  re = v.real();
  im = v.imag();
}
