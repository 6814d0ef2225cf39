#include "zeb_frame.h"
#include "zeb_m_ib_aux.h"

int m01cawn(int m1, int m2, char* errbuf) {
  if (m2 < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99999, 1, m2});
    return 1;
  }
  if (m1 < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99998, 1, m1});
    return 1;
  }
  if (m1 > m2) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {1, 99997, 2, m1, m2});
    return 1;
  }
  return 0;
}
