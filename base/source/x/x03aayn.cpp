#include <cmath>

#include "zeb_x_ib_helpers.h"

// Compensated inner product (the Dot2 scheme of Ogita, Rump and Oishi, 2005):
// each product a*b is split exactly by a fused multiply-add into p + e, each
// running sum s + p exactly into t + f by Knuth's two-sum, and the errors e
// and f are summed apart in lo. The result carries about twice the working
// precision, so a sum that cancels all digits of a double result is still
// correct. The build's -ffp-contract=off keeps the compiler from fusing or
// reassociating the operations that the splitting relies on.
void x03aayn(int n, const double* a, long inca, const double* b, long incb,
             bool negate, double& hi, double& lo) {
  double s = hi;
  double c = lo;
  for (long k = 0; k < n; ++k) {
    const double x = negate ? -a[k * inca] : a[k * inca];
    const double y = b[k * incb];
    const double p = x * y;
    const double e = std::fma(x, y, -p);
    const double t = s + p;
    const double z = t - s;
    const double f = (s - (t - z)) + (p - z);
    s = t;
    c += f + e;
  }
  const double r = s + c;
  if (!std::isfinite(r) || !std::isfinite(s)) {
    // An infinite term: the splitting gives inf - inf; what the plain sum
    // makes of the terms is the answer.
    hi = std::isfinite(s) ? r : s;
    lo = 0.0;
    return;
  }
  // The last two-sum leaves hi + lo = s + c exactly, whichever is larger.
  const double z = r - s;
  hi = r;
  lo = (s - (r - z)) + (c - z);
}
