#include <cstddef>
#include <new>

#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"
#include "zeb_w_ib_aux.h"

namespace {
// Below this many elements the sort stays in the calling thread. Strings cost
// more per comparison and per move than numbers, so the cut is lower.
constexpr int m01ccf_parallel_min = 5000;
// The longest element the sort takes.
constexpr int m01ccf_max_len = 255;
}  // namespace

void m01ccfn(zeb::fchar ch, int m1, int m2, int l1, int l2, std::string_view order,
             char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  bool descending = false;
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) code = m01ccwn(l1, l2, ch.n, errbuf);
  if (code == 0) code = m01cavn(order, 3, descending, errbuf);
  if (code == 0 && ch.n > m01ccf_max_len) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {4, 99991, 1, ch.n});
    code = 4;
  }
  if (code == 0 && m1 < m2) {
    bool sorted = false;
    if (m2 - m1 + 1 >= m01ccf_parallel_min && !w01aavn() && w01aazn() > 1) {
      // Scratch for the merges, indexed as CH; without it, one thread.
      char* scratch =
          new (std::nothrow) char[static_cast<std::size_t>(m2) * static_cast<std::size_t>(ch.n)];
      if (scratch != nullptr) {
        m01ccyn(ch.p, ch.n, m1, m2, l1, l2, descending, scratch);
        delete[] scratch;
        sorted = true;
      }
    }
    if (!sorted) m01cczn(ch.p, ch.n, m1, m2, l1, l2, descending ? 'D' : 'A');
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
