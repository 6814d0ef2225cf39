// The bodies of arcsin and arccos (s09aafn, s09abfn) past their argument
// checks: the series of arcsin in the x87 extended format, and the two
// functions formed from it and rounded to double once.
#include <cmath>
#include <cstddef>

#include "zeb_ext.h"
#include "zeb_s_series.h"

namespace {

using zeb::ext::ld;

// <fit_elem:asin>
// asin(x): S(u) with asin(x) = x + 1/6 x^3 + x^5 S(x^2), u = x^2, minimax
// polynomial of degree 12 in u on [0, 0.25] for the error relative to the
// function; fitted by tools/refdata/fit_elem.py, max relative error of the
// function 7.3e-20 with the coefficients rounded to double. From the highest
// power.
constexpr double kAsinS[13] = {
    0.03288102641182253,
    -0.02477823242580286,
    0.023722858831351386,
    0.001206726608663752,
    0.009846120510659693,
    0.009519139538284429,
    0.011580358560266556,
    0.013962475161339442,
    0.017352900058737113,
    0.02237215393431339,
    0.030381944565836677,
    0.04464285714130516,
    0.07500000000000788,
};
// </fit_elem:asin>

// asin x = x + x u (1/6 + u S(u)), u = x^2, in the extended format for
// abs(x) <= 1/2, under the 64-bit precision control. The terms of S past
// its lowest three, x u^5 times at most 0.03, below 2^-15 of the value, are
// summed in double from u rounded to double, where their rounding costs
// about 2^-67 of the value; the rest, in 64 bits.
inline ld asin_ext(ld x) {
  const ld u = x * x;
  ld p = zeb::series::head2<10>(static_cast<double>(u), kAsinS);
  for (std::size_t k = 10; k < 13; ++k) p = p * u + kAsinS[k];
  return x + x * u * (p * u + 1.0L / 6);
}

// pi/2 and pi rounded to 64 bits (mpmath, 40 digits).
constexpr ld kPio2 = 1.570796326794896619231321691639751442L;
constexpr ld kPi = 3.141592653589793238462643383279502884L;

}  // namespace

// asin x for abs(x) <= 1 (and a NaN). abs(x) <= 1/2: the series. Above:
// with z = (1 - abs x)/2, exact, and s = sqrt z, asin(abs x) =
// pi/2 - 2 asin(s), s to 2^-64 and the difference in the extended format,
// where the cancellation next to abs x = 1/2 (by a factor 3 at most) leaves
// the error near 2^-62 of the value.
double s09aazn(double x) {
  zeb::ext::Precision guard(x);
  const double a = std::fabs(x);
  double v;
  if (!(a > 0.5)) {
    v = static_cast<double>(asin_ext(x));
  } else {
    v = std::copysign(static_cast<double>(kPio2 - 2.0L * asin_ext(sqrtl(0.5L * (1.0L - a)))), x);
  }
  guard.release(v);
  return v;
}

// acos x for abs(x) <= 1 (and a NaN). abs(x) <= 1/2: pi/2 - asin x, at
// least pi/3. Above, with s as for asin: 2 asin(s) for x > 0, pi - 2 asin(s)
// for x < 0.
double s09abzn(double x) {
  zeb::ext::Precision guard(x);
  const double a = std::fabs(x);
  double v;
  if (!(a > 0.5)) {
    v = static_cast<double>(kPio2 - asin_ext(x));
  } else {
    const ld as = 2.0L * asin_ext(sqrtl(0.5L * (1.0L - a)));
    v = static_cast<double>(x > 0.0 ? as : kPi - as);
  }
  guard.release(v);
  return v;
}
