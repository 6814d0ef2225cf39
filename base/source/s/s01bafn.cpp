// ln(1 + x) for x > -1.
#include <cmath>
#include <cstddef>
#include <iterator>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

namespace {

// T(w) = (2 atanh(s) - 2s) / s^3: minimax polynomial of degree 7 in w = s^2 on
// [0.0, 0.029443139], fitted by tools/refdata/fit_s_first.py; max
// ln(1+f)-relative error 2.8e-19 with the coefficients rounded to double.
// Coefficients from the highest power.
constexpr double kLog1pT[8] = {
    0.13251044957876823,
    0.13250152278300684,
    0.15387089097381987,
    0.18181775707299264,
    0.22222222646219278,
    0.28571428569090146,
    0.4000000000000623,
    0.6666666666666666,
};

}  // namespace

// The cut: t = X / ((2 + X)(3 - 2 sqrt2)), written with the constants of the
// series' scaling. t^2 <= 1 is 1 + X between 1/sqrt2 and sqrt2: there
// ln(1 + X) = 2 atanh(s), s = X/(2 + X) = (3 - 2 sqrt2) t, is the odd series
// 2s + s^3 T(s^2), with s formed as hi + lo so that 2s, all but a hundredth of
// the value, is exact. Outside, the logarithm of 1 + X carried as hi + lo.
double s01bafn(double x, char* errbuf, int& ifail) {
  namespace dd = zeb::dd;
  zeb::errbuf_clear(errbuf);
  if (x <= -1.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  // Below x02ajf, ln(1 + X) = X - X^2/2 rounds to X (also where X is subnormal
  // and the quotient below would lose it).
  if (std::fabs(x) < x02ajfn()) return x;
  const double t = 1.0074696667295095 * x / ((2.0 + x) * 0.1728544674517796);
  if (t * t <= 1.0) {
    const dd::dd s = dd::div(dd::dd{x, 0.0}, dd::fast_two_sum(2.0, x));
    const double w = s.hi * s.hi;
    double p = kLog1pT[0];
    for (std::size_t i = 1; i < std::size(kLog1pT); ++i) p = p * w + kLog1pT[i];
    return 2.0 * s.hi + (2.0 * s.lo + s.hi * w * p);
  }
  if (!(x <= x02alfn())) return x;  // +Inf, and NaN, which fails every comparison
  const dd::dd l = dd::log(dd::two_sum(1.0, x));
  return l.hi + l.lo;
}
