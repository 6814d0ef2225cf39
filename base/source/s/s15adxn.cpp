// 2^-k (hi + lo) rounded once, for a double-double hi + lo and k >= 0: the
// last step of the kernels that carry a value which may be subnormal at a
// scale where the products that form it are exact. Scaling a normal value back
// is exact; a subnormal one would otherwise be rounded twice, first to 53 bits
// in hi + lo and then to the subnormal spacing.
#include <cmath>

#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

double s15adxn(double hi, double lo, int k) {
  const double h = std::ldexp(hi, -k);
  if (!(std::fabs(h) < x02akfn())) return std::ldexp(hi + lo, -k);
  // h is hi rounded to the subnormal spacing; t is what that left of
  // hi + lo, at the scale of hi, and step the spacing at that scale.
  const double t = (hi - std::ldexp(h, k)) + lo;
  const double step = std::ldexp(2.0 * x02akfn() * x02ajfn(), k);
  if (t > 0.5 * step) return h + 2.0 * x02akfn() * x02ajfn();
  if (t < -0.5 * step) return h - 2.0 * x02akfn() * x02ajfn();
  return h;
}
