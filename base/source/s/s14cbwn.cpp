// e^x in x87 extended precision for the beta kernels, without the cost of
// the x87 f2xm1: x = k ln 2 + r, |r| <= ln 2 / 2, e^r by its Taylor series
// to r^17/17! (the rest below 2^-70 of e^r), then 2^k set in the exponent
// field. 0 below -11350 and infinity above 11350, beyond the extended range.
// Needs the 64-bit precision control held by the caller.
#include <cstdint>
#include <cstring>

#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

namespace {

struct InvFact {
  ld c[18];
  constexpr InvFact() : c{} {
    // From the highest power: c[0] = 1/17!, ..., c[17] = 1/0!.
    ld f = 1.0L;
    c[17] = 1.0L;
    for (int n = 1; n <= 17; ++n) {
      f *= static_cast<ld>(n);
      c[17 - n] = 1.0L / f;
    }
  }
};
constexpr InvFact kInvFact;

}  // namespace

ld s14cbwn(ld x) {
  if (!(x > -11350.0L)) return x != x ? x : 0.0L;
  if (x > 11350.0L) return __builtin_huge_vall();
  constexpr ld kInvLn2 = 1.44269504088896340735992468100189214L;
  constexpr ld kLn2Hi = 0x1.62e42fefa2p-1L;  // 40 bits: k hi is exact
  constexpr ld kLn2Lo = 7.37100256516779890183404013e-13L;
  // Round x / ln 2 to an integer by adding and taking away 1.5 * 2^63.
  constexpr ld kShift = 0x1.8p63L;
  const ld kf = (x * kInvLn2 + kShift) - kShift;
  const ld r = (x - kf * kLn2Hi) - kf * kLn2Lo;
  const ld er = zeb::ext::horner<2>(kInvFact.c, r);
  const int k = static_cast<int>(kf);
  // 2^k as an extended number: the explicit integer bit and the exponent.
  ld p = 0.0L;
  const std::uint64_t m = 1ULL << 63;
  const std::uint16_t se = static_cast<std::uint16_t>(k + 0x3fff);
  std::memcpy(&p, &m, sizeof m);
  std::memcpy(reinterpret_cast<char*>(&p) + 8, &se, sizeof se);
  return er * p;
}
