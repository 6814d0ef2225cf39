// The polygamma function psi^(K)(z) of order 0 <= K <= 4 for complex z.
//
// For Re z >= 1/2, s14afzn. Otherwise the reflection of order K,
//   psi^(K)(z) = (-1)^K psi^(K)(1-z) - pi^(K+1) P_K(cot(pi z)),
// P_0 = c, P_(K+1) = -(1+c^2) P_K'(c); for y >= 0,
// cot(pi z) = -i (1+q)/(1-q), q = exp(2 pi i z), |q| <= 1, so nothing
// overflows for large |y|; psi^(K)(conj z) = conj psi^(K)(z).
#include <cmath>
#include <complex>

#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

namespace {

// pi^(K+1), K = 0..6, correctly rounded: the high parts of the table that
// tools/refdata/fit_s14ac.py prints.
constexpr double kPiPow[] = {
    3.141592653589793, 9.869604401089358, 31.00627668029982, 97.40909103400244,
    306.01968478528147, 961.3891935753045, 3020.2932277767923,
};

// The recurrence gives P_1 = -(1+c^2), P_2 = 2c(1+c^2),
// P_3 = -2(1+c^2)(1+3c^2), P_4 = 8c(1+c^2)(2+3c^2).

// The plain complex product: an infinity or NaN in it marks a pole all the
// same, and the library's own product would spend time on its recovery.
std::complex<double> mul(std::complex<double> a, std::complex<double> b) {
  return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

}  // namespace

std::complex<double> s14affn(std::complex<double> z, int k, char* errbuf, int& ifail) {
  using cplx = std::complex<double>;
  zeb::errbuf_clear(errbuf);
  if (k < 0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {2, 99998, 1, k});
    zeb::errbuf_close(errbuf, 2, ifail);
    return {0.0, 0.0};
  }
  if (k > 4) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {3, 99997, 1, k});
    zeb::errbuf_close(errbuf, 3, ifail);
    return {0.0, 0.0};
  }
  const double x = z.real();
  const double y = z.imag();
  if (std::isnan(x) || std::isnan(y)) {
    zeb::errbuf_close(errbuf, 0, ifail);
    return {NAN, NAN};
  }
  bool pole = y == 0.0 && x <= 0.0 && x == std::nearbyint(x);
  const double ya = std::fabs(y);
  double re = 0.0;
  double im = 0.0;
  if (!pole) {
    if (x >= 0.5) {
      s14afzn(x, ya, k, re, im);
    } else {
      double gr = 0.0;
      double gi = 0.0;
      s14afzn(1.0 - x, ya, k, gr, gi);  // conj of psi^(K)(1 - z)
      const cplx refl = (k % 2 == 0 ? 1.0 : -1.0) * cplx(gr, -gi);
      double mr = 0.0, mi = 0.0, pr = 0.0, pi = 0.0, qr = 0.0, qi = 0.0;
      s14agyn(x, ya, mr, mi, pr, pi, qr, qi);
      // c = -i (1+q)/(1-q) and s = q/(1-q) by one reciprocal of |1-q|^2,
      // formed in the extended range, where it neither overflows nor
      // underflows.
      zeb::ext::Precision guard(mr, mi, pr, pi, qr, qi);
      const long double d =
          1.0L / (static_cast<long double>(mr) * mr + static_cast<long double>(mi) * mi);
      const long double mrd = mr * d;
      const long double mid = mi * d;
      const cplx c(static_cast<double>(pi * mrd - pr * mid),
                   static_cast<double>(-(pr * mrd + pi * mid)));
      // Every P_K beyond the first carries 1 + c^2, which for large y is
      // exponentially small: with s = q/(1-q), c = -i (1 + 2s) and
      // 1 + c^2 = -4 s (1 + s) exactly, free of the cancellation.
      const cplx sq(static_cast<double>(qr * mrd + qi * mid),
                    static_cast<double>(qi * mrd - qr * mid));
      const cplx opc2 = -4.0 * mul(sq, 1.0 + sq);
      const cplx c2 = opc2 - 1.0;
      cplx p;
      switch (k) {
        case 0: p = c; break;
        case 1: p = -opc2; break;
        case 2: p = 2.0 * mul(c, opc2); break;
        case 3: p = -2.0 * mul(opc2, 1.0 + 3.0 * c2); break;
        default: p = 8.0 * mul(mul(c, opc2), 2.0 + 3.0 * c2); break;
      }
      const cplx v = refl - kPiPow[k] * p;
      re = v.real();
      im = v.imag();
      guard.release(re, im);
    }
    pole = !std::isfinite(re) || !std::isfinite(im);
  }
  if (pole) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))", {1, 99999, 2, x, y});
    zeb::errbuf_close(errbuf, 1, ifail);
    return {0.0, 0.0};
  }
  if (y < 0.0) im = -im;
  // On the real axis the value is real: +0, whatever sign the sums left.
  if (y == 0.0) im = 0.0;
  zeb::errbuf_close(errbuf, 0, ifail);
  return {re, im};
}
