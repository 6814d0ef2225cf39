// D(x) = ln gamma(x) - (x-1/2) ln x + x - (1/2) ln(2 pi), the correction to
// Stirling's formula, in x87 extended precision for x >= 12, by Stirling's
// series D(x) = sum_k B_2k / (2k (2k-1) x^(2k-1)) to k = 11: at x = 12 the
// first term left out is below 2^-75, and the series' own error is below
// the first term left out. From x = 30 the terms to k = 6 leave below
// 2^-71, and from x = 1000 those to k = 3 below 2^-80. The coefficients are formed at compile time from
// the exact Bernoulli numbers B_2 .. B_22. Needs the 64-bit precision
// control held by the caller.
#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

namespace {

// B_2k / (2k (2k-1)) for k = 1 .. K, from the highest power of 1/x^2:
// c[0] for k = K, c[K-1] for k = 1.
template <int K>
struct Stirling {
  ld c[K];
  constexpr Stirling() : c{} {
    // B_2k = num/den, k = 1 .. 11.
    constexpr ld num[11] = {1, -1, 1, -1, 5, -691, 7, -3617, 43867, -174611, 854513};
    constexpr ld den[11] = {6, 30, 42, 30, 66, 2730, 6, 510, 798, 330, 138};
    for (int k = 1; k <= K; ++k) {
      c[K - k] = num[k - 1] / (den[k - 1] * static_cast<ld>(2 * k) * static_cast<ld>(2 * k - 1));
    }
  }
};
constexpr Stirling<11> kS11;
constexpr Stirling<6> kS6;
constexpr Stirling<3> kS3;

}  // namespace

ld s14cbvn(ld x) {
  const ld t = 1.0L / x;
  const ld w = t * t;
  if (x >= 1000.0L) return t * zeb::ext::horner<1>(kS3.c, w);
  if (x >= 30.0L) return t * zeb::ext::horner<2>(kS6.c, w);
  return t * zeb::ext::horner<2>(kS11.c, w);
}
