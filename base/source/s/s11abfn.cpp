// arsinh x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib.h"
#include "zeb_s_series.h"
#include "zeb_x_ib.h"

namespace {

// <fit_elem:asinh>
// asinh(x): S(u) with asinh(x) = x + (-1/6) x^3 + x^5 S(x^2), u = x^2, minimax
// polynomial of degree 19 in u on [0, 1] for the error relative to the
// function; fitted by tools/refdata/fit_elem.py, max relative error of the
// function 3.2e-18 with the coefficients rounded to double. From the highest
// power.
constexpr double kAsinhS[20] = {
    -1.3210796565630874e-06,
    1.58046178802145e-05,
    -8.997066595842458e-05,
    0.0003259623578049749,
    -0.000850314943874833,
    0.0017194521612608677,
    -0.002847509694171596,
    0.004051682791896602,
    -0.005182962818201724,
    0.006215793605319179,
    -0.007234492622944976,
    0.00836925227318682,
    -0.009757115232087518,
    0.01155105975534198,
    -0.013964751623587233,
    0.01735275609314113,
    -0.022372158570421446,
    0.03038194442368353,
    -0.044642857142397185,
    0.07499999999999589,
};
// </fit_elem:asinh>

// ln 2 = kLn2Hi + kLn2Lo (mpmath, 50 digits).
constexpr double kLn2Hi = 0.6931471805599453;
constexpr double kLn2Lo = 2.3190468138462996e-17;

}  // namespace

// abs(x) <= 1: x - x^3/6 + x^5 S(x^2).
// Up to 1e9: ln(t), t = a + sqrt(1 + a^2),
// a = abs x, with the rounding errors of a^2, of 1 + a^2, of the square root
// and of the sum carried as the low part tl of t, which enters as
// ln(t + tl) = ln t + tl/t. Beyond 1e9, where sqrt(1 + a^2) rounds to a:
// ln a + ln 2. The sign is that of x.
double s11abfn(double x) {
  const double a = std::fabs(x);
  if (a <= 1.0) {
    // Below x02ajf, asinh x = x - x^3/6 rounds to x (and x^2 would underflow).
    if (a < x02ajfn()) return x;
    return x + zeb::series::odd_tail_plain<-6>(x, kAsinhS);
  }
  double v;
  if (a <= 1.0e9) {
    const zeb::dd::dd p = zeb::dd::two_prod(a, a);
    const zeb::dd::dd w = zeb::dd::two_sum(1.0, p.hi);  // 1 + a^2 = w + p.lo
    const double s = std::sqrt(w.hi);
    const zeb::dd::dd s2 = zeb::dd::two_prod(s, s);
    // The square root's low part sl = ds / 2s and the sum's low part join in
    // one quotient: (t.lo + sl) / t = (2s t.lo + ds) / (2s t).
    const double ds = ((w.hi - s2.hi) - s2.lo) + (w.lo + p.lo);
    const zeb::dd::dd t = zeb::dd::two_sum(a, s);
    v = std::log(t.hi) + (2.0 * s * t.lo + ds) / (2.0 * s * t.hi);
  } else if (a <= x02alfn()) {
    const zeb::dd::dd l = zeb::dd::two_sum(std::log(a), kLn2Hi);
    v = l.hi + (l.lo + kLn2Lo);
  } else {
    return x;  // an infinity or a NaN
  }
  return std::copysign(v, x);
}
