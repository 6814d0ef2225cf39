// cosh x.
#include <cmath>

#include "zeb_frame.h"
#include "zeb_s_ib.h"

namespace {

// cosh a for 0 <= a <= 708: h + 1/(4h) with h = e^a / 2. Near a = 0 the
// rounding of e^a enters the two terms with opposite signs and cancels.
double cosh_exp(double a) {
  const double h = 0.5 * std::exp(a);
  return h + 0.25 / h;
}

}  // namespace

// (e^x + e^-x)/2 up to abs(x) = 708; beyond, the failure with cosh 708.
double s10acfn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double a = std::fabs(x);
  if (a > 708.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return cosh_exp(708.0);
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  return cosh_exp(a);
}
