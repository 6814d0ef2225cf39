#include "zeb_m_ib_aux.h"

int m01zazn(int* p, int m1, int m2, int& pos, int& value) {
  for (int i = m1; i <= m2; ++i) {
    const int v = p[i - 1];
    if (v < m1 || v > m2) {
      pos = i;
      value = v;
      return 2;
    }
  }
  // Every value marks the entry it names; a value met twice finds its mark.
  for (int i = m1; i <= m2; ++i) {
    const int v = p[i - 1] < 0 ? -p[i - 1] : p[i - 1];
    if (p[v - 1] < 0) {
      for (int k = m1; k <= m2; ++k) {
        if (p[k - 1] < 0) p[k - 1] = -p[k - 1];
      }
      pos = i;
      value = v;
      return 3;
    }
    p[v - 1] = -p[v - 1];
  }
  return 0;
}
