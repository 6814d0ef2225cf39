// exp(z) for complex z.
#include <cmath>
#include <complex>

#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

namespace {

void fail(char* errbuf, int code, int number, double x, double y, int& ifail) {
  zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,1P,E13.5))", {code, number, 2, x, y});
  zeb::errbuf_close(errbuf, code, ifail);
}

// e^x v for a v of magnitude at most 1, e = e^x: where e itself overflows
// (x beyond about 709.78) though the product may not, the product is formed
// from the two halves e^(x/2). A zero v stays an exact zero (the imaginary
// part on the real axis).
double scaled(double x, double e, double v) {
  if (v == 0.0) return v;
  if (!std::isinf(e)) return e * v;
  const double h = std::exp(0.5 * x);
  return (h * v) * h;
}

}  // namespace

// exp(x + iy) = e^x cos y + i e^x sin y. The failures are tested in the order
// 5, 3, 1, 2, 4: an imaginary part beyond L = min(x02ahf, 1/x02ajf) leaves no
// digit of cos y and sin y; overflow of a part is judged by x + ln|cos y| or
// x + ln|sin y| against ln(1/x02amf); beyond the half-precision limit (sqrt L
// when (1/x02ajf)^0.75 does not exceed L, else L itself) the value is
// returned with a warning.
std::complex<double> s01eafn(std::complex<double> z, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double x = z.real();
  const double y = z.imag();
  const double ay = std::fabs(y);
  const double rinv = 1.0 / x02ajfn();
  const double lim = std::fmin(x02ahfn(), rinv);
  if (ay > lim) {
    fail(errbuf, 5, 99995, x, y, ifail);
    return {0.0, 0.0};
  }

  const double c = std::cos(y);
  const double s = std::sin(y);
  const double big = 1.0 / x02amfn();
  const double e = std::exp(x);
  bool re_over = false;
  bool im_over = false;
  if (e > big) {
    // Only here can a part overflow: ln|cos y| and ln|sin y| are <= 0.
    const double lnbig = std::log(big);
    re_over = x + std::log(std::fabs(c)) > lnbig;
    im_over = x + std::log(std::fabs(s)) > lnbig;
  }
  const double re = re_over ? 0.0 : scaled(x, e, c);
  const double im = im_over ? 0.0 : scaled(x, e, s);

  if (re_over && im_over) {
    fail(errbuf, 3, 99997, x, y, ifail);
    return {0.0, 0.0};
  }
  if (re_over) {
    fail(errbuf, 1, 99999, x, y, ifail);
    return {0.0, im};
  }
  if (im_over) {
    fail(errbuf, 2, 99998, x, y, ifail);
    return {re, 0.0};
  }
  const double half_limit =
      std::sqrt(rinv) * std::sqrt(std::sqrt(rinv)) > lim ? lim : std::sqrt(lim);
  if (ay > half_limit) {
    fail(errbuf, 4, 99996, x, y, ifail);
    return {re, im};
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  return {re, im};
}
