#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

void m01zbfn(int* iperm, int m1, int m2, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) {
    int pos = 0;
    int value = 0;
    code = m01zazn(iperm, m1, m2, pos, value);
    if (code != 0) {
      m01zayn(code, pos, value, m1, m2, errbuf);
    } else {
      for (int i = m1 - 1; i < m2; ++i) iperm[i] = -iperm[i];
    }
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
