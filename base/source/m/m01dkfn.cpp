#include <cstddef>

#include "m01_kernels.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

void m01dkfn(const int* im, int ldm, int m1, int m2, int n1, int n2, std::string_view order,
             int* irank, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  bool descending = false;
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) code = m01dewn(ldm, m2, n1, n2, errbuf);
  if (code == 0) code = m01cavn(order, 2, descending, errbuf);
  if (code == 0) {
    const std::size_t ld = static_cast<std::size_t>(ldm);
    // Columns i and j compared on rows m1..m2 in turn; the first row where
    // they differ decides.
    zeb::m01::rank_list(irank, n1, n2, descending, [=](int i, int j) {
      const int* a = im + static_cast<std::size_t>(i - 1) * ld;
      const int* b = im + static_cast<std::size_t>(j - 1) * ld;
      for (int k = m1 - 1; k < m2; ++k) {
        if (a[k] != b[k]) return a[k] > b[k];
      }
      return false;
    });
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
