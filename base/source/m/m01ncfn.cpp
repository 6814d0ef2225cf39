#include <cstddef>

#include "m01_kernels.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

int m01ncfn(int valid, zeb::fcharray ch, int m1, int m2, std::string_view item,
            char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = 0;
  int result = 0;
  if (valid == 0) code = m01cawn(m1, m2, errbuf);
  if (code == 0 && ch.n > zeb::m01::max_len) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {3, 99995, 1, ch.n});
    code = 3;
  }
  if (code == 0 && valid == 0) {
    const int k = m01ncyn(ch.p, ch.n, m1, m2);
    if (k != 0) {
      zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {2, 99996, 2, k, k + 1});
      code = 2;
    }
  }
  if (code == 0) {
    // ITEM and the elements compare as Fortran texts: the shorter one is
    // extended with blanks.
    const std::size_t len = static_cast<std::size_t>(ch.n);
    result = zeb::m01::search_last_le(m1, m2, [&](int k) {
      return zeb::m01::text_compare(item.data(), item.size(),
                                    ch.p + static_cast<std::size_t>(k - 1) * len, len) < 0;
    });
  }
  zeb::errbuf_close(errbuf, code, ifail);
  return result;
}
