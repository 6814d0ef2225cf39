#include "m01_kernels.h"
#include "zeb_m_ib_aux.h"

void m01ccxn(char* ch, int len, int lo, int mid, int hi, int l1, int l2, char* scratch) {
  zeb::m01::CharSeq a(ch, len, l1, l2);
  a.s = scratch;
  zeb::m01::merge_blocks(a, lo, mid, hi);
}
