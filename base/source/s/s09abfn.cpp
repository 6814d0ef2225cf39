// arccos x.
#include <cmath>

#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

// The body past the checks (s09aazn.cpp): acos x for abs(x) <= 1, in the
// extended format and rounded once.
double s09abzn(double x);

namespace {

// pi/2 = kPio2Hi + kPio2Lo (mpmath, 50 digits).
constexpr double kPio2Hi = 1.5707963267948966;
constexpr double kPio2Lo = 6.123233995736766e-17;

}  // namespace

double s09abfn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double a = std::fabs(x);
  if (a > 1.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (a < x02ajfn()) return kPio2Hi + (kPio2Lo - x);  // x^3/6 is far below
  return s09abzn(x);  // also a NaN, which passes through
}
