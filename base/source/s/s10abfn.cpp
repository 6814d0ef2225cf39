// sinh x.
#include <cmath>

#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_series.h"
#include "zeb_x_ib.h"

namespace {

// <fit_elem:sinh>
// sinh(x): S(u) with sinh(x) = x + 1/6 x^3 + x^5 S(x^2), u = x^2, minimax
// polynomial of degree 6 in u on [0, 1] for the error relative to the
// function; fitted by tools/refdata/fit_elem.py, max relative error of the
// function 3.1e-22 with the coefficients rounded to double. From the highest
// power.
constexpr double kSinhS[7] = {
    2.840289610952763e-15,
    7.646790988291387e-13,
    1.6059045800730398e-10,
    2.5052108384765603e-08,
    2.7557319223952583e-06,
    0.00019841269841269958,
    0.008333333333333333,
};
// </fit_elem:sinh>

// sinh a for 1 < a <= 708: h - 1/(4h) with h = e^a / 2, the smaller term
// never more than 0.16 of the larger.
double sinh_exp(double a) {
  const double h = 0.5 * std::exp(a);
  return h - 0.25 / h;
}

}  // namespace

// abs(x) <= 1: x + x^3/6 + x^5 S(x^2).
// Up to 708: (e^x - e^-x)/2. Beyond, the
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
  // Also a NaN, which passes through. Below x02ajf, sinh x = x + x^3/6
  // rounds to x (and x^2 would underflow).
  if (a < x02ajfn()) return x;
  return x + zeb::series::odd_tail_plain<6>(x, kSinhS);
}
