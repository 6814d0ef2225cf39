#include <cmath>
#include <utility>

#include "zeb_a_ib.h"

// |xr + i xi| as the larger part times sqrt(1 + (smaller/larger)^2): the
// quotient is at most 1, so nothing overflows unless the modulus itself does.
double a02abfn(double xr, double xi) {
  double big = std::fabs(xr);
  double small = std::fabs(xi);
  // An infinite part makes the modulus infinite even beside a NaN.
  if (std::isinf(big) || std::isinf(small)) return HUGE_VAL;
  if (std::isnan(big) || std::isnan(small)) return big + small;
  if (big < small) std::swap(big, small);
  if (big == 0.0) return 0.0;
  const double q = small / big;
  return big * std::sqrt(1.0 + q * q);
}
