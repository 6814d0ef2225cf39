// ln gamma(z) for complex z, the principal branch: real on the positive real
// axis, continuous in the plane cut along the negative real axis, and on the
// cut continuous from above; ln gamma(conj z) = conj ln gamma(z) off the cut.
//
// For Re z >= 1/2, s14agzn. Otherwise, with q = exp(2 pi i z) and y >= 0,
// the reflection written so that it neither overflows nor leaves the branch:
//   ln gamma(z) = ln(2 pi) - pi y - ln(1 - q) + i (pi x - pi/2)
//                 - ln gamma(1 - z),
// where |q| <= 1, so ln(1 - q) is the principal logarithm throughout, and
// ln gamma(1 - z) = conj ln gamma(1 - x + iy).
#include <cmath>
#include <complex>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

std::complex<double> s14agfn(std::complex<double> z, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double x = z.real();
  const double y = z.imag();
  if (std::isnan(x) || std::isnan(y)) {
    zeb::errbuf_close(errbuf, 0, ifail);
    return {NAN, NAN};
  }
  if (y == 0.0 && x <= 0.0 && x == std::nearbyint(x)) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))", {1, 99999, 2, x, y});
    zeb::errbuf_close(errbuf, 1, ifail);
    return {0.0, 0.0};
  }
  // Beyond 2.55e305 in modulus |z ln z| can exceed the largest real.
  // (Below 1.8e305 in both parts the modulus is below 2.546e305.)
  if (!(std::fmax(std::fabs(x), std::fabs(y)) <= 1.8e305) && !(std::hypot(x, y) <= 2.55e305)) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))", {2, 99998, 2, x, y});
    zeb::errbuf_close(errbuf, 2, ifail);
    return {0.0, 0.0};
  }
  if (y == 0.0 && (x == 1.0 || x == 2.0)) {
    // The zeros of ln gamma on the real axis, exactly.
    zeb::errbuf_close(errbuf, 0, ifail);
    return {0.0, 0.0};
  }
  const double ya = std::fabs(y);
  double re = 0.0;
  double im = 0.0;
  if (x >= 0.5) {
    s14agzn(x, ya, re, im);
  } else {
    using namespace zeb::dd;
    constexpr double kPiHi = 3.141592653589793116;
    constexpr double kPiLo = 1.2246467991473532e-16;
    constexpr double kLn2PiHi = 1.8378770664093456;
    constexpr double kLn2PiLo = -7.756588316134483e-17;
    double gr = 0.0;
    double gi = 0.0;
    // 1 - x may round by half an ulp of 1: that moves the value by less than
    // its last place except near its zeros.
    s14agzn(1.0 - x, ya, gr, gi);
    double lr = 0.0;
    double li = 0.0;
    double pr = 0.0;
    double pi = 0.0;
    double qr = 0.0;
    double qi = 0.0;
    s14agyn(x, ya, lr, li, pr, pi, qr, qi);
    // ln(1 - q): its modulus by the larger part, so that a tiny 1 - q near
    // a pole keeps its digits.
    const double lre = std::log(std::hypot(lr, li));
    const double lim = std::atan2(li, lr);
    dd r = dd{kLn2PiHi, kLn2PiLo};
    r = add(r, neg(two_prod(kPiHi, ya)));
    r = add(r, -lre);
    r = add(r, -gr);
    re = r.hi + r.lo;
    // pi x - pi/2, with pi x carried as hi + lo: large |x| makes it the
    // bulk of the value.
    dd t = two_prod(kPiHi, x);
    t.lo += kPiLo * x;
    t = add(t, dd{-0.5 * kPiHi, -0.5 * kPiLo});
    t = add(t, -lim);
    t = add(t, gi);  // conj of ln gamma(1 - x + i|y|)
    im = t.hi + t.lo;
  }
  if (y < 0.0) im = -im;
  zeb::errbuf_close(errbuf, 0, ifail);
  return {re, im};
}
