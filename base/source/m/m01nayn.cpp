#include "zeb_m_ib_aux.h"

int m01nayn(const double* rv, int m1, int m2) {
  for (int k = m1; k < m2; ++k) {
    if (rv[k - 1] > rv[k]) return k;
  }
  return 0;
}
