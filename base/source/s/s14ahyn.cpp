// D(x) = ln gamma(x) - (x-1/2) ln x + x - (1/2) ln(2 pi) for x >= 10, by
// Stirling's series D(x) ~ sum_k B_2k / (2k (2k-1) x^(2k-1)) to k = 12, as
// hi + lo split from the extended format: the first two terms there, the rest,
// below 2^-20 of the value, in double. 1/x and its square keep the range of
// the extended format up to the largest double.
#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

namespace {

using zeb::ext::ld;

// Stirling coefficients B_2k/(2k(2k-1)), k = 12 down to 3: exact rationals
// rounded to double (tools/refdata/fit_s14ah.py). Relative truncation error
// after k = 12 at x = 10: 2.63e-20.
// after k = 12 at x = 15: 1.56e-24.
constexpr double kStirling[10] = {
    -156.84828462600203,
    13.402864044168393,
    -1.3924322169059011,
    0.17964437236883057,
    -0.029550653594771242,
    0.00641025641025641,
    -0.0019175269175269176,
    0.0008417508417508417,
    -0.0005952380952380953,
    0.0007936507936507937,
};

}  // namespace

zeb::dd::dd s14ahyn(double x) {
  zeb::ext::Precision guard(x);
  const ld r = 1.0L / x;
  const ld w = r * r;
  ld d;
  if (x < 0x1p26) {
    const double wd = static_cast<double>(w);
    const double w2 = wd * wd;
    const double w4 = w2 * w2;
    const double* c = kStirling;
    const double p = ((c[9] + wd * c[8]) + w2 * (c[7] + wd * c[6])) +
                     w4 * ((c[5] + wd * c[4]) + w2 * (c[3] + wd * c[2]) + w4 * (c[1] + wd * c[0]));
    d = ((1.0L / 12 - w * (1.0L / 360)) + w2 * p) / x;
  } else {
    // The terms from k = 3 lie below 2^-100 of the value; left out, they
    // would only take w down into the subnormal doubles, which are slow.
    d = (1.0L / 12 - w * (1.0L / 360)) / x;
  }
  double hi = static_cast<double>(d);
  // Past 2^900, lo would be a subnormal, whose handling is slow, and carry
  // few or none of its bits.
  double lo = x < 0x1p900 ? static_cast<double>(d - hi) : 0.0;
  guard.release(hi, lo);
  return {hi, lo};
}
