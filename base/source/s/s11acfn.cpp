// arcosh x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_extlog.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

// Exactly 0 at 1. Up to 1e9: ln(t), t = x + sqrt(x^2 - 1), formed in the
// extended format and passed as hi + lo to the extended logarithm (inline,
// zeb_s_extlog.h), which keeps hi - 1 exact near 1. Beyond 1e9: ln(2x), as
// the same logarithm of x/4 (below 2^1022, the logarithm's range) with three
// powers of 2. The value is rounded to double once.
double s11acfn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  if (x < 1.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (x == 1.0) return 0.0;
  double v;
  if (x <= 1.0e9) {
    zeb::ext::Precision guard(x);
    // x^2 - 1 = (x - 1)(x + 1) with both factors exact, and t = x + s as
    // hi + lo with x - hi exact: t - 1 = (x - 1) + s keeps its relative
    // accuracy next to 1, where it is about sqrt(2 (x - 1)).
    const zeb::ext::ld xl = x;
    const zeb::ext::ld s = zeb::extlog::sqrt((xl - 1.0L) * (xl + 1.0L));
    const double hi = static_cast<double>(xl + s);
    v = static_cast<double>(zeb::extlog::log(hi, (xl - hi) + s, 0));
    guard.release(v);
    return v;
  }
  if (!(x <= x02alfn())) return x;  // an infinity or a NaN
  zeb::ext::Precision guard(x);
  v = static_cast<double>(zeb::extlog::log(0.25 * x, 0.0L, 3));  // 0.25 x exact, below 2^1022
  guard.release(v);
  return v;
}
