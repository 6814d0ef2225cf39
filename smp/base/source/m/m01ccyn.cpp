#include <algorithm>
#include <cstddef>

#include "m01_region.h"
#include "zeb_m_ib_aux.h"

void m01ccyn(char* ch, int len, int m1, int m2, int l1, int l2, bool descending,
             char* scratch) {
  const std::size_t n = static_cast<std::size_t>(len);
  zeb::m01::sort_region(
      m1, m2, m2, descending,
      [=](int lo, int hi) { m01cczn(ch, len, lo, hi, l1, l2, 'A'); },
      [=](int lo, int mid, int hi) { m01ccxn(ch, len, lo, mid, hi, l1, l2, scratch); },
      []() {},
      [=](int i, int j) {
        char* a = ch + static_cast<std::size_t>(i - 1) * n;
        std::swap_ranges(a, a + n, ch + static_cast<std::size_t>(j - 1) * n);
      });
}
