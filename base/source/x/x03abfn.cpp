#include "zeb_x_ib.h"
#include "zeb_x_ib_helpers.h"

// The complex form of x03aafn: D1 = C + sum of A(1+(k-1)*ISTEPA) *
// B(1+(k-1)*ISTEPB), k = 1..N, D2 = 0. With SW true each part of the result is
// one compensated sum of real products (x03aayn): the real part of
// ar*br - ai*bi, the imaginary part of ar*bi + ai*br.
void x03abfn(const std::complex<double>* a, int isizea,
             const std::complex<double>* b, int isizeb, int n, int istepa,
             int istepb, std::complex<double> c1, std::complex<double> c2,
             std::complex<double>& d1, std::complex<double>& d2, int sw,
             char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  d1 = 0.0;
  d2 = 0.0;
  const int code = x03aaxn(n, isizea, isizeb, istepa, istepb, errbuf);
  if (code != 0) {
    zeb::errbuf_close(errbuf, code, ifail);
    return;
  }
  // A complex array is an array of (real, imaginary) pairs of doubles.
  const double* ar = reinterpret_cast<const double*>(a);
  const double* br = reinterpret_cast<const double*>(b);
  const long sa = 2L * istepa;
  const long sb = 2L * istepb;
  if (sw != 0) {
    double rh = c1.real();
    double rl = c2.real();
    x03aayn(n, ar, sa, br, sb, false, rh, rl);
    x03aayn(n, ar + 1, sa, br + 1, sb, true, rh, rl);
    double ih = c1.imag();
    double il = c2.imag();
    x03aayn(n, ar, sa, br + 1, sb, false, ih, il);
    x03aayn(n, ar + 1, sa, br, sb, false, ih, il);
    d1 = std::complex<double>(rh, ih);
  } else {
    double sr = c1.real();
    double si = c1.imag();
    for (long k = 0; k < n; ++k) {
      const double xr = ar[k * sa];
      const double xi = ar[k * sa + 1];
      const double yr = br[k * sb];
      const double yi = br[k * sb + 1];
      sr += xr * yr - xi * yi;
      si += xr * yi + xi * yr;
    }
    d1 = std::complex<double>(sr, si);
  }
  zeb::errbuf_close(errbuf, 0, ifail);
}
