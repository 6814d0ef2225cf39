// Scaled log gamma: ln gamma(x) - (x-1/2) ln x + x - (1/2) ln(2 pi), the
// correction to Stirling's formula, for x > 0.
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

double s14ahfn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  if (!(x > 0.0)) {  // a NaN fails here too
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E12.4)", {1, 1011, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  const zeb::dd::dd dd = x < 15.0 ? s14ahzn(x) : s14ahyn(x);
  const double d = dd.hi + dd.lo;
  zeb::errbuf_close(errbuf, 0, ifail);
  return d;
}
