#include "m01_kernels.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

int m01nbfn(int valid, const int* iv, int m1, int m2, int item, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = 0;
  int result = 0;
  if (valid == 0) {
    code = m01cawn(m1, m2, errbuf);
    if (code == 0) {
      const int k = m01nbyn(iv, m1, m2);
      if (k != 0) {
        zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {2, 99996, 2, k, k + 1});
        code = 2;
      }
    }
  }
  if (code == 0) {
    result = zeb::m01::search_last_le(m1, m2, [=](int k) { return item < iv[k - 1]; });
  }
  zeb::errbuf_close(errbuf, code, ifail);
  return result;
}
