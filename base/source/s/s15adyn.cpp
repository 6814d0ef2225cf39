// 2^scale exp(x + xl) as hi + lo, to about 2^-62 relative, for |x| <= 708.4,
// |xl| <= 2^-40 |x| and a value in the normal range: the exponential of the
// erfc kernel's split, and of the exponential integrals, where a rounded exp
// would add its half ulp to theirs. The power of two lets a caller keep the
// value within the range of exact products.
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "zeb_dd.h"
#include "zeb_s_ib.h"

namespace {

// P(r) = (exp(r) - 1 - r - r^2/2) / r^3: minimax polynomial of degree 9 in r
// on [-0.35, 0.35], fitted by tools/refdata/fit_s_first.py; max exp-relative
// error 1.1e-19 with the coefficients rounded to double. Coefficients from the
// highest power.
constexpr double kExpP[10] = {
    2.083774717414753e-09,
    2.511239828662255e-08,
    2.755753432581493e-07,
    2.7557234245805305e-06,
    2.4801587009025083e-05,
    0.00019841269896426903,
    0.0013888888889044921,
    0.008333333333317353,
    0.04166666666666639,
    0.16666666666666682,
};

}  // namespace

// x + xl = k ln2 + r, |r| <= ln2/2, with k ln2_hi exact and x - k ln2_hi exact
// (the two are within a factor 2 unless k is 0); then
// exp(r) = 1 + r + r^2/2 + r^3 P(r), the first three terms as hi + lo and the
// last, below 0.8% of the value, in double.
double s15adyn(double x, double xl, int scale, double& lo) {
  namespace dd = zeb::dd;
  // x/ln2 rounded to an integer by the addition of 1.5 2^52.
  const double k = (x * 1.4426950408889634 + 0x1.8p52) - 0x1.8p52;
  const dd::dd r0 = dd::two_sum(x - k * dd::ln2_hi, xl - k * dd::ln2_lo);
  const double r = r0.hi;
  const double rl = r0.lo;
  double p = kExpP[0];
  for (std::size_t i = 1; i < std::size(kExpP); ++i) p = p * r + kExpP[i];
  dd::dd r2 = dd::two_prod(r, r);
  r2.lo += 2.0 * r * rl;
  dd::dd e = dd::add(dd::two_sum(1.0, r), rl);
  e = dd::add(e, dd::dd{0.5 * r2.hi, 0.5 * r2.lo});
  e = dd::add(e, r * r2.hi * p);
  // 2^(k + scale), built from its exponent field: the value is normal.
  const double two_k = std::bit_cast<double>(
      static_cast<std::uint64_t>(static_cast<int>(k) + scale + 1023) << 52);
  lo = e.lo * two_k;
  return e.hi * two_k;
}
