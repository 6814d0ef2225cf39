#include "m01_kernels.h"
#include "zeb_m_ib_aux.h"

void m01caxn(double* rv, int lo, int mid, int hi, double* scratch) {
  zeb::m01::PlainSeq<double> a{rv, scratch};
  zeb::m01::merge_blocks(a, lo, mid, hi);
}
