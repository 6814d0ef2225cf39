// tan x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_series.h"
#include "zeb_x_ib.h"

namespace {

using zeb::dd::dd;

// <fit_elem:tan>
// tan(x): S(u) with tan(x) = x + 1/3 x^3 + x^5 S(x^2), u = x^2, minimax
// polynomial of degree 13 in u on [0, 0.7875^2] for the error relative to the
// function; fitted by tools/refdata/fit_elem.py, max relative error of the
// function 1.2e-18 with the coefficients rounded to double. From the highest
// power.
constexpr double kTanS[14] = {
    9.611146373908842e-06,
    -2.3366233402696922e-05,
    4.665905861698923e-05,
    -2.3068799513007414e-05,
    6.501472256553559e-05,
    8.488577754479813e-05,
    0.00024317934929276845,
    0.0005890428367768627,
    0.0014560054481607954,
    0.003592107297574345,
    0.008863237212118817,
    0.021869488451199376,
    0.05396825397059261,
    0.1333333333333077,
};
// </fit_elem:tan>

// pi/2 as the sum of three doubles, each the rounding of what the previous
// ones leave (mpmath, 50 digits): 159 bits, enough that n pi/2 for the
// multiples n below 2^43 that the argument limit allows is carried to far
// below the spacing of the doubles near any of its residues.
constexpr double kPio2A = 1.5707963267948966;
constexpr double kPio2B = 6.123233995736766e-17;
constexpr double kPio2C = -1.4973849048591698e-33;

// x - n pi/2 as hi + lo, for an integer n below 2^43 (as a double): the
// products n A and n B are exact in double-double, and the terms are summed
// from the largest with error-free additions, so the residue keeps its
// relative accuracy however much of x cancels. The terms left in `lo` are
// below the spacing of the partial sums, so their rounding is far below the
// smallest residue a double of this range can have.
dd reduce(double x, double n) {
  const dd a = zeb::dd::two_prod(n, kPio2A);
  const dd b = zeb::dd::two_prod(n, kPio2B);
  const dd s1 = zeb::dd::two_sum(x, -a.hi);
  const dd s2 = zeb::dd::two_sum(s1.hi, -a.lo);
  const dd s3 = zeb::dd::two_sum(s2.hi, -b.hi);
  const double lo = (((s3.lo + s2.lo) + s1.lo) - b.lo) - n * kPio2C;
  return zeb::dd::two_sum(s3.hi, lo);
}

}  // namespace

// n = nearest integer to x 2/pi, r = x - n pi/2 with |r| <= pi/4 (and a
// little), tan r = r + r^3/3 + r^5 S(r^2) with r + r^3/3 in double-double,
// and for odd n tan x = -1/tan r, the reciprocal taken in double-double. The
// low part of r enters through tan(rh + rl) = tan rh + rl (1 + tan^2 rh).
double s07aafn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double ax = std::fabs(x);
  if (ax > 1.0e13) {
    zeb::errbuf_record(errbuf, "(3(1X,I5))", {1, 99999, 0});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (!(ax <= 1.0e13)) return x;  // a NaN
  // Below x02ajf, tan x = x + x^3/3 rounds to x (and x^2 would underflow).
  if (ax < x02ajfn()) return x;
  // The nearest integer to x 2/pi, below 2^43 in magnitude: adding and taking
  // away 1.5 2^52 rounds to an integer by the rounding of the addition.
  constexpr double kRound = 6755399441055744.0;
  const double n = (x * 0.6366197723675814 + kRound) - kRound;
  const dd r = n == 0.0 ? dd{x, 0.0} : reduce(x, n);
  const bool odd = (static_cast<long long>(n) & 1) != 0;

  double q = 0.0;
  double tr = 0.0;
  zeb::series::odd_tail<3>(r.hi, kTanS, q, tr);  // tan(rh) - rh = q + tr
  const double t0 = r.hi + q;
  const dd s = zeb::dd::fast_two_sum(r.hi, q);
  const dd t = zeb::dd::fast_two_sum(s.hi, s.lo + (tr + r.lo * (1.0 + t0 * t0)));
  if (!odd) return t.hi;
  // Within 1e-14 of an odd multiple of pi/2, relative to x, the value is
  // still the tangent, large and of the right sign, but reported.
  if (std::fabs(r.hi) <= 1.0e-14 * ax) {
    zeb::errbuf_record(errbuf, "(3(1X,I5))", {2, 99998, 0});
    zeb::errbuf_close(errbuf, 2, ifail);
  }
  return -zeb::dd::recip(t).hi;
}
