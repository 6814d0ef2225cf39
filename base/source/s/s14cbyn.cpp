// ln x in x87 extended precision for finite x > 0, for the beta kernels,
// which take several logarithms a call and need a few bits beyond double
// without the cost of the x87 fyl2x. x = f 2^e with f in [1/sqrt 2, sqrt 2),
// ln f = 2 atanh(s), s = (f-1)/(f+1), |s| <= 0.1716:
//   ln f = 2s + 2s w q(w),  w = s^2,  q(w) = 1/3 + w/5 + w^2/7 + ...,
// f - 1 exact, so that ln f keeps its relative accuracy for f near 1. The
// terms of q to w^12/27 leave below 2^-66 of q. Needs the 64-bit precision
// control (zeb::ext::Precision) held by the caller.
#include <cstdint>
#include <cstring>

#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

ld s14cbyn(ld x) {
  std::uint64_t m = 0;
  std::uint16_t se = 0;
  std::memcpy(&m, &x, sizeof m);
  std::memcpy(&se, reinterpret_cast<const char*>(&x) + 8, sizeof se);
  int e = static_cast<int>(se & 0x7fff) - 0x3fff;
  // f = x 2^-e in [1, 2), then in [1/sqrt 2, sqrt 2).
  ld f = 0.0L;
  const std::uint16_t one = 0x3fff;
  std::memcpy(&f, &m, sizeof m);
  std::memcpy(reinterpret_cast<char*>(&f) + 8, &one, sizeof one);
  if (f > 1.4142135623730950488L) {
    f *= 0.5L;
    ++e;
  }
  const ld s = (f - 1.0L) / (f + 1.0L);
  const ld w = s * s;
  const ld s2 = s + s;
  const ld lf = s2 * w * s14cbqn(w);
  // ln 2 = hi + lo, hi of 40 bits so that e hi is exact.
  constexpr ld kLn2Hi = 0x1.62e42fefa2p-1L;
  constexpr ld kLn2Lo = 7.37100256516779890183404013e-13L;
  const ld ee = static_cast<ld>(e);
  return ee * kLn2Hi + (s2 + (ee * kLn2Lo + lf));
}
