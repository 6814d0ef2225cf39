#include <cmath>
#include <utility>

#include "zeb_m_ib_aux.h"

int m01caun(double* rv, int m1, int m2) {
  int any = 0;
  for (int i = m1 - 1; i < m2; ++i) any |= rv[i] != rv[i];
  if (any == 0) return m2;
  // Positions after j hold NaNs; element j, while j > i, is a number.
  int j = m2;
  while (j >= m1 && std::isnan(rv[j - 1])) --j;
  for (int i = m1; i < j; ++i) {
    if (std::isnan(rv[i - 1])) {
      std::swap(rv[i - 1], rv[j - 1]);
      --j;
      while (j > i && std::isnan(rv[j - 1])) --j;
    }
  }
  return j;
}
