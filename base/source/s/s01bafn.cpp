// ln(1 + x) for x > -1.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

// ln(hi + lo) in the x87 extended format (s01bazn.cpp; zeb_ext.h).
long double s01bazn(double hi, double lo);

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
// 2s + s^3 T(s^2), summed in the x87 extended format (long double), whose
// 64-bit significand carries the quotient and the sum to 2^-63; outside, the
// logarithm of 1 + X carried as hi + lo, in the same format. Either is
// rounded to double once.
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
  if (!(x <= x02alfn())) return x;  // +Inf, and NaN, which fails every comparison
  zeb::ext::Precision guard(x);
  double v = 0.0;
  const double t = 1.0074696667295095 * x / ((2.0 + x) * 0.1728544674517796);
  if (t * t <= 1.0) {
    const zeb::ext::ld s = x / (2.0L + x);
    const zeb::ext::ld w = s * s;
    // T(w) as four Horner chains in w^4.
    v = static_cast<double>(2.0L * s + s * (w * zeb::ext::horner<4>(kLog1pT, w)));
  } else {
    const dd::dd u = dd::two_sum(1.0, x);
    v = static_cast<double>(s01bazn(u.hi, u.lo));
  }
  guard.release(v);
  return v;
}
