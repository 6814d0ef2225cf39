// The incomplete beta function I_x(a, b) and its complement, for the
// statistics chapters. For a large against b (or b against a) and x near
// the mean, s14ccxn. Otherwise, with x on the side of (a+1)/(a+b+2) where
// the continued fraction converges fast, I_x(a, b) itself, else I_y(b, a),
// and the other as 1 less it. With F = x^a y^b / (a B(a, b)) from s14ccyn:
//   x <= 1/2 and (b <= 1 or b x <= 1): the power series
//     I_x(a, b) = (F / y^b) (1 + a sum_{n>=1} (1-b)_n x^n / (n! (a+n)));
//   otherwise the continued fraction
//     I_x(a, b) = F / (1 + d_1/(1 + d_2/(1 + ...))),
//     d_(2m+1) = -(a+m)(a+b+m) x / ((a+2m)(a+2m+1)),
//     d_(2m)   = m (b-m) x / ((a+2m-1)(a+2m)),
//   whose depth the modified Lentz recurrence finds and whose value a
//   backward pass from that depth gives (checked against twice the depth),
//   so that the roundings of its terms do not gather.
// The tail is carried in x87 extended precision from the factor F on, so
// that its complement, when the tail is the larger of the two, keeps the
// digits of a double as well. Where a or b is small the tail on the fast
// side can lie close to 1 (above 3/4); its complement I_y(b, a) is then
// summed directly from the series of positive terms
//     I_y(b, a) = (F a / b) sum_{n>=0} (a+b)_n y^n / (b+1)_n
// when that converges within its limit of terms.
#include <cmath>
#include <utility>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::ext::ld;

// Terms of the continued fraction before it is given up.
constexpr int kMaxTerms = 200000;

ld d_term(int j, ld a, ld b, ld x) {
  const int m = j / 2;
  if (j % 2 == 1) {
    return -(a + m) * (a + b + m) * x / ((a + 2.0L * m) * (a + 2.0L * m + 1.0L));
  }
  return m * (b - m) * x / ((a + 2.0L * m - 1.0L) * (a + 2.0L * m));
}

// 1 + d_1/(1 + d_2/(... + d_n)) from the depth n backwards.
ld backward(int n, ld a, ld b, ld x) {
  ld v = 1.0L;
  for (int j = n; j >= 1; --j) v = 1.0L + d_term(j, a, b, x) / v;
  return v;
}

// e^(hi + lo) with the argument's low part as a first-order correction.
ld exp_dd(zeb::dd::dd v) {
  const ld e = expl(static_cast<ld>(v.hi));
  return e + e * v.lo;
}

// Terms of the complement's series before 1 less the tail is kept instead.
constexpr int kMaxComplement = 40000;

// The tail I_x(a, b), x <= (a+1)/(a+b+2), in extended precision, with
// lf = ln(x^a y^b / B(a,b)); code 3 where the fraction does not settle.
ld tail(double a, double b, double x, double y, zeb::dd::dd lf, double eps, int& code) {
  if (x <= 0.5 && (b <= 1.0 || b * x <= 1.0)) {
    // x^a / B = exp(lf - b ln y); with b <= 1 every term is positive, with
    // b x <= 1 they fall at least as fast as those of e^-1.
    const zeb::dd::dd ly = zeb::dd::mul(zeb::dd::log(y), b);
    const ld f = exp_dd(zeb::dd::sub(lf, ly)) / a;
    ld c = 1.0L;  // (1-b)_n x^n / n!
    ld sum = 0.0L;
    for (int n = 1; n <= kMaxTerms; ++n) {
      c *= (n - static_cast<ld>(b)) * x / n;
      const ld term = c / (a + n);
      sum += term;
      if (fabsl(term) <= 0.0625L * eps * fabsl(sum) || c == 0.0L) break;
    }
    return f * (1.0L + a * sum);
  }
  // Modified Lentz for g = 1 + d_1/(1 + d_2/(1 + ...)), to find the depth.
  const double tiny = x02amfn();
  double cc = 1.0;
  double dd = 0.0;
  int depth = 0;
  for (int j = 1; j <= kMaxTerms; ++j) {
    const double dj = static_cast<double>(d_term(j, a, b, x));
    dd = 1.0 + dj * dd;
    if (std::fabs(dd) < tiny) dd = tiny;
    cc = 1.0 + dj / cc;
    if (std::fabs(cc) < tiny) cc = tiny;
    dd = 1.0 / dd;
    const double delta = cc * dd;
    depth = j;
    if (std::fabs(delta - 1.0) <= eps) break;
  }
  // The value from that depth backwards; where the fraction converges
  // slowly its last step says little of what is left, so the value is
  // checked against one from twice the depth, and the depth doubled until
  // the two agree.
  int n = depth + 3;
  ld v = backward(n, a, b, x);
  for (;;) {
    const int n2 = 2 * n + 8;
    if (n2 > kMaxTerms) {
      code = 3;
      break;
    }
    const ld v2 = backward(n2, a, b, x);
    const bool done = fabsl(v2 - v) <= 0.0625L * eps * fabsl(v2);
    v = v2;
    n = n2;
    if (done) break;
  }
  return exp_dd(lf) / (a * v);
}

// I_y(b, a) by the series of positive terms, or -1 where it would take more
// than its limit of terms.
ld complement(double a, double b, double y, zeb::dd::dd lf, double eps) {
  if (y > 0.999) return -1.0L;
  ld r = 1.0L;
  ld sum = 1.0L;
  for (int n = 0; n < kMaxComplement; ++n) {
    const ld q = (static_cast<ld>(a) + b + n) * y / (static_cast<ld>(b) + 1.0L + n);
    r *= q;
    sum += r;
    // The ratios move monotonically towards y, so none to come exceeds
    // m = max(q, y), and what is left is below r m / (1 - m).
    const ld m = q > y ? q : static_cast<ld>(y);
    if (m < 1.0L && r * m <= 0.0625L * eps * sum * (1.0L - m)) return exp_dd(lf) / b * sum;
  }
  return -1.0L;
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
  const zeb::dd::dd lf = s14ccyn(a, b, x, y);  // ln(x^a y^b / B(a,b))
  int code = 0;
  ld t = tail(a, b, x, y, lf, eps, code);
  if (t > 1.0L) t = 1.0L;
  ld u = 1.0L - t;
  if (u < 0.25L) {
    const ld c = complement(a, b, y, lf, eps);
    if (c >= 0.0L) u = c;
  }
  w = static_cast<double>(flip ? u : t);
  w1 = static_cast<double>(flip ? t : u);
  guard.release(w, w1);
  return code;
}
