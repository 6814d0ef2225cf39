// arcosh x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

namespace {

// ln 2 = kLn2Hi + kLn2Lo (mpmath, 50 digits).
constexpr double kLn2Hi = 0.6931471805599453;
constexpr double kLn2Lo = 2.3190468138462996e-17;

}  // namespace

// Exactly 0 at 1. Up to 1e9: ln(t), t = x + sqrt(x^2 - 1), with the rounding
// errors of x^2 and of the square root and of the sum carried as the low part
// tl of t, which enters as ln(t + tl) = ln t + tl/t; x^2 - 1 is formed from
// the exact square, so that near 1, where it is all cancellation, nothing is
// lost. Beyond 1e9: ln x + ln 2.
double s11acfn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  if (x < 1.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (x == 1.0) return 0.0;
  if (x <= 1.0e9) {
    const zeb::dd::dd p = zeb::dd::two_prod(x, x);
    const zeb::dd::dd w = zeb::dd::two_sum(p.hi, -1.0);  // x^2 - 1 = w + p.lo
    const double s = std::sqrt(w.hi);
    const zeb::dd::dd s2 = zeb::dd::two_prod(s, s);
    // The square root's low part sl = ds / 2s and the sum's low part join in
    // one quotient: (t.lo + sl) / t = (2s t.lo + ds) / (2s t).
    const double ds = ((w.hi - s2.hi) - s2.lo) + (w.lo + p.lo);
    const zeb::dd::dd t = zeb::dd::two_sum(x, s);
    return std::log(t.hi) + (2.0 * s * t.lo + ds) / (2.0 * s * t.hi);
  }
  if (x <= x02alfn()) {
    const zeb::dd::dd l = zeb::dd::two_sum(std::log(x), kLn2Hi);
    return l.hi + (l.lo + kLn2Lo);
  }
  return x;  // an infinity or a NaN
}
