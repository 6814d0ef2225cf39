#include <cstddef>
#include <new>

#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"
#include "zeb_w_ib_aux.h"

namespace {
// Below this many elements the sort stays in the calling thread (as for
// m01caf: where two threads gain whether waiting threads spin or sleep).
constexpr int m01cbf_parallel_min = 10000;
}  // namespace

void m01cbfn(int* iv, int m1, int m2, std::string_view order, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  bool descending = false;
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) code = m01cavn(order, 2, descending, errbuf);
  if (code == 0 && m1 < m2) {
    bool sorted = false;
    if (m2 - m1 + 1 >= m01cbf_parallel_min && !w01aavn() && w01aazn() > 1) {
      // Scratch for the merges, indexed as IV; without it, one thread.
      int* scratch = new (std::nothrow) int[static_cast<std::size_t>(m2)];
      if (scratch != nullptr) {
        m01cbyn(iv, m1, m2, descending, scratch);
        delete[] scratch;
        sorted = true;
      }
    }
    if (!sorted) m01cbzn(iv, m1, m2, descending ? 'D' : 'A');
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
