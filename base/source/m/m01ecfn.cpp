#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

#include "m01_kernels.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

namespace {

// Elements of any length; the value held aside is a buffer of the caller's.
struct TextHold {
  using Value = char*;
  char* x;
  std::size_t len;
  char* at(int i) const { return x + static_cast<std::size_t>(i - 1) * len; }
  void get(char*& v, int i) const { std::memcpy(v, at(i), len); }
  void swap_v(char*& v, int j) { std::swap_ranges(v, v + len, at(j)); }
  void put(int i, char* const& v) { std::memcpy(at(i), v, len); }
};

}  // namespace

void m01ecfn(zeb::fchar ch, int m1, int m2, int* irank, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = m01cawn(m1, m2, errbuf);
  char local[256];
  char* held = local;
  const std::size_t len = static_cast<std::size_t>(ch.n);
  if (code == 0 && len > sizeof local) {
    held = new (std::nothrow) char[len];
    if (held == nullptr) code = -999;
  }
  if (code == 0) {
    // The whole of IRANK is checked before anything moves, so a failure
    // leaves both arrays as they came.
    int pos = 0;
    int value = 0;
    code = m01zazn(irank, m1, m2, pos, value);
    if (code != 0) {
      m01zayn(code, pos, value, m1, m2, errbuf);
    } else {
      TextHold a{ch.p, len};
      zeb::m01::perm_apply(a, irank, m1, m2, held);
    }
  }
  if (held != local) delete[] held;
  zeb::errbuf_close(errbuf, code, ifail);
}
