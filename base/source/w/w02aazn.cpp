#include <cmath>

#include "zeb_w_ib_aux.h"

double w02aazn(long long i) {
  // Integers of up to 2**53 in magnitude convert exactly; above, the
  // conversion may round down, so step up until the real is not below i.
  constexpr long long limit = 1LL << 62;
  if (i < -limit || i > limit) return -1.0;
  double r = static_cast<double>(i);
  while (static_cast<long long>(r) < i) r = std::nextafter(r, 2.0 * r);
  return r;
}
