// arcsin x.
#include <cmath>

#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

// The body past the checks (s09aazn.cpp): asin x for abs(x) <= 1, in the
// extended format and rounded once.
double s09aazn(double x);

// Below x02ajf asin x = x + x^3/6 rounds to x (and x^2 would underflow).
double s09aafn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double a = std::fabs(x);
  if (a > 1.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (a < x02ajfn()) return x;
  return s09aazn(x);  // also a NaN, which passes through
}
