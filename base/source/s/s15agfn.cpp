// erfcx(x) = exp(x^2) erfc(x): the checks around the kernel s15agzn.
//   X <= -26.6           code 1: 2 exp(x^2) would overflow; x02alf returned
//   X >= 2.53e307        code 2: the value, about 1/(sqrt(pi) X), is below the
//                        smallest normal number; 0 returned
//   X >= 4.74e7          code 3, a warning: erfcx(X) equals 1/(sqrt(pi) X) to
//                        within an ulp (the next term, 1/(2X^2), is below
//                        x02ajf); the value returned is still accurate.
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

double s15agfn(double x, char* errbuf, int& ifail) {
  constexpr double kNegLimit = -26.6;
  constexpr double kZeroLimit = 2.53e307;
  constexpr double kWarnLimit = 4.74e7;
  constexpr const char* kRecord = "(3(1X,I5),2(1X,1P,E12.4))";
  zeb::errbuf_clear(errbuf);
  if (x <= kNegLimit) {
    zeb::errbuf_record(errbuf, kRecord, {1, 1011, 2, x, kNegLimit});
    zeb::errbuf_close(errbuf, 1, ifail);
    return x02alfn();
  }
  if (x >= kZeroLimit) {
    zeb::errbuf_record(errbuf, kRecord, {2, 1021, 2, x, kZeroLimit});
    zeb::errbuf_close(errbuf, 2, ifail);
    return 0.0;
  }
  const double value = s15agzn(x);
  if (x >= kWarnLimit) {
    zeb::errbuf_record(errbuf, kRecord, {3, 1031, 2, x, kWarnLimit});
    zeb::errbuf_close(errbuf, 3, ifail);
    return value;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  return value;
}
