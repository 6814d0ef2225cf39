#include <cmath>

#include "zeb_m_ib_aux.h"

void m01catn(double* rv, int m1, int m2) {
  // The first element that is not negative, then the run of zeros from there.
  int lo = m1;
  int hi = m2 + 1;
  while (lo < hi) {
    const int m = lo + (hi - lo) / 2;
    if (rv[m - 1] < 0.0) lo = m + 1; else hi = m;
  }
  int end = lo;
  int negative = 0;
  while (end <= m2 && rv[end - 1] == 0.0) {
    if (std::signbit(rv[end - 1])) ++negative;
    ++end;
  }
  if (negative == 0 || negative == end - lo) return;
  for (int k = lo; k < end; ++k) rv[k - 1] = k < lo + negative ? -0.0 : 0.0;
}
