// sinh x.
#include <cmath>

#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_series.h"

namespace {

// <fit_elem:sinh>
// sinh(x): R(u) = (sinh(x) - x) / x^3 with u = x^2, minimax polynomial of
// degree 7 in u on [0, 1] for the error relative to the function, constant
// term held at its double value; fitted by tools/refdata/fit_elem.py, max
// relative error of x + x^3 R(x^2) 1.1e-19 with the coefficients as stored.
// From the highest power.
constexpr double kSinhR[8] = {
    6.4754022696486925e-15,
    7.503262547018693e-13,
    1.6061339203887343e-10,
    2.5052089412568887e-08,
    2.7557319310091014e-06,
    0.0001984126984106116,
    0.008333333333333573,
    0.16666666666666666,
};
// </fit_elem:sinh>

// sinh a for 1 < a <= 708: h - 1/(4h) with h = e^a / 2, the smaller term
// never more than 0.16 of the larger.
double sinh_exp(double a) {
  const double h = 0.5 * std::exp(a);
  return h - 0.25 / h;
}

}  // namespace

// abs(x) <= 1: x + x^3 R(x^2). Up to 708: (e^x - e^-x)/2. Beyond, the
// failure, with sinh 708 of the sign of x.
double s10abfn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double a = std::fabs(x);
  if (a > 708.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return std::copysign(sinh_exp(708.0), x);
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (a > 1.0) return std::copysign(sinh_exp(a), x);
  const double u = x * x;  // also a NaN, which passes through
  return x + x * (u * zeb::series::horner(u, kSinhR));
}
