// arsinh x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib.h"
#include "zeb_s_series.h"
#include "zeb_x_ib.h"

namespace {

// <fit_elem:asinh>
// asinh(x): R(u) = (asinh(x) - x) / x^3 with u = x^2, minimax polynomial of
// degree 20 in u on [0, 1] for the error relative to the function, constant
// term held at its double value; fitted by tools/refdata/fit_elem.py, max
// relative error of x + x^3 R(x^2) 1.0e-18 with the coefficients as stored.
// From the highest power.
constexpr double kAsinhR[21] = {
    -1.3094801731881577e-06,
    1.5680757092945775e-05,
    -8.935595235742755e-05,
    0.0003240800722226428,
    -0.0008463339400564327,
    0.0017132829750129898,
    -0.0028402584572749336,
    0.004045080496378114,
    -0.005178247748032649,
    0.006213135804223135,
    -0.007233308557072177,
    0.008368836657145322,
    -0.009757001160599323,
    0.011551035579466776,
    -0.01396474773998791,
    0.017352755632697947,
    -0.02237215853164016,
    0.030381944421490528,
    -0.04464285714232102,
    0.0749999999999945,
    -0.16666666666666666,
};
// </fit_elem:asinh>

// ln 2 = kLn2Hi + kLn2Lo (mpmath, 50 digits).
constexpr double kLn2Hi = 0.6931471805599453;
constexpr double kLn2Lo = 2.3190468138462996e-17;

}  // namespace

// abs(x) <= 1: x + x^3 R(x^2). Up to 1e9: ln(t), t = a + sqrt(1 + a^2),
// a = abs x, with the rounding errors of a^2, of 1 + a^2, of the square root
// and of the sum carried as the low part tl of t, which enters as
// ln(t + tl) = ln t + tl/t. Beyond 1e9, where sqrt(1 + a^2) rounds to a:
// ln a + ln 2. The sign is that of x.
double s11abfn(double x) {
  const double a = std::fabs(x);
  if (a <= 1.0) {
    const double u = x * x;
    return x + x * (u * zeb::series::horner2(u, kAsinhR));
  }
  double v;
  if (a <= 1.0e9) {
    const zeb::dd::dd p = zeb::dd::two_prod(a, a);
    const zeb::dd::dd w = zeb::dd::two_sum(1.0, p.hi);  // 1 + a^2 = w + p.lo
    const double s = std::sqrt(w.hi);
    const zeb::dd::dd s2 = zeb::dd::two_prod(s, s);
    const double sl = (((w.hi - s2.hi) - s2.lo) + (w.lo + p.lo)) / (2.0 * s);
    const zeb::dd::dd t = zeb::dd::two_sum(a, s);
    v = std::log(t.hi) + (t.lo + sl) / t.hi;
  } else if (a <= x02alfn()) {
    const zeb::dd::dd l = zeb::dd::two_sum(std::log(a), kLn2Hi);
    v = l.hi + (l.lo + kLn2Lo);
  } else {
    return x;  // an infinity or a NaN
  }
  return std::copysign(v, x);
}
