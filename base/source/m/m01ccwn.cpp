#include "zeb_frame.h"
#include "zeb_m_ib_aux.h"

int m01ccwn(int l1, int l2, int len, char* errbuf) {
  if (l1 < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {2, 99995, 1, l1});
    return 2;
  }
  if (l2 < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {2, 99994, 1, l2});
    return 2;
  }
  if (l1 > l2) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {2, 99993, 2, l1, l2});
    return 2;
  }
  if (l2 > len) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {2, 99992, 2, l2, len});
    return 2;
  }
  return 0;
}
