// Fresnel integral S(x) = integral of sin(pi t^2/2) from 0 to x, an odd
// function; for a = |x|:
//   a < 3.49e-103          0 (pi a^3/6 is below the smallest normal number)
//   a < 0.00018            the series cut to two terms,
//                          (pi/6) a^3 (1 - (pi^2/56) a^4), with a^3 formed
//                          in double-double so that it is not rounded twice
//   a <= 1                 a^3 Ps(v), v = a^4, the same a^3
//   1 < a <= 3             four polynomials in a - centre, intervals of 1/2
//   3 < a <= 4294967290    1/2 - f cos(pi a^2/2) - g sin(pi a^2/2) with the
//                          auxiliary functions f, g of s20aczn
//   beyond                 1/2: the phase pi a^2/2 is no longer known to a
//                          radian, and f is below 1e-10.
// The polynomials are derived by tools/refdata/fit_s20acf.py, which rewrites
// the generated blocks below.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

namespace {

// BEGIN GENERATED s20acf-small
// Ps(v) = S(a)/a^3, v = a^4: degree 8 in v on [0.0, 1.0], Chebyshev
// interpolation at 60 digits (tools/refdata/fit_s20acf.py); max relative error
// as stored 1.2e-17.
// The constant term's high part; small_tail(v) is Ps(v) less it.
constexpr double kSmallHi = 0.5235987755982989;
inline double small_tail(double v) {
  double p = 1.6836057139477728e-13;
  p = -2.1565011474041e-11 + v * p;
  p = 2.1082028158886435e-09 + v * p;
  p = -1.5647143949041612e-07 + v * p;
  p = 8.444272881636449e-06 + v * p;
  p = -0.00031211694235420826 + v * p;
  p = 0.007244784204196968 + v * p;
  p = -0.09228058535803518 + v * p;
  return -5.361244805611062e-17 + v * p;
}
// END GENERATED s20acf-small

// BEGIN GENERATED s20acf-middle
// S(a) on (1, 3] in four pieces of width 1/2, as polynomials in t = a - centre.
// k = 0: degree 17 in t = a - 1.25 on [1.0, 1.5], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s20acf.py); max relative error as stored
// 1.7e-17.
// k = 1: degree 18 in t = a - 1.75 on [1.5, 2.0], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s20acf.py); max relative error as stored
// 3.3e-17.
// k = 2: degree 19 in t = a - 2.25 on [2.0, 2.5], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s20acf.py); max relative error as stored
// 1.0e-17.
// k = 3: degree 20 in t = a - 2.75 on [2.5, 3.0], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s20acf.py); max relative error as stored
// 6.7e-18.
inline double middle(int k, double a) {
  switch (k) {
    case 0: {
      const double t = a - 1.25;
      double p = 0.014052009469641573;
      p = 0.01240195220717437 + t * p;
      p = -0.03141294843519957 + t * p;
      p = -0.10450098454464 + t * p;
      p = -0.09809506656104959 + t * p;
      p = 0.14177475167225342 + t * p;
      p = 0.5251211544186302 + t * p;
      p = 0.4890097202071814 + t * p;
      p = -0.4855332102751065 + t * p;
      p = -1.6953272480373434 + t * p;
      p = -1.247024448125603 + t * p;
      p = 1.2978293791352151 + t * p;
      p = 2.9732196699118028 + t * p;
      p = 0.972220976146012 + t * p;
      p = -2.0352709595624585 + t * p;
      p = -1.5178024758953075 + t * p;
      p = 0.6343932841636455 + t * p;
      return 0.6586555116366791 + (5.923319282991635e-18 + t * p);
    }
    case 1: {
      const double t = a - 1.75;
      double p = 0.0038025139308918007;
      p = -0.13070530750314108 + t * p;
      p = -0.2546885919951002 + t * p;
      p = 0.020440945583793033 + t * p;
      p = 0.8073465388248053 + t * p;
      p = 1.1910176772249257 + t * p;
      p = -0.34087825426302787 + t * p;
      p = -3.2335664392274013 + t * p;
      p = -3.29687657494019 + t * p;
      p = 2.3260897834369842 + t * p;
      p = 7.786634340849935 + t * p;
      p = 3.6300813779705323 + t * p;
      p = -6.642839544224052 + t * p;
      p = -7.796413526758266 + t * p;
      p = 1.4699163132931998 + t * p;
      p = 5.064674762526463 + t * p;
      p = 0.269438686987074 + t * p;
      p = -0.9951847266721968 + t * p;
      return 0.49938467459067454 + (1.3880447765362263e-17 + t * p);
    }
    case 2: {
      const double t = a - 2.25;
      double p = -0.31694577462245205;
      p = -0.8562802839028311 + t * p;
      p = -0.23436903844632892 + t * p;
      p = 2.2946193433977755 + t * p;
      p = 3.816546363508521 + t * p;
      p = -0.8770983583574556 + t * p;
      p = -9.905944228774667 + t * p;
      p = -9.17437686828016 + t * p;
      p = 9.434086006124852 + t * p;
      p = 24.134294116140875 + t * p;
      p = 5.718091899416107 + t * p;
      p = -26.91352168059283 + t * p;
      p = -22.52728143353233 + t * p;
      p = 13.076353727685634 + t * p;
      p = 21.22762521806532 + t * p;
      p = -1.320052420467705 + t * p;
      p = -8.338701281946776 + t * p;
      p = -0.3464211689833803 + t * p;
      p = 0.9951847266721969 + t * p;
      return 0.5053022268236937 + (-4.192843063727725e-17 + t * p);
    }
    case 3: {
      const double t = a - 2.75;
      double p = -2.121433290771821;
      p = -4.643368818463533 + t * p;
      p = 0.6546523671233484 + t * p;
      p = 13.862247947754819 + t * p;
      p = 14.421458313675233 + t * p;
      p = -16.333435706818655 + t * p;
      p = -46.69087413755057 + t * p;
      p = -11.764682163096294 + t * p;
      p = 70.29071670980622 + t * p;
      p = 70.70703220307969 + t * p;
      p = -47.58640017343588 + t * p;
      p = -109.93443536551509 + t * p;
      p = -6.543291234751074 + t * p;
      p = 88.35970331183928 + t * p;
      p = 32.45066314605731 + t * p;
      p = -38.35794835114279 + t * p;
      p = -18.617007143208653 + t * p;
      p = 8.296481708965517 + t * p;
      p = 3.3391654469696737 + t * p;
      p = -0.6343932841636455 + t * p;
      return 0.413990901475782 + (2.5215559280945696e-17 + t * p);
    }
    default:
      return 0.0;
  }
}
// END GENERATED s20acf-middle

// The two leading series coefficients: pi/6 (the constant term of the fit,
// kSmallHi, with its low part) and -pi^3/336, from mpmath.
constexpr double kPi6Lo = -0x1.ee6913347c2a6p-55;
constexpr double kS2 = -0x1.79fb3502b22a8p-4;

}  // namespace

double s20acfn(double x) {
  const double a = std::fabs(x);
  if (std::isnan(x)) return x;
  double s;
  if (a < 3.49e-103) {
    s = 0.0;
  } else if (a <= 1.0) {
    // a^3 = h a + l a with a^2 = h + l exactly, then h a = p + e exactly.
    const zeb::dd::dd a2 = zeb::dd::two_prod(a, a);
    const zeb::dd::dd a3 = zeb::dd::two_prod(a2.hi, a);
    const double a3lo = a3.lo + a2.lo * a;
    // S = a^3 (kSmallHi + tail) with the large product a3.hi kSmallHi kept
    // exactly, so that only the final sum is rounded.
    const double v = a2.hi * a2.hi;
    const double tail = a < 0.00018 ? kPi6Lo + v * kS2 : small_tail(v);
    const zeb::dd::dd lead = zeb::dd::two_prod(a3.hi, kSmallHi);
    s = lead.hi + (lead.lo + (a3.hi * tail + a3lo * kSmallHi));
  } else if (a <= 3.0) {
    const int k = static_cast<int>(2.0 * (a - 1.0));
    s = middle(k < 3 ? k : 3, a);
  } else if (a <= 4294967290.0) {
    double f, g, sn, cs;
    s20aczn(a, f, g);
    s20acyn(a, sn, cs);
    s = 0.5 - (f * cs + g * sn);
  } else {
    s = 0.5;
  }
  return std::copysign(s, x);
}
