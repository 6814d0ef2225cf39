#include "m01_kernels.h"
#include "zeb_m_ib_aux.h"

void m01cczn(char* ch, int len, int m1, int m2, int l1, int l2, char order) {
  if (len > zeb::m01::max_len) return;  // refused by every caller's checks
  zeb::m01::CharSeq a(ch, len, l1, l2);
  zeb::m01::sort_range(a, m1, m2, order == 'D' || order == 'd', true);
}
