#include "zeb_x_ib_aux.h"

// Entry (i,j) of a printed matrix, from whichever storage holds it. Indices
// are 1-based and within 1..rows, 1..n; offsets are formed in 64 bits so
// that large leading dimensions do not wrap.
x04_entry x04cbwn(const x04_matrix& a, int i, int j) {
  x04_entry e;
  long long off = -1;
  if (a.store == 'B') {
    const long long lo = j - static_cast<long long>(a.ku);
    const long long hi = j + static_cast<long long>(a.kl);
    if (i < lo || i > hi) return e;
    off = (static_cast<long long>(a.ku) + i - j) +
          static_cast<long long>(j - 1) * a.lda;
  } else {
    if ((a.uplo == 'U' && i > j) || (a.uplo == 'L' && i < j)) return e;
    if (a.uplo != 'G' && i == j && a.diag != 'N') {
      e.state = a.diag == 'U' ? 3 : 2;
      e.re = e.state == 3 ? 1.0 : 0.0;
      e.iv = e.state == 3 ? 1 : 0;
      return e;
    }
    const long long ii = i;
    const long long jj = j;
    if (a.store == 'P') {
      off = a.uplo == 'U' ? (ii - 1) + jj * (jj - 1) / 2
                          : (ii - 1) + (2 * static_cast<long long>(a.n) - jj) *
                                           (jj - 1) / 2;
    } else {
      off = (ii - 1) + (jj - 1) * a.lda;
    }
  }
  e.state = 1;
  if (a.type == 'Z') {
    e.re = a.z[off].real();
    e.im = a.z[off].imag();
  } else if (a.type == 'I') {
    e.iv = a.i[off];
  } else {
    e.re = a.r[off];
  }
  return e;
}
