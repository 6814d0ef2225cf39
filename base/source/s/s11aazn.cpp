// The series of artanh, shared by s11aafn and the cosine integral s13acfn,
// its extended-precision form for s11aafn, and the out-of-line entry of the
// extended logarithm (zeb_s_extlog.h) for the kernels outside s11.
#include <cstddef>

#include "zeb_ext.h"
#include "zeb_s_extlog.h"
#include "zeb_s_series.h"

namespace {

// <fit_elem:atanh>
// atanh(x): S(u) with atanh(x) = x + 1/3 x^3 + x^5 S(x^2), u = x^2, minimax
// polynomial of degree 19 in u on [0, 0.5] for the error relative to the
// function; fitted by tools/refdata/fit_elem.py, max relative error of the
// function 9.4e-19 with the coefficients rounded to double. From the highest
// power.
constexpr double kAtanhS[20] = {
    17.47971352316493,
    -77.84360059370991,
    164.65198625529365,
    -217.16195337043646,
    199.37986984731583,
    -134.6565097358134,
    69.23347272090982,
    -27.53407814895772,
    8.646502599702988,
    -2.0777190587884498,
    0.4536357814498983,
    -0.01461543812302481,
    0.05995601603684305,
    0.0581653388291375,
    0.06671079689025063,
    0.07692094193757058,
    0.09090916183212801,
    0.11111110961473711,
    0.14285714287460857,
    0.19999999999991802,
};
// </fit_elem:atanh>

using zeb::ext::ld;

}  // namespace

// atanh(x) - x = x^3/3 + x^5 S(x^2) for x^2 <= 1/2, in double.
double s11aazn(double x) { return zeb::series::odd_tail_plain<3>(x, kAtanhS); }

// atanh x = x + x u (1/3 + u S(u)), u = x^2, in the extended format for
// x^2 <= 1/2; the caller holds a zeb::ext::Precision. The terms of S past its
// lowest two, at most 1/90 of the value, are summed in double, where their
// rounding costs a hundredth of an ulp; the rest, in 64 bits.
long double s11aayn(double x) {
  const ld xl = x;
  const ld u = xl * xl;
  const ld r = zeb::series::head2<18>(x * x, kAtanhS);
  const ld p = (r * u + kAtanhS[18]) * u + kAtanhS[19];
  return xl + xl * u * (p * u + 1.0L / 3);
}

// ln(2^k (hi + lo)) in the extended format, for 2^-1022 <= hi < 2^1022,
// |lo| at most an ulp or two of hi, and a caller that holds a
// zeb::ext::Precision (zeb_s_extlog.h).
long double s11aaxn(double hi, double lo, int k) { return zeb::extlog::log(hi, lo, k); }
