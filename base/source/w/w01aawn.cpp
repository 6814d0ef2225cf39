#include "zeb_w_ib_aux.h"

void w01aawn(int p, int t, int n, int& first, int& last) {
  if (p <= 1) {
    first = 1;
    last = n;
    return;
  }
  if (t < 0) w01aaxn(t);
  const int base = n / p;
  const int rest = n % p;
  first = base * t + (rest < t ? rest : t) + 1;
  // In 64 bits: n + p would overflow for n within p of the largest integer.
  last = first + static_cast<int>((static_cast<long long>(n) + p - t - 1) / p) - 1;
}
