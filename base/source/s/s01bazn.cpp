// ln(hi + lo) in the x87 extended format (zeb_ext.h), for hi + lo > 0
// finite, |lo| at most an ulp of hi, and a caller that holds a
// zeb::ext::Precision: the logarithm of s01bafn's outer range and of
// ln gamma, E1 and Ei, which want it to 2^-62 relative.
#include <bit>
#include <cstddef>
#include <cstdint>

#include "zeb_ext.h"
#include "zeb_s_ib.h"

namespace {

using zeb::ext::ld;

// T(w) = (2 atanh(s) - 2s) / s^3: minimax polynomial of degree 8 in w = s^2 on
// [0.0, 0.029443139], fitted by tools/refdata/fit_s_first.py; max
// ln(1+f)-relative error 3.3e-22 with the pairs as stored rounded to the x87
// extended format. Coefficients from the highest power.
constexpr double kLnT[9][2] = {
    {0.1203413184489732, -2.5158198471801456e-19},
    {0.11668642378928003, 3.517708616791174e-19},
    {0.1333667147780417, 3.918735010169143e-18},
    {0.15384545856723175, 1.2753696622747282e-17},
    {0.1818181907155853, 5.485050995258578e-18},
    {0.222222222153563, 8.98370162351214e-18},
    {0.2857142857145851, 1.623307829358931e-17},
    {0.39999999999999936, 4.1304430509306964e-18},
    {0.6666666666666666, 3.7478005840812335e-17},
};

constexpr zeb::ext::Pairs kT(kLnT);

// ln 2 (mpmath, 40 digits).
constexpr ld kLn2 = 0.6931471805599453094172321214581765680755L;

// 2^k for -1022 <= k <= 1023, from its exponent field.
inline double pow2(int k) {
  return std::bit_cast<double>(static_cast<std::uint64_t>(k + 1023) << 52);
}

}  // namespace

// hi + lo = 2^e (m + ml), m in [1/sqrt2, sqrt2) taken from the bits of hi
// (scaled by 2^64 first if subnormal) and ml the same scaling of lo, exact in
// the extended format; ln(m + ml) = 2 atanh(s), s = (m - 1 + ml)/(m + 1 + ml)
// with m - 1 exact, |s| <= 0.1716, as 2s + s^3 T(s^2). Every step rounds to
// 2^-64, so that the value is within 2^-62 relative, also next to 1 where
// it vanishes with m - 1 + ml.
long double s01bazn(double hi, double lo) {
  int e = 0;
  if (hi < 0x1p-1022) {
    hi *= 0x1p64;
    lo *= 0x1p64;
    e = -64;
  }
  const auto bits = std::bit_cast<std::uint64_t>(hi);
  int k = static_cast<int>(bits >> 52) - 1023;
  double m = std::bit_cast<double>((bits & 0x000fffffffffffffULL) | 0x3ff0000000000000ULL);
  if (m > 1.4142135623730951) {
    m *= 0.5;
    ++k;
  }
  e += k;
  // lo 2^-k, in two powers of two that stay within the normal range.
  const ld ml = static_cast<ld>(lo) * pow2(-(k / 2)) * pow2(-(k - k / 2));
  const ld s = ((m - 1.0) + ml) / ((static_cast<ld>(m) + 1.0) + ml);
  const ld w = s * s;
  // T(w) as four Horner chains in w^4.
  return e * kLn2 + (2.0L * s + s * (w * zeb::ext::horner<4>(kT, w)));
}
