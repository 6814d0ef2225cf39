// The Faddeeva function w(z) = exp(-z^2) erfc(-iz), z = x + iy, with each of
// the real and imaginary parts accurate to a small multiple of the machine
// precision relative to itself (not only to |w|).
//
// Upper half-plane, x >= 0 (the quadrant x < 0 by w(-conj z) = conj w(z)):
//   y = 0        Re w = exp(-x^2), Im w = (2/sqrt(pi)) F(x), F Dawson's
//                integral (s15affn);
//   x = 0        w = erfcx(y) (s15agzn);
//   |z| >= 1e8   w = i/(sqrt(pi) z), the next term being below x02ajf
//                relative to each part;
//   y >= 4, or y >= 1 and |z| >= 6, or y < 1 and x >= 8:
//                the Laplace continued fraction in its even (Jacobi) form
//                  w = (iz/sqrt(pi)) / (z^2 - 1/2 - c1/(z^2 - 5/2 - c2/(...))),
//                  c_k = k(2k-1)/2, the k-th denominator z^2 - (2k + 1/2),
//                cut after 1 to 14 levels by |z| (Gautschi 1970; Poppe and
//                Wijers, ACM TOMS 16, 1990). Near the real axis (y < 1) a
//                fraction of that length approximates w - exp(-z^2), the
//                part that is analytic across the axis, so exp(-z^2) is added
//                back: it carries the real part there;
//   otherwise    the series of Zaghloul and Ali (ACM TOMS 38, 2011, eq. 13-14),
//                the trapezoidal rule with step 1/2 applied to the integral of
//                erf (Abramowitz and Stegun 7.1.29) and multiplied out so that
//                exp(-x^2) stands as a factor and every sum is of positive
//                terms:
//                  Re w = E (erfcx(y) cos 2xy + sin^2(xy)/(pi y)
//                           - (y/pi) cos(2xy) S1) + (y/(2 pi)) (S2 + S3),
//                  Im w = E (-erfcx(y) sin 2xy + (x/pi) sinc(2xy)
//                           + (y/pi) sin(2xy) S1) + (1/(2 pi)) (S5 - S4),
//                E = exp(-x^2), S1 = sum exp(-n^2/4)/(n^2/4 + y^2),
//                S2, S3 = sum exp(-(n/2 +- x)^2)/(n^2/4 + y^2), S4, S5 the
//                same with a factor n/2, n >= 1. The truncation error of the
//                rule, about exp(-4 pi^2) = 7e-18, is below 3e-16 of each part
//                in this region. (Above y = 4 the terms of Im w cancel to
//                more than a digit near the imaginary axis; the fraction
//                takes over there.)
// Lower half-plane: w(z) = 2 exp(-z^2) - w(-z), where the failures are
// judged, as for s01eaf, on the exponential term 2 exp(y^2 - x^2) exp(-2ixy)
// wherever it is not negligible (y^2 - x^2 above 2 ln x02ajf):
//   5  |2xy| > L = min(x02ahf, 1/x02ajf): the phase is unknown; 0 returned;
//   3, 1, 2  both parts, the real part, the imaginary part overflow: their
//      logarithms y^2 - x^2 + ln 2 + ln|cos 2xy| (or sin) exceed
//      ln(1/x02amf); an overflowing part is returned as 0, the other as
//      computed;
//   4  |2xy| above the half-precision limit sqrt(L) (L itself if
//      (1/x02ajf)^0.75 exceeds L): a warning; the value is returned.
// Squares and the product 2xy are carried in double-double wherever their
// rounding would reach the result through exp or cos and sin.
#include <cmath>
#include <complex>

#include "zeb_dd.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::dd::dd;

// BEGIN GENERATED s15ddf-gauss
// exp(-n^2/4) for n = 0..15, from mpmath at 60 digits
// (tools/refdata/fit_s15ddf.py); max relative rounding error 1.1e-16.
constexpr double kGauss[16] = {
    1.0,
    0.7788007830714049,
    0.36787944117144233,
    0.10539922456186433,
    0.01831563888873418,
    0.0019304541362277093,
    0.00012340980408667956,
    4.785117392129009e-06,
    1.1253517471925912e-07,
    1.6052280551856116e-09,
    1.3887943864964021e-11,
    7.287724095819692e-14,
    2.3195228302435696e-16,
    4.4777324417183015e-19,
    5.242885663363464e-22,
    3.7233631217505106e-25,
};
// END GENERATED s15ddf-gauss

constexpr double kInvSqrtPi = 0x1.20dd750429b6dp-1;     // 1/sqrt(pi)
constexpr double kTwoOverSqrtPi = 0x1.20dd750429b6dp+0;  // 2/sqrt(pi)
constexpr double kInvPi = 0x1.45f306dc9c883p-2;         // 1/pi
constexpr double kLn2 = 0x1.62e42fefa39efp-1;           // ln 2

// exp(hi + lo) for a small lo.
double exp_dd(dd a) {
  const double e = std::exp(a.hi);
  return e + e * a.lo;
}

// sin and cos of hi + lo for a small lo.
void sincos_dd(dd p, double& s, double& c) {
  const double sh = std::sin(p.hi);
  const double ch = std::cos(p.hi);
  s = sh + ch * p.lo;
  c = ch - sh * p.lo;
}

// sin(t)/t.
double sinc(double t) {
  if (std::fabs(t) < 1e-4) return 1.0 - t * t / 6.0;
  return std::sin(t) / t;
}

// exp(-x^2) for x >= 0 with x^2 carried exactly; where exp underflows to 0
// (x^2 above 745), x may be too large for the exact square.
double gauss(double x) {
  if (std::exp(-x * x) == 0.0) return 0.0;
  const dd x2 = zeb::dd::two_prod(x, x);
  return exp_dd(zeb::dd::neg(x2));
}

// exp(-z^2) = exp(y^2 - x^2) (cos 2xy - i sin 2xy), for |x|, |y| below 1e150
// (Dekker's product).
std::complex<double> expmz2(double x, double y) {
  const dd t = zeb::dd::sub(zeb::dd::two_prod(y, y), zeb::dd::two_prod(x, x));
  const double e = exp_dd(t);
  double s, c;
  sincos_dd(zeb::dd::two_prod(2.0 * x, y), s, c);
  return {e * c, -(e * s)};
}

// The series of Zaghloul and Ali, for x >= 0, y > 0 (see the head of the file).
std::complex<double> series(double x, double y) {
  const double e = gauss(x);
  const double y2 = y * y;
  const dd th = zeb::dd::two_prod(2.0 * x, y);  // 2xy
  double s2, c2, s1, c1;
  sincos_dd(th, s2, c2);
  sincos_dd(dd{0.5 * th.hi, 0.5 * th.lo}, s1, c1);  // sin(xy)
  const double ex = s15agzn(y);

  // S1 = sum exp(-n^2/4)/(n^2/4 + y^2).
  double sum1 = 0.0;
  for (int n = 13; n >= 1; --n) sum1 += kGauss[n] / (0.25 * n * n + y2);

  // S2 + S3 and S5 - S4. The terms exp(-(n/2 - x)^2) are formed around
  // n0 = nearest(2x), where d0 = n0/2 - x is exact and |d0| <= 1/4:
  // exp(-(d0 + k/2)^2) = exp(-d0^2) exp(-k d0) exp(-k^2/4).
  double sum23 = 0.0;
  double sum54 = 0.0;
  if (x < 1.0) {
    // exp(-(n/2 -+ x)^2) = E exp(-n^2/4) exp(+-nx): the sum and difference as
    // 2E exp(-n^2/4) cosh(nx) and sinh(nx), by the recurrences
    // f((n+1)x) = 2 cosh(x) f(nx) - f((n-1)x), which keep sinh(nx) accurate
    // when nx is small and the difference would cancel.
    const double ch = std::cosh(x);
    const double twoch = 2.0 * ch;
    double cm = 1.0, cn = ch;              // cosh((n-1)x), cosh(nx)
    double sm = 0.0, sn = std::sinh(x);    // sinh((n-1)x), sinh(nx)
    double a23 = 0.0, a54 = 0.0;
    for (int n = 1; n <= 15; ++n) {
      const double g = kGauss[n];
      const double d = 0.25 * n * n + y2;
      a23 += g * cn / d;
      a54 += 0.5 * n * g * sn / d;
      const double cnext = twoch * cn - cm;
      const double snext = twoch * sn - sm;
      cm = cn;
      cn = cnext;
      sm = sn;
      sn = snext;
    }
    sum23 = 2.0 * e * a23;
    sum54 = 2.0 * e * a54;
  } else {
    const int n0 = static_cast<int>(std::nearbyint(2.0 * x));
    const double d0 = 0.5 * n0 - x;
    const double e0 = std::exp(-d0 * d0);
    const double gu = std::exp(-d0);  // factor per step upwards
    const double gd = 1.0 / gu;       // per step downwards
    double pu = e0, pd = e0;          // exp(-d0^2) exp(-+k d0)
    for (int k = 0; k <= 13; ++k) {
      if (k > 0) {
        pu *= gu;
        pd *= gd;
      }
      const int nu = n0 + k;
      if (nu >= 1) {
        const double t = pu * kGauss[k] / (0.25 * nu * nu + y2);
        sum23 += t;
        sum54 += 0.5 * nu * t;
      }
      const int nd = n0 - k;
      if (k > 0 && nd >= 1) {
        const double t = pd * kGauss[k] / (0.25 * nd * nd + y2);
        sum23 += t;
        sum54 += 0.5 * nd * t;
      }
    }
    // The terms exp(-(n/2 + x)^2) = E exp(-nx) exp(-n^2/4), below 1e-21 of
    // the sums once x passes 6.5.
    if (x < 6.5) {
      const double h = std::exp(-x);
      double hn = e;
      for (int n = 1; n <= 13; ++n) {
        hn *= h;
        const double t = hn * kGauss[n] / (0.25 * n * n + y2);
        sum23 += t;
        sum54 -= 0.5 * n * t;
      }
    }
  }

  const double re = e * (ex * c2 + kInvPi * x * s1 * sinc(0.5 * th.hi) - kInvPi * y * c2 * sum1) +
                    0.5 * kInvPi * y * sum23;
  const double im = e * (-ex * s2 + kInvPi * x * sinc(th.hi) + kInvPi * y * s2 * sum1) +
                    0.5 * kInvPi * sum54;
  return {re, im};
}

// The continued fraction for x >= 0, y > 0, |z| = r (see the head of the
// file), with exp(-z^2) added back near the real axis.
std::complex<double> contfrac(double x, double y, double r) {
  const int levels = r < 6.0 ? 14 : r < 7.5 ? 12 : r < 10.0 ? 8 : r < 15.0 ? 6 : r < 30.0 ? 4
                   : r < 100.0 ? 3 : r < 1e4 ? 2 : 1;
  const double zr = (x - y) * (x + y);  // Re z^2
  const double zi = 2.0 * x * y;        // Im z^2
  double rr = 0.0, ri = 0.0;            // the tail of the fraction
  for (int k = levels; k >= 1; --k) {
    const double dr = zr - (2.0 * k + 0.5) - rr;
    const double di = zi - ri;
    const double c = 0.5 * k * (2 * k - 1) / (dr * dr + di * di);
    rr = c * dr;
    ri = -c * di;
  }
  const double dr = zr - 0.5 - rr;
  const double di = zi - ri;
  const double q = kInvSqrtPi / (dr * dr + di * di);
  // (iz) conj(D) / (sqrt(pi) |D|^2), iz = -y + ix.
  std::complex<double> w{(x * di - y * dr) * q, (x * dr + y * di) * q};
  if (y < 1.0) w += expmz2(x, y);
  return w;
}

// w(z) for x >= 0, y >= 0.
std::complex<double> upper(double x, double y) {
  if (std::isinf(x) || std::isinf(y)) return {0.0, 0.0};
  if (y == 0.0) return {gauss(x), kTwoOverSqrtPi * s15affn(x)};
  if (x == 0.0) return {s15agzn(y), 0.0};
  const double r = std::hypot(x, y);
  if (r >= 1e8) {
    // i/(sqrt(pi) z) = (y + ix)/(sqrt(pi) |z|^2), scaled against overflow.
    const double s = x > y ? x : y;
    const double xs = x / s;
    const double ys = y / s;
    const double q = kInvSqrtPi / ((xs * xs + ys * ys) * s);
    return {ys * q, xs * q};
  }
  if (y >= 4.0 || (y >= 1.0 && r >= 6.0) || (y < 1.0 && x >= 8.0)) return contfrac(x, y, r);
  return series(x, y);
}

// w(z) for y >= 0 and any x.
std::complex<double> upper_any(double x, double y) {
  if (x >= 0.0) return upper(x, y);
  return std::conj(upper(-x, y));
}

}  // namespace

std::complex<double> s15ddfn(std::complex<double> z, char* errbuf, int& ifail) {
  constexpr const char* kRecord = "(3(1X,I5),2(1X,1P,E12.4))";
  const double x = z.real();
  const double y = z.imag();
  zeb::errbuf_clear(errbuf);
  if (std::isnan(x) || std::isnan(y)) {
    zeb::errbuf_close(errbuf, 0, ifail);
    return {std::nan(""), std::nan("")};
  }
  if (y >= 0.0) {
    zeb::errbuf_close(errbuf, 0, ifail);
    return upper_any(x, y);
  }

  // Lower half-plane: w(z) = 2 exp(-z^2) - w(-z).
  const double ax = std::fabs(x);
  const double ay = -y;
  const double big = (ay - ax) * (ay + ax);  // y^2 - x^2, perhaps infinite
  const double phase = 2.0 * x * y;
  const double lim = std::fmin(x02ahfn(), 1.0 / x02ajfn());
  const std::complex<double> wm = upper_any(-x, ay);
  if (!(big > 2.0 * std::log(x02ajfn()))) {
    // The exponential term is below x02ajf^2: no failure can arise from it,
    // but near the real axis it may still carry the real part.
    // exp(big) > 0 and |2xy| <= lim keep |x| and |y| in the range of expmz2.
    zeb::errbuf_close(errbuf, 0, ifail);
    if (std::fabs(phase) <= lim && std::exp(big) > 0.0) return 2.0 * expmz2(x, y) - wm;
    return -wm;
  }
  const double half = std::pow(1.0 / x02ajfn(), 0.75) > lim ? lim : std::sqrt(lim);
  if (!(std::fabs(phase) <= lim)) {
    zeb::errbuf_record(errbuf, kRecord, {5, 99995, 2, x, y});
    zeb::errbuf_close(errbuf, 5, ifail);
    return {0.0, 0.0};
  }
  const double cph = std::cos(phase);
  const double sph = std::sin(phase);
  const double logmax = std::log(1.0 / x02amfn());
  const bool re_over = cph != 0.0 && big + kLn2 + std::log(std::fabs(cph)) > logmax;
  const bool im_over = sph != 0.0 && big + kLn2 + std::log(std::fabs(sph)) > logmax;

  // The exponential term, accurately while 2 exp(y^2 - x^2) is in range,
  // else through logarithms part by part.
  double er, ei;
  if (big + kLn2 < logmax) {
    const std::complex<double> e = expmz2(x, y);
    er = 2.0 * e.real();
    ei = 2.0 * e.imag();
  } else {
    er = re_over || cph == 0.0 ? 0.0
        : std::copysign(std::exp(big + kLn2 + std::log(std::fabs(cph))), cph);
    ei = im_over || sph == 0.0 ? 0.0
        : -std::copysign(std::exp(big + kLn2 + std::log(std::fabs(sph))), sph);
  }
  std::complex<double> w{er - wm.real(), ei - wm.imag()};
  int code = 0;
  if (re_over && im_over) {
    code = 3;
    w = {0.0, 0.0};
    zeb::errbuf_record(errbuf, kRecord, {3, 99997, 2, x, y});
  } else if (re_over) {
    code = 1;
    w = {0.0, w.imag()};
    zeb::errbuf_record(errbuf, kRecord, {1, 99999, 2, x, y});
  } else if (im_over) {
    code = 2;
    w = {w.real(), 0.0};
    zeb::errbuf_record(errbuf, kRecord, {2, 99998, 2, x, y});
  } else if (std::fabs(phase) > half) {
    code = 4;
    zeb::errbuf_record(errbuf, kRecord, {4, 99996, 2, x, y});
  }
  zeb::errbuf_close(errbuf, code, ifail);
  return w;
}
