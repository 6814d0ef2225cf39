// ln x in x87 extended precision for finite x > 0, for the beta kernels,
// which take several logarithms a call and need a few bits beyond double
// without the cost of the x87 fyl2x. x = f 2^e with f in [1, 2), and
// f = g 2^(j/8) with j = 0 .. 8 picked by the leading five bits of f, so
// that g lies within 2^(+-1/16) of 1 but for the width of a bin:
// |s| <= 0.031 for s = (g-1)/(g+1). Then
//   ln x = (e + j/8) ln 2 + 2 atanh(s),  2 atanh(s) = 2s + 2s w q(w),
// w = s^2, q(w) = 1/3 + w/5 + ... + w^5/13, the rest below 2^-62 of q (and
// q's part of the result below 2^-9 of it). The constants 2^(-j/8) are
// formed at compile time by Newton's square root; their last-bit errors,
// and the rounding of f 2^(-j/8), reach ln x only as a few 2^-64 absolute
// for j other than 0 and 8, where f lies in [1 + 1/16, 2 - 1/16) and
// |ln x| >= 0.031. For j = 0 and 8, g - 1 is exact, so that ln x keeps its
// relative accuracy near 1. Needs the 64-bit precision control
// (zeb::ext::Precision) held by the caller.
#include <cstdint>
#include <cstring>

#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

namespace {

constexpr ld sqrt_newton(ld v) {
  ld r = v > 1.0L ? v : 1.0L;  // from above, so that the iterates fall
  for (int i = 0; i < 200; ++i) {
    const ld next = 0.5L * (r + v / r);
    if (next == r) break;
    r = next;
  }
  return r;
}

struct Reduction {
  ld inv_root[9];       // 2^(-j/8)
  unsigned char j[32];  // j for the bin [1 + i/32, 1 + (i+1)/32)
  constexpr Reduction() : inv_root{}, j{} {
    // 2^(-k/8) as the eighth root of the exact 2^-k, three square roots
    // each within an ulp: a few ulps in all. The thresholds 2^((2k-1)/16)
    // of the bins need no such care.
    ld r16[17] = {};
    for (int k = 0; k <= 16; ++k) {
      ld p = 1.0L;
      for (int i = 0; i < k; ++i) p *= 2.0L;
      r16[k] = sqrt_newton(sqrt_newton(sqrt_newton(sqrt_newton(p))));
    }
    for (int k = 0; k <= 8; ++k) {
      ld p = 1.0L;
      for (int i = 0; i < k; ++i) p *= 0.5L;
      inv_root[k] = sqrt_newton(sqrt_newton(sqrt_newton(p)));
    }
    // The bin's midpoint against the odd sixteenth powers 2^((2k-1)/16);
    // but j = 0 for the bins that reach below 2^(1/16) and j = 8 for those
    // that reach above 2^(15/16), where g - 1 is exact.
    for (int i = 0; i < 32; ++i) {
      const ld mid = 1.0L + (i + 0.5L) / 32.0L;
      int k = 0;
      while (k < 8 && r16[2 * k + 1] < mid) ++k;
      if (1.0L + i / 32.0L < r16[1]) k = 0;
      if (1.0L + (i + 1) / 32.0L > r16[15]) k = 8;
      j[i] = static_cast<unsigned char>(k);
    }
  }
};
constexpr Reduction kRed;

}  // namespace

ld s14cbyn(ld x) {
  std::uint64_t m = 0;
  std::uint16_t se = 0;
  std::memcpy(&m, &x, sizeof m);
  std::memcpy(&se, reinterpret_cast<const char*>(&x) + 8, sizeof se);
  int e = static_cast<int>(se & 0x7fff) - 0x3fff;
  // f = x 2^-e in [1, 2): the explicit integer bit is bit 63 of m.
  ld f = 0.0L;
  const std::uint16_t one = 0x3fff;
  std::memcpy(&f, &m, sizeof m);
  std::memcpy(reinterpret_cast<char*>(&f) + 8, &one, sizeof one);
  const int j = kRed.j[(m >> 58) & 31];
  ld g = f;
  if (j == 8) {
    g = 0.5L * f;
    ++e;
  } else if (j != 0) {
    g = f * kRed.inv_root[j];
  }
  const int e8 = j == 8 ? 8 * e : 8 * e + j;  // ln x = (e8 / 8) ln 2 + ln g
  const ld s = (g - 1.0L) / (g + 1.0L);
  const ld w = s * s;
  const ld s2 = s + s;
  const ld q =
      (1.0L / 3) + w * ((1.0L / 5) + w * ((1.0L / 7) + w * ((1.0L / 9) + w * ((1.0L / 11) + w * (1.0L / 13)))));
  const ld lg = s2 * w * q;
  // ln 2 / 8 = hi + lo, hi of 40 bits so that e8 hi is exact.
  constexpr ld kLn2Hi = 0x1.62e42fefa2p-4L;
  constexpr ld kLn2Lo = 7.37100256516779890183404013e-13L / 8;
  const ld ee = static_cast<ld>(e8);
  return ee * kLn2Hi + (s2 + (ee * kLn2Lo + lg));
}
