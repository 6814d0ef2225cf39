#include "zeb_frame.h"
#include "zeb_m_ib_aux.h"

void m01zayn(int code, int pos, int value, int m1, int m2, char* errbuf) {
  if (code == 2) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),4(1X,I20))", {2, 99996, 4, pos, value, m1, m2});
  } else {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {3, 99995, 1, value});
  }
}
