// ln(gamma(a+b) / (gamma(1+a) gamma(b))) = -ln(a B(a, b)) in x87 extended
// precision for 0 < a <= 1, b > 0, with an absolute error that is a small
// multiple of 2^-64 times a (1/b + ln(b+13)): it stays accurate as a goes to
// 0, where forming it from ln B and ln a would leave only the error of those
// two large terms. It is the difference of Lg(b, a) = ln gamma(b+a) -
// ln gamma(b) and Lg(1, a). Each is taken up to z = b + n >= 12 by the
// recurrence of gamma,
//   Lg(b, a) = Lg(z, a) - ln prod_{j<n} (b+j+a)/(b+j),
// the product P less 1 kept as E_n / D_n, E_(j+1) = E_j (b+j) + N_j a with
// N_j and D_j the products of the b+i+a and the b+i, so that nothing cancels
// however small a is. At z, by Stirling's formula with its correction
// D(z) = sum_k C_k z^(1-2k),
//   Lg(z, a) = (z - 1/2) ln(1 + a/z) + a ln(z+a) - a + D(z+a) - D(z),
// and D(z+a) - D(z) = (u - v) sum_k C_k h_(2k-1), u = 1/(z+a), v = 1/z,
// u - v = -a u v, h_m = (u^m - v^m)/(u - v) by h_(m+1) = u h_m + v^m.
// Needs the 64-bit precision control held by the caller.
#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

namespace {

// C_k = B_2k / (2k (2k-1)), k = 1..8, the exact rationals of Stirling's
// series from the Bernoulli numbers (tools/refdata/gen_s14ccvn.py). At
// z >= 12 the first term left out, C_9 17 a z^-18, is below 2^-64 a.
constexpr ld kC[8] = {
    1.0L / 12.0L,      -1.0L / 360.0L, 1.0L / 1260.0L, -1.0L / 1680.0L,
    1.0L / 1188.0L,    -691.0L / 360360.0L, 1.0L / 156.0L, -3617.0L / 122400.0L,
};

constexpr double kZ0 = 12.0;

// ln(1 + t) for t >= 0: t - phi(t) while t <= 1, where that keeps the
// relative accuracy of a small t; the logarithm of 1 + t above.
ld log1p_pos(ld t) { return t <= 1.0L ? t - s14cbxn(t, 1.0L + t) : s14cbyn(1.0L + t); }

// ln gamma(b+a) - ln gamma(b).
ld lg_step(double b, ld a) {
  ld z = b;
  ld shift = 0.0L;
  if (b < kZ0) {
    const double r = kZ0 - b;
    int n = static_cast<int>(r);
    if (n < r) ++n;
    ld e = 0.0L;  // N_j - D_j
    ld num = 1.0L;
    ld den = 1.0L;
    for (int j = 0; j < n; ++j) {
      const ld bj = z + j;
      e = e * bj + num * a;
      num *= bj + a;
      den *= bj;
    }
    shift = log1p_pos(e / den);
    z += n;
  }
  const ld u = 1.0L / (z + a);
  const ld v = 1.0L / z;
  ld h = 1.0L;  // h_1
  ld vp = v;    // v^1
  ld sd = 0.0L;
  for (int k = 0; k < 8; ++k) {
    sd += kC[k] * h;
    h = u * h + vp;
    vp *= v;
    h = u * h + vp;
    vp *= v;
  }
  const ld dd = -a * u * v * sd;
  const ld r = a * v;
  const ld l1 = r - s14cbxn(r, 1.0L + r);
  return (((z - 0.5L) * l1 - a) + a * s14cbyn(z + a)) + dd - shift;
}

}  // namespace

ld s14ccvn(double a, double b) {
  const ld la = a;
  return lg_step(b, la) - lg_step(1.0, la);
}
