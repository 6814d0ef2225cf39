// tanh x.
#include <cmath>

#include "zeb_s_ib.h"
#include "zeb_s_series.h"
#include "zeb_x_ib.h"

namespace {

// <fit_elem:tanh>
// tanh(x): S(u) with tanh(x) = x + (-1/3) x^3 + x^5 S(x^2), u = x^2, minimax
// polynomial of degree 14 in u on [0, 1] for the error relative to the
// function; fitted by tools/refdata/fit_elem.py, max relative error of the
// function 1.2e-18 with the coefficients rounded to double. From the highest
// power.
constexpr double kTanhS[15] = {
    2.1925858986888878e-08,
    -2.3809320302437415e-07,
    1.29021941338144e-06,
    -4.80029213790069e-06,
    1.4343368427061442e-05,
    -3.813143032335229e-05,
    9.628020812421061e-05,
    -0.00023886316243665093,
    0.0005899442365547163,
    -0.00145581530938981,
    0.0035921249255612127,
    -0.008863235185477264,
    0.02186948851214048,
    -0.053968253967333,
    0.13333333333331918,
};
// </fit_elem:tanh>

}  // namespace

// abs(x) <= 1: the series x - x^3/3 + x^5 S(x^2). Above, up to 18.715, where
// tanh x rounds to 1: (e^2x - 1)/(e^2x + 1), written 1 - 2/(e^2x + 1) so that
// the rounding of the exponential is damped by the small quotient. At and
// above 18.715: the sign of x.
double s10aafn(double x) {
  const double a = std::fabs(x);
  if (a <= 1.0) {
    // Below x02ajf, tanh x = x - x^3/3 rounds to x (and x^2 would underflow).
    if (a < x02ajfn()) return x;
    return x + zeb::series::odd_tail_plain<-3>(x, kTanhS);
  }
  if (a < 18.715) {
    return std::copysign(1.0 - 2.0 / (std::exp(2.0 * a) + 1.0), x);
  }
  if (a >= 18.715) return std::copysign(1.0, x);
  return x;  // a NaN
}
