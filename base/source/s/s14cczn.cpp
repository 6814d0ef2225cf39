// The incomplete beta function I_x(a, b) and its complement, for the
// statistics chapters. For a large against b (or b against a) and x near
// the mean, s14ccxn. Otherwise, with x on the side of (a+1)/(a+b+2) where
// the continued fraction converges fast, I_x(a, b) itself, else I_y(b, a),
// and the other as 1 less it. With F = x^a y^b / (a B(a, b)) from s14ccwn:
//   x <= 1/2 and (b <= 1 or b x <= 1): the power series
//     I_x(a, b) = (F / y^b) (1 + a sum_{n>=1} (1-b)_n x^n / (n! (a+n)));
//   otherwise the continued fraction
//     I_x(a, b) = F / (1 + d_1/(1 + d_2/(1 + ...))),
//     d_(2m+1) = -(a+m)(a+b+m) x / ((a+2m)(a+2m+1)),
//     d_(2m)   = m (b-m) x / ((a+2m-1)(a+2m)),
//   by the forward recurrences of its convergents with the numerators and
//   denominators of the d_j kept apart, so that a term costs no division,
//   until the differences of the convergents, with what their rate of
//   decrease says is still to come, fall below eps/64.
// The factor F (s14ccwn) and the tail are carried in x87 extended
// precision, so that the tail's complement, when the tail is the larger of
// the two, keeps the digits of a double as well, and the few hundred
// roundings of a deep fraction stay below a tenth of the double's ulp.
// Where a or b is small the tail on the fast side can lie close to 1 (above
// 3/4); its complement I_y(b, a) is then summed directly from the series
// of positive terms
//     I_y(b, a) = (F a / b) sum_{n>=0} (a+b)_n y^n / (b+1)_n
// when that converges within its limit of terms.
#include <cmath>
#include <utility>

#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::ext::ld;

// Terms of the continued fraction before it is given up.
constexpr int kMaxTerms = 200000;

// Terms of the complement's series before 1 less the tail is kept instead.
constexpr int kMaxComplement = 40000;

// The continued fraction g = 1 + d_1/(1 + d_2/(1 + ...)) by its convergents
// A_j / B_j, A_j = q_j A_(j-1) + q_(j-1) p_j A_(j-2) and the same for B_j,
// with d_j = p_j / q_j, q_0 = 1 (the fraction with each level multiplied
// through by its q_j): the recurrences take no division, and each pair of
// terms one for the convergent. The pair differences e_m = |g_2m - g_2(m-1)|
// shrink at the last like r^m; the fraction is taken as settled once
// e_m (1 + r/(1-r)), what is left by that estimate, is below eps/64 of g,
// with r = e_m / e_(m-1) below 1. Code 3 where it does not settle.
ld fraction(ld a, ld b, ld x, ld tol, int& code) {
  ld a2 = 1.0L;  // A_(j-2), A_(j-1) and the same for B, from A_(-1), A_0
  ld a1 = 1.0L;
  ld b2 = 0.0L;
  ld b1 = 1.0L;
  ld g = 1.0L;
  ld e_prev = -1.0L;
  ld q_prev = 1.0L;
  const ld apb = a + b;
  for (int m = 0; 2 * m + 2 <= kMaxTerms; ++m) {
    // d_(2m+1) = -(a+m)(a+b+m) x / ((a+2m)(a+2m+1)),
    // d_(2m+2) = (m+1)(b-m-1) x / ((a+2m+1)(a+2m+2)).
    const ld a2m = a + 2.0L * m;
    const ld qo = a2m * (a2m + 1.0L);
    const ld po = -(a + m) * (apb + m) * x * q_prev;
    const ld qe = (a2m + 1.0L) * (a2m + 2.0L);
    const ld pe = (m + 1.0L) * (b - (m + 1.0L)) * x * qo;
    q_prev = qe;
    ld an = qo * a1 + po * a2;
    ld bn = qo * b1 + po * b2;
    a2 = a1;
    b2 = b1;
    a1 = an;
    b1 = bn;
    an = qe * a1 + pe * a2;
    bn = qe * b1 + pe * b2;
    a2 = a1;
    b2 = b1;
    a1 = an;
    b1 = bn;
    if (fabsl(b1) > 0x1p8000L) {
      a1 *= 0x1p-8000L;
      a2 *= 0x1p-8000L;
      b1 *= 0x1p-8000L;
      b2 *= 0x1p-8000L;
    }
    const ld gn = a1 / b1;
    const ld e = fabsl(gn - g);
    g = gn;
    if (e <= tol * fabsl(g) && e_prev >= 0.0L) {
      if (e == 0.0L) return g;
      const ld r = e / e_prev;
      if (r < 1.0L && e <= tol * fabsl(g) * (1.0L - r)) return g;
    }
    e_prev = e;
  }
  code = 3;
  return g;
}

// The tail I_x(a, b), x <= (a+1)/(a+b+2), in extended precision, with
// lf = ln(x^a y^b / B(a,b)); code 3 where the fraction does not settle.
// Where the power series is taken, its sum S in s (else s stays NaN).
ld tail(double a, double b, double x, double y, ld lf, double eps, int& code, ld& s) {
  if (x <= 0.5 && (b <= 1.0 || b * x <= 1.0)) {
    // x^a / B = exp(lf - b ln y); with b <= 1 every term is positive, with
    // b x <= 1 they fall at least as fast as those of e^-1.
    const ld f = s14cbwn(lf - b * s14cbyn(y)) / a;
    ld c = 1.0L;  // (1-b)_n x^n / n!
    ld sum = 0.0L;
    for (int n = 1; n <= kMaxTerms; ++n) {
      c *= (n - static_cast<ld>(b)) * x / n;
      const ld term = c / (static_cast<ld>(a) + n);
      sum += term;
      if (fabsl(term) <= 0.0625L * eps * fabsl(sum) || c == 0.0L) break;
    }
    s = sum;
    return f * (1.0L + a * sum);
  }
  const ld g = fraction(a, b, x, eps / 64.0L, code);
  return s14cbwn(lf) / (a * g);
}

// I_y(b, a) by the series of positive terms, or -1 where it would take more
// than its limit of terms. The term ratios q_n = N_n / D_n,
// N_n = (a+b+n) y, D_n = b+1+n, are kept as their numerators and
// denominators: with P_n = N_0 ... N_(n-1) and Q_n = D_0 ... D_(n-1), the
// partial sum is U_n / Q_n, U_(n+1) = U_n D_n + P_(n+1), and no step
// divides. Two terms a pass, so that the dependent chain through U takes
// one product and one sum for two terms; the three are scaled by a power
// of 2 as Q_n grows.
ld complement(double a, double b, double y, ld lf, double eps) {
  if (y > 0.999) return -1.0L;
  const ld ly = y;
  const ld tol = 0.0625L * eps;
  ld p = 1.0L;
  ld q = 1.0L;
  ld u = 1.0L;
  ld n0 = (static_cast<ld>(a) + b) * ly;  // N_n
  ld d0 = static_cast<ld>(b) + 1.0L;       // D_n
  for (int n = 0; n < kMaxComplement; n += 2) {
    const ld n1 = n0 + ly;
    const ld d1 = d0 + 1.0L;
    const ld p1 = p * n0;
    const ld p2 = p1 * n1;
    u = u * (d0 * d1) + (p1 * d1 + p2);
    q *= d0 * d1;
    p = p2;
    // The ratios move monotonically towards y, so none to come exceeds
    // m = max(q_(n+1), y), and what is left of the sum is below
    // r_(n+2) m / (1 - m), r_(n+2) = P_(n+2) / Q_(n+2): with m = M / D_(n+1),
    // P M <= tol U (D - M).
    const ld ydn = ly * d1;
    const ld mn = n1 > ydn ? n1 : ydn;
    if (mn < d1 && p * mn <= tol * u * (d1 - mn)) return s14cbwn(lf) / b * (u / q);
    if (q > 0x1p8000L) {
      p *= 0x1p-8000L;
      q *= 0x1p-8000L;
      u *= 0x1p-8000L;
    }
    n0 = n1 + ly;
    d0 = d1 + 1.0L;
  }
  return -1.0L;
}

// e^t - 1 with the relative accuracy of a small t: the Taylor series to
// t^10/10! for |t| < 1/32 (the rest below 2^-64 of t), else e^t less 1,
// which loses no more than 5 bits there.
ld expm1_ext(ld t) {
  if (fabsl(t) < 0.03125L) {
    ld p = 1.0L / 3628800.0L;
    constexpr ld kInv[9] = {1.0L / 362880.0L, 1.0L / 40320.0L, 1.0L / 5040.0L,
                            1.0L / 720.0L,    1.0L / 120.0L,   1.0L / 24.0L,
                            1.0L / 6.0L,      0.5L,            1.0L};
    for (const ld c : kInv) p = p * t + c;
    return p * t;
  }
  return s14cbwn(t) - 1.0L;
}

// 1 - I_x(a, b) for a <= 1 from the sum S of the power series: with
// I_x(a, b) = e^L (1 + a S), L = a ln x + ln(gamma(a+b)/(gamma(1+a) gamma(b))),
// 1 - I_x(a, b) = -(e^L - 1) - e^L a S. As a goes to 0 both L and a S go
// to 0 with a and 1 - I with them; the logarithm of the gamma ratio comes
// from s14ccvn, accurate to a small multiple of 2^-64 a (1/b + ln(b+13)),
// so that 1 - I keeps its digits where the positive series of the
// complement would take thousands of terms (y near 1).
ld complement_small_a(double a, double b, double x, ld s) {
  const ld l = a * s14cbyn(x) + s14ccvn(a, b);
  const ld r = -expm1_ext(l) - s14cbwn(l) * (a * s);
  return r > 0.0L ? r : 0.0L;
}

}  // namespace

int s14cczn(double a, double b, double x, double y, double& w, double& w1) {
  w = 0.0;
  w1 = 0.0;
  if (!(a > 0.0) || !(b > 0.0)) return 1;
  if (!(x >= 0.0 && x <= 1.0 && y >= 0.0 && y <= 1.0)) return 2;
  const double eps = x02ajfn();
  if (std::fabs((x - 0.5) + (y - 0.5)) > 3.0 * eps) return 2;
  if (x == 0.0) {
    w1 = 1.0;
    return 0;
  }
  if (y == 0.0) {
    w = 1.0;
    return 0;
  }
  // A large against b and x within e^-1 of 1: the expansion in incomplete
  // gamma functions. Further out the tail is deep and the fraction fast.
  constexpr double kInvE = 0.36787944117144233;  // e^-1 rounded down
  if (a >= 100.0 && b <= a / 20.0 && b <= 30.0 && x >= kInvE) {
    s14ccxn(a, b, x, w, w1);
    return 0;
  }
  if (b >= 100.0 && a <= b / 20.0 && a <= 30.0 && y >= kInvE) {
    s14ccxn(b, a, y, w1, w);
    return 0;
  }
  zeb::ext::Precision guard;
  // The side of (a+1)/(a+b+2): x (a+b+2) <= a+1.
  const bool flip = static_cast<ld>(x) * (static_cast<ld>(a) + b + 2.0L) > a + 1.0L;
  if (flip) {
    std::swap(a, b);
    std::swap(x, y);
  }
  const ld lf = s14ccwn(a, b, x, y);  // ln(x^a y^b / B(a,b))
  int code = 0;
  ld s = __builtin_nanl("");
  ld t = tail(a, b, x, y, lf, eps, code, s);
  if (t > 1.0L) t = 1.0L;
  ld u = 1.0L - t;
  if (u < 0.25L) {
    if (a <= 1.0 && s == s) {
      u = complement_small_a(a, b, x, s);
    } else {
      const ld c = complement(a, b, y, lf, eps);
      if (c >= 0.0L) u = c;
    }
  }
  w = static_cast<double>(flip ? u : t);
  w1 = static_cast<double>(flip ? t : u);
  guard.release(w, w1);
  return code;
}
