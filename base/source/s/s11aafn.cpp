// artanh x.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_extlog.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

// x^2 <= 0.5: x + x^3/3 + x^5 S(x^2). Above: (1/2) ln((1 + a)/(1 - a)),
// a = abs x, the quotient to 2^-64 in the extended format (it is at least
// 5.8, so that its rounding costs the logarithm nothing), by the inline
// extended logarithm of zeb_s_extlog.h. Either is summed
// in the extended format and rounded to double once.
double s11aafn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double a = std::fabs(x);
  if (a >= 1.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  const double u = x * x;
  if (!(u > 0.5)) {
    // Also a NaN, which passes through. Below x02ajf, atanh x = x + x^3/3
    // rounds to x (and x^2 would underflow).
    if (a < x02ajfn()) return x;
    zeb::ext::Precision guard(x);
    double v = static_cast<double>(s11aayn(x));
    guard.release(v);
    return v;
  }
  // q = (1 + a)/(1 - a), 1 + a and 1 - a exact in the extended format, as
  // hi + lo.
  zeb::ext::Precision guard(x);
  const zeb::ext::ld q = (1.0L + a) / (1.0 - a);
  const double hi = static_cast<double>(q);
  double v = static_cast<double>(0.5L * zeb::extlog::log(hi, q - hi, 0));
  guard.release(v);
  return std::copysign(v, x);
}
