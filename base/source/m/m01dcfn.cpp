#include <cstddef>
#include <cstring>

#include "m01_kernels.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

void m01dcfn(zeb::fcharray ch, int m1, int m2, int l1, int l2, std::string_view order,
             int* irank, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  bool descending = false;
  int code = m01cawn(m1, m2, errbuf);
  if (code == 0) code = m01ccwn(l1, l2, ch.n, errbuf);
  if (code == 0) code = m01cavn(order, 3, descending, errbuf);
  if (code == 0 && ch.n > zeb::m01::max_len) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {4, 99991, 1, ch.n});
    code = 4;
  }
  if (code == 0) {
    const std::size_t len = static_cast<std::size_t>(ch.n);
    const char* key = ch.p + (l1 - 1);
    const std::size_t klen = static_cast<std::size_t>(l2 - l1 + 1);
    zeb::m01::rank_list(irank, m1, m2, descending, [=](int i, int j) {
      return std::memcmp(key + (i - 1) * len, key + (j - 1) * len, klen) > 0;
    });
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
