#include "m01_kernels.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

void m01eafn(double* rv, int m1, int m2, int* irank, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) {
    // The whole of IRANK is checked before anything moves, so a failure
    // leaves both arrays as they came.
    int pos = 0;
    int value = 0;
    code = m01zazn(irank, m1, m2, pos, value);
    if (code != 0) {
      m01zayn(code, pos, value, m1, m2, errbuf);
    } else {
      zeb::m01::PlainHold<double> a{rv};
      zeb::m01::perm_apply(a, irank, m1, m2);
    }
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
