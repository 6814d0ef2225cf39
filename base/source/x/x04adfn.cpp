#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// Closes unit IOUNIT. A unit that is not connected is closed already, as
// the runtime has it; only the runtime's refusal is a failure.
void x04adfn(int iounit, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = 0;
  if (zeb_file_close(iounit) != 0) {
    code = 1;
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99999, 1, iounit});
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
