#include <cstddef>
#include <cstring>

#include "zeb_m_ib_aux.h"

int m01ncyn(const char* ch, int len, int m1, int m2) {
  const std::size_t n = static_cast<std::size_t>(len);
  for (int k = m1; k < m2; ++k) {
    const char* a = ch + static_cast<std::size_t>(k - 1) * n;
    if (std::memcmp(a, a + n, n) > 0) return k;
  }
  return 0;
}
