#include "m01_kernels.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

void m01dafn(const double* rv, int m1, int m2, std::string_view order, int* irank,
             char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  bool descending = false;
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) code = m01cavn(order, 2, descending, errbuf);
  if (code == 0) {
    zeb::m01::rank_list(irank, m1, m2, descending,
                        [rv](int i, int j) { return rv[i - 1] > rv[j - 1]; });
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
