// q(w) = (atanh(s)/s - 1)/w = 1/3 + w/5 + w^2/7 + ..., w = s^2, in x87
// extended precision for 0 <= w <= 0.0295 (|s| <= 3 - 2 sqrt 2, the
// reduced argument of the logarithms of the beta kernels): the terms to
// w^12/27 leave below 2^-66 of q. The coefficients are the exact 1/(2k+1)
// rounded once to 64 bits at compile time.
#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

namespace {

struct Odd {
  ld c[13];
  constexpr Odd() : c{} {
    // From the highest power: c[0] = 1/27, ..., c[12] = 1/3.
    for (int i = 0; i < 13; ++i) c[i] = 1.0L / static_cast<ld>(27 - 2 * i);
  }
};
constexpr Odd kOdd;

}  // namespace

ld s14cbqn(ld w) { return zeb::ext::horner<2>(kOdd.c, w); }
