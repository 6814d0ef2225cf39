#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// Reads one record from unit NIN into RECIN, blank padded or cut to its
// length. A negative unit reads nothing and is no failure. At end of file,
// or when the runtime cannot read from the unit (not connected, opened for
// writing, ...), RECIN is left as it was.
void x04bbfn(int nin, zeb::fchar recin, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = 0;
  if (nin >= 0) {
    const int status = zeb_unit_read(nin, recin.p, recin.n);
    if (status == 1) {
      code = 1;
      zeb::errbuf_record(errbuf, "(3(1X,I5))", {1, 99999, 0});
    } else if (status != 0) {
      code = 2;
      zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {2, 99998, 1, nin});
    }
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
