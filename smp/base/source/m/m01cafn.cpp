#include <algorithm>
#include <cstddef>
#include <new>

#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"
#include "zeb_w_ib_aux.h"

namespace {
// Below this many elements the sort stays in the calling thread. Measured on
// two cores: with threads that spin at barriers (the runtime's default) two
// threads already win at 2000 elements; with sleeping threads (a wake-up per
// barrier) the break-even is near 7000. At 10000 both ways gain.
constexpr int m01caf_parallel_min = 10000;
}  // namespace

// NaNs are moved to the end of the range first and are not sorted; the
// numbers are sorted ascending, -0.0 before +0.0, and for a descending order
// the whole range is then reversed. The array that results is therefore one
// arrangement, whatever the path and the number of threads.
void m01cafn(double* rv, int m1, int m2, std::string_view order, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  bool descending = false;
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) code = m01cavn(order, 2, descending, errbuf);
  if (code == 0 && m1 < m2) {
    const int ms = m01caun(rv, m1, m2);
    bool sorted = false;
    if (ms - m1 + 1 >= m01caf_parallel_min && !w01aavn() && w01aazn() > 1) {
      // Scratch for the merges, indexed as RV; without it, one thread.
      double* scratch = new (std::nothrow) double[static_cast<std::size_t>(m2)];
      if (scratch != nullptr) {
        m01cayn(rv, m1, ms, m2, descending, scratch);
        delete[] scratch;
        sorted = true;
      }
    }
    if (!sorted) {
      if (ms > m1) {
        m01cazn(rv, m1, ms, 'A');
        m01catn(rv, m1, ms);
      }
      if (descending) std::reverse(rv + (m1 - 1), rv + m2);
    }
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
