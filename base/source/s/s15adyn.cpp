// exp(x) in the x87 extended format (zeb_ext.h), to about 2^-62 relative, for
// |x| <= 708.4 and a caller that holds a zeb::ext::Precision: the
// exponential of E1 and Ei, where a rounded exp would add its half ulp to
// theirs. The format's exponent range holds the value wherever it falls.
#include <bit>
#include <cstdint>

#include "zeb_ext.h"
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

// ln 2 = kLn2Hi + kLn2Lo: kLn2Hi has 42 significant bits, so that k kLn2Hi is
// exact for |k| < 2^11; kLn2Lo is the rest to 64 bits (mpmath, 40 digits).
constexpr double kLn2Hi = 0x1.62e42fefa3800p-1;
constexpr long double kLn2Lo = 5.4979230187083711747124716125134360255e-14L;

}  // namespace

// x = k ln2 + r, |r| <= ln2/2: x - k kLn2Hi is exact in double (the two are
// within a factor 2 unless k is 0) and r takes k kLn2Lo in the extended
// format; exp(r) = 1 + r + r^2/2 + r^3 P(r), P as four Horner chains in r^4,
// and 2^k scales exactly.
long double s15adyn(double x) {
  using zeb::ext::ld;
  // x/ln2 rounded to an integer by the addition of 1.5 2^52.
  const double k = (x * 1.4426950408889634 + 0x1.8p52) - 0x1.8p52;
  const ld r = (x - k * kLn2Hi) - k * kLn2Lo;
  const ld e = (1.0L + r) + (r * r) * (0.5L + r * zeb::ext::horner<4>(kExpP, r));
  // 2^k, built from its exponent field: |k| <= 1022.
  return e * std::bit_cast<double>(static_cast<std::uint64_t>(static_cast<int>(k) + 1023) << 52);
}
