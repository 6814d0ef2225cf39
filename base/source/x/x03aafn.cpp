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
  const int code = x03aaxn(n, isizea, isizeb, istepa, istepb, errbuf);
  if (code != 0) {
    zeb::errbuf_close(errbuf, code, ifail);
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
