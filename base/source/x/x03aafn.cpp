#include "zeb_x_ib.h"
#include "zeb_x_ib_helpers.h"

// D1 = C + sum of A(1+(k-1)*ISTEPA) * B(1+(k-1)*ISTEPB), k = 1..N, D2 = 0.
// With SW true the initial value is C1 + C2 and the sum is compensated
// (x03aayn); otherwise a plain loop in double precision from C1.
void x03aafn(const double* a, int isizea, const double* b, int isizeb, int n,
             int istepa, int istepb, double c1, double c2, double& d1,
             double& d2, int sw, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  d1 = 0.0;
  d2 = 0.0;
  if (istepa < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99999, 1, istepa});
    zeb::errbuf_close(errbuf, 1, ifail);
    return;
  }
  if (istepb < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99998, 1, istepb});
    zeb::errbuf_close(errbuf, 1, ifail);
    return;
  }
  // The last element used is 1 + (N-1)*step; in 64 bits, since the product
  // of two 32-bit integers may not fit in one.
  if (n >= 1 && static_cast<long long>(n - 1) * istepa + 1 > isizea) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),3(1X,I20))", {2, 99997, 3, isizea, istepa, n});
    zeb::errbuf_close(errbuf, 2, ifail);
    return;
  }
  if (n >= 1 && static_cast<long long>(n - 1) * istepb + 1 > isizeb) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),3(1X,I20))", {2, 99996, 3, isizeb, istepb, n});
    zeb::errbuf_close(errbuf, 2, ifail);
    return;
  }
  if (sw != 0) {
    double hi = c1;
    double lo = c2;
    x03aayn(n, a, istepa, b, istepb, false, hi, lo);
    d1 = hi;
  } else {
    double s = c1;
    for (long k = 0; k < n; ++k) s += a[k * istepa] * b[k * istepb];
    d1 = s;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
}
