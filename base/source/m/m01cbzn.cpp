#include "m01_kernels.h"
#include "zeb_m_ib_aux.h"

void m01cbzn(int* iv, int m1, int m2, char order) {
  zeb::m01::PlainSeq<int> a{iv};
  zeb::m01::sort_range(a, m1, m2, order == 'D' || order == 'd', true);
}
