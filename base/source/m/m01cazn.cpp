#include "m01_kernels.h"
#include "zeb_m_ib_aux.h"

void m01cazn(double* rv, int m1, int m2, char order) {
  if (m1 >= m2) return;
  // Without NaNs `<` is a strict weak order and the insertion pass may rely
  // on its sentinel; one branch-free pass finds out.
  int nan = 0;
  for (int i = m1 - 1; i < m2; ++i) nan |= rv[i] != rv[i];
  zeb::m01::PlainSeq<double> a{rv};
  zeb::m01::sort_range(a, m1, m2, order == 'D' || order == 'd', nan == 0);
}
