#include "m01_kernels.h"
#include "zeb_m_ib_aux.h"

void m01cbxn(int* iv, int lo, int mid, int hi, int* scratch) {
  zeb::m01::PlainSeq<int> a{iv, scratch};
  zeb::m01::merge_blocks(a, lo, mid, hi);
}
