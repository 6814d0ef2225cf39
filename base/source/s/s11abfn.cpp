// arsinh x.
#include <cmath>
#include <cstddef>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_s_ib.h"
#include "zeb_s_extlog.h"
#include "zeb_s_ib_aux.h"
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

}  // namespace

// abs(x) <= 1: x + x u (-1/6 + u S(u)), u = x^2, in the extended format but
// for the ten highest terms of S, at most 1/60 of the value, which are
// summed in double.
// Up to 1e9: ln(t), t = a + sqrt(1 + a^2), a = abs x, formed in the
// extended format and passed as hi + lo to the extended logarithm (inline,
// zeb_s_extlog.h; t >= 2.4,
// so that its relative error of a few 2^-64 costs nothing). Beyond 1e9,
// where sqrt(1 + a^2) rounds to a: ln(2a), as the same logarithm of a/4
// (below 2^1022, the logarithm's range) with three powers of 2. The sign is that of x; the value is rounded to
// double once.
double s11abfn(double x) {
  const double a = std::fabs(x);
  if (a <= 1.0) {
    // Below x02ajf, asinh x = x - x^3/6 rounds to x (and x^2 would underflow).
    if (a < x02ajfn()) return x;
    zeb::ext::Precision guard(x);
    const zeb::ext::ld xl = x;
    const zeb::ext::ld u = xl * xl;
    zeb::ext::ld p = zeb::series::head2<10>(x * x, kAsinhS);
    for (std::size_t k = 10; k < 20; ++k) p = p * u + kAsinhS[k];
    double v = static_cast<double>(xl + xl * u * (p * u - 1.0L / 6));
    guard.release(v);
    return v;
  }
  double v;
  if (a <= 1.0e9) {
    zeb::ext::Precision guard(x);
    // t = a + sqrt(1 + a^2) to 2^-62 in the extended format, as hi + lo with
    // a - hi exact.
    const zeb::ext::ld al = a;
    const zeb::ext::ld s = zeb::extlog::sqrt(1.0L + al * al);
    const double hi = static_cast<double>(al + s);
    v = static_cast<double>(zeb::extlog::log(hi, (al - hi) + s, 0));
    guard.release(v);
    return std::copysign(v, x);
  }
  if (!(a <= x02alfn())) return x;  // an infinity or a NaN
  zeb::ext::Precision guard(x);
  v = static_cast<double>(zeb::extlog::log(0.25 * a, 0.0L, 3));  // 0.25 a exact, below 2^1022
  guard.release(v);
  return std::copysign(v, x);
}
