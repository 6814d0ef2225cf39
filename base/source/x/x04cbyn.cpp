#include <cmath>
#include <cstring>

#include "zeb_x_ib_aux.h"

namespace {

// Characters of an integer as I0 would write it, sign included.
int int_width(int v) {
  long long x = v;
  int w = x < 0 ? 2 : 1;
  if (x < 0) x = -x;
  while (x >= 10) {
    x /= 10;
    ++w;
  }
  return w;
}

// Rows of column j that hold stored entries: all of a general matrix, the
// triangle's part, or the band's.
void stored_rows(const x04_matrix& a, int rows, int j, int& lo, int& hi) {
  lo = 1;
  hi = rows;
  if (a.store == 'B') {
    if (j - static_cast<long long>(a.ku) > lo) lo = j - a.ku;
    if (j + static_cast<long long>(a.kl) < hi) hi = j + a.kl;
  } else if (a.uplo == 'U') {
    if (j < hi) hi = j;
  } else if (a.uplo == 'L') {
    lo = j;
  }
}

}  // namespace

// Scans the entries that will be printed (a unit or unprinted diagonal is
// not scanned; NaNs say nothing of the magnitude) and picks the format:
// "F8.4" when every magnitude is at most 1.0 and every nonzero one at least
// 0.001, "F11.4" when they are below 9999.99991 and the nonzero ones at
// least 0.001, otherwise "1PE13.4". Integers take "I<w>", w one more than
// the widest entry (sign included) or heading.
int x04cbyn(const x04_matrix& a, int minw, char* form) {
  const int rows = a.store == 'P' ? a.n : a.m;
  if (a.type == 'I') {
    int w = minw;
    for (int j = 1; j <= a.n; ++j) {
      int lo = 0;
      int hi = 0;
      stored_rows(a, rows, j, lo, hi);
      for (int i = lo; i <= hi; ++i) {
        const x04_entry e = x04cbwn(a, i, j);
        if (e.state == 1 || e.state == 3) {
          const int k = int_width(e.iv);
          if (k > w) w = k;
        }
      }
    }
    if (w < 1) w = 1;
    zeb::write_lines("(A,I0)", {"I", w + 1}, form, 16, 1);
    return 1 + int_width(w + 1);
  }
  double big = 0.0;
  double small = 0.0;  // 0: no nonzero magnitude seen
  auto look = [&](double x) {
    const double v = std::fabs(x);
    if (std::isnan(v) || v == 0.0) return;
    if (v > big) big = v;
    if (small == 0.0 || v < small) small = v;
  };
  for (int j = 1; j <= a.n; ++j) {
    int lo = 0;
    int hi = 0;
    stored_rows(a, rows, j, lo, hi);
    for (int i = lo; i <= hi; ++i) {
      const x04_entry e = x04cbwn(a, i, j);
      if (e.state != 1) continue;
      look(e.re);
      if (a.type == 'Z') look(e.im);
    }
  }
  const bool small_ok = small == 0.0 || small >= 0.001;
  const char* f = "1PE13.4";
  if (big <= 1.0 && small_ok) {
    f = "F8.4";
  } else if (big < 9999.99991 && small_ok) {
    f = "F11.4";
  }
  const int n = static_cast<int>(std::strlen(f));
  std::memcpy(form, f, n);
  return n;
}
