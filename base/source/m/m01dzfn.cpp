#include "m01_kernels.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

void m01dzfn(m01dzf_compar_fn compar, m01dzf_compar_th compar_h, int m1, int m2,
             int* irank, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const int code = m01cawn(m1, m2, errbuf);
  if (code == 0) {
    // COMPAR(I, J) is true when element I must come after element J. It gets
    // copies, so that it cannot disturb the sort by assigning to I or J.
    zeb::m01::rank_list(irank, m1, m2, false, [=](int i, int j) {
      const int ii = i;
      const int jj = j;
      return compar_h(compar, &ii, &jj) != 0;
    });
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
