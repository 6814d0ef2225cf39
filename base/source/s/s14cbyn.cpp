// ln x in x87 extended precision for finite x > 0 within the normal range of
// the extended format, for the beta kernels, which take several logarithms
// a call and need a few bits beyond double without the cost of the x87
// fyl2x: x = f 2^e with f in [1, 2), f split exactly into doubles hi + lo
// (53 + 11 bits), and the table-reduced extended logarithm s11aaxn of
// 2^e (hi + lo). Needs the 64-bit precision control (zeb::ext::Precision)
// held by the caller.
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
  const int e = static_cast<int>(se & 0x7fff) - 0x3fff;
  // f = x 2^-e in [1, 2): the significand with the exponent of 1.
  ld f = 0.0L;
  const std::uint16_t one = 0x3fff;
  std::memcpy(&f, &m, sizeof m);
  std::memcpy(reinterpret_cast<char*>(&f) + 8, &one, sizeof one);
  const double hi = static_cast<double>(f);
  const double lo = static_cast<double>(f - hi);
  return s11aaxn(hi, lo, e);
}
