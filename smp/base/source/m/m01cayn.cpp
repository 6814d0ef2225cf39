#include <utility>

#include "m01_region.h"
#include "zeb_m_ib_aux.h"

void m01cayn(double* rv, int m1, int ms, int m2, bool descending, double* scratch) {
  zeb::m01::sort_region(
      m1, ms, m2, descending,
      [rv](int lo, int hi) { m01cazn(rv, lo, hi, 'A'); },
      [rv, scratch](int lo, int mid, int hi) { m01caxn(rv, lo, mid, hi, scratch); },
      [rv, m1, ms]() {
        if (ms > m1) m01catn(rv, m1, ms);
      },
      [rv](int i, int j) { std::swap(rv[i - 1], rv[j - 1]); });
}
