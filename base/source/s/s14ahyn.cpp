// D(x) = ln gamma(x) - (x-1/2) ln x + x - (1/2) ln(2 pi) for x >= 10, by
// Stirling's series D(x) ~ sum_k B_2k / (2k (2k-1) x^(2k-1)), as hi + lo.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"

namespace {

// Stirling coefficients B_2k/(2k(2k-1)), k = 1..11: exact rationals rounded to
// double, printed by tools/refdata/fit_s14ah.py. Relative truncation error of
// the eleven terms for x >= 10: 1.88e-19.
constexpr double kStirling[] = {
    0.08333333333333333,
    -0.002777777777777778,
    0.0007936507936507937,
    -0.0005952380952380953,
    0.0008417508417508417,
    -0.0019175269175269176,
    0.00641025641025641,
    -0.029550653594771242,
    0.17964437236883057,
    -1.3924322169059011,
    13.402864044168393,
};

}  // namespace

zeb::dd::dd s14ahyn(double x) {
  using namespace zeb::dd;
  // The leading term 1/(12x) carries the value: it is formed to about 100
  // bits, so only the final addition rounds. Above 2^900 the argument is
  // scaled by 2^-200 to keep the splitting of the products finite.
  int scale = 0;
  double xs = x;
  if (x > 0x1p900) {
    xs = x * 0x1p-200;
    scale = -200;
  }
  const dd lead = recip(two_prod(12.0, xs));
  if (scale != 0) {
    // The later terms lie far below the last place here.
    return {std::ldexp(lead.hi + lead.lo, scale), 0.0};
  }
  const double r = 1.0 / x;
  const double z = r * r;
  double p = kStirling[10];
  for (int k = 9; k >= 1; --k) p = p * z + kStirling[k];
  return fast_two_sum(lead.hi, lead.lo + r * z * p);
}
