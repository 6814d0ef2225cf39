#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

void m01zcfn(int* iperm, int m1, int m2, int* icycl, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) {
    int pos = 0;
    int value = 0;
    code = m01zazn(iperm, m1, m2, pos, value);
    if (code != 0) {
      m01zayn(code, pos, value, m1, m2, errbuf);
    } else {
      // Cycles in the order of their smallest members, each written from
      // that member on (negated, to mark the start) along i -> IPERM(i);
      // fixed points are cycles of one.
      int k = m1;
      for (int i = m1; i <= m2; ++i) {
        if (iperm[i - 1] > 0) continue;
        iperm[i - 1] = -iperm[i - 1];
        icycl[k++ - 1] = -i;
        for (int j = iperm[i - 1]; j != i; j = iperm[j - 1]) {
          iperm[j - 1] = -iperm[j - 1];
          icycl[k++ - 1] = j;
        }
      }
    }
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
