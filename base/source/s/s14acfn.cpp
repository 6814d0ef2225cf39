// psi(x) - ln x for x > 0, through the polygamma kernel (order 0, kode 2),
// which forms ln x - psi(x) with nothing cancelled for large x.
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

double s14acfn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  if (!(x > 0.0)) {  // a NaN fails here too
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E12.4)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  double v = 0.0;
  const int code = s14aczn(x, 0, 2, 1, &v);
  if (code == 5) {
    // ln x - psi(x) ~ 1/(2x) is below the smallest normal number.
    zeb::errbuf_record(errbuf, "(3(1X,I5))", {2, 99998, 0});
    zeb::errbuf_close(errbuf, 2, ifail);
    return 0.0;
  }
  if (code == 6) {
    // ~ -1/x beyond the largest number: the value keeps the sign.
    zeb::errbuf_record(errbuf, "(3(1X,I5))", {3, 99997, 0});
    zeb::errbuf_close(errbuf, 3, ifail);
    return -x02alfn();
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  return -v;
}
