#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

void m01zafn(int* iperm, int m1, int m2, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) {
    int pos = 0;
    int value = 0;
    code = m01zazn(iperm, m1, m2, pos, value);
    if (code != 0) {
      m01zayn(code, pos, value, m1, m2, errbuf);
    } else {
      // Along each cycle i -> p(i) -> ... every entry is replaced by its
      // predecessor; a positive entry is one already inverted.
      for (int i = m1; i <= m2; ++i) {
        if (iperm[i - 1] > 0) continue;
        int prev = i;
        int j = -iperm[i - 1];
        while (j != i) {
          const int next = -iperm[j - 1];
          iperm[j - 1] = prev;
          prev = j;
          j = next;
        }
        iperm[i - 1] = prev;
      }
    }
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
