#include "zeb_frame.h"
#include "zeb_m_ib_aux.h"

int m01dewn(int ldm, int m2, int n1, int n2, char* errbuf) {
  if (n1 < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99995, 1, n1});
    return 1;
  }
  if (n2 < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99994, 1, n2});
    return 1;
  }
  if (n1 > n2) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {1, 99993, 2, n1, n2});
    return 1;
  }
  if (m2 > ldm) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {1, 99992, 2, m2, ldm});
    return 1;
  }
  return 0;
}
