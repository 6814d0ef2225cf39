#include <cstddef>

#include "m01_kernels.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

void m01dffn(const int* im, int ldm, int m1, int m2, int n1, int n2, std::string_view order,
             int* irank, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  bool descending = false;
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) code = m01dewn(ldm, m2, n1, n2, errbuf);
  if (code == 0) code = m01cavn(order, 2, descending, errbuf);
  if (code == 0) {
    const std::size_t ld = static_cast<std::size_t>(ldm);
    // Rows i and j compared on columns n1..n2 in turn; the first column where
    // they differ decides.
    zeb::m01::rank_list(irank, m1, m2, descending, [=](int i, int j) {
      for (int k = n1; k <= n2; ++k) {
        const std::size_t c = static_cast<std::size_t>(k - 1) * ld;
        const int a = im[c + (i - 1)];
        const int b = im[c + (j - 1)];
        if (a != b) return a > b;
      }
      return false;
    });
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
