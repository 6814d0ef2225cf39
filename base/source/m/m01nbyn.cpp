#include "zeb_m_ib_aux.h"

int m01nbyn(const int* iv, int m1, int m2) {
  for (int k = m1; k < m2; ++k) {
    if (iv[k - 1] > iv[k]) return k;
  }
  return 0;
}
