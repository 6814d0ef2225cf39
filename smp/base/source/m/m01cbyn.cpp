#include <utility>

#include "m01_region.h"
#include "zeb_m_ib_aux.h"

void m01cbyn(int* iv, int m1, int m2, bool descending, int* scratch) {
  zeb::m01::sort_region(
      m1, m2, m2, descending,
      [iv](int lo, int hi) { m01cbzn(iv, lo, hi, 'A'); },
      [iv, scratch](int lo, int mid, int hi) { m01cbxn(iv, lo, mid, hi, scratch); },
      []() {},
      [iv](int i, int j) { std::swap(iv[i - 1], iv[j - 1]); });
}
