// scale * erfc(x + xl) as hi + lo, for a power of two `scale`: the kernel of
// erfc, erf and the normal distribution functions, which hand it an argument
// with its low part xl (|xl| at most half an ulp of x).
#include <cmath>
#include <cstddef>

#include "zeb_dd.h"
#include "zeb_s_ib.h"

// erf(x) for |x| <= 0.46875, and 2^scale exp(x + xl), as hi + lo
// (s15aezn.cpp, s15adyn.cpp).
double s15aezn(double x, double& lo);
double s15adyn(double x, double xl, int scale, double& lo);
// 2^-k (hi + lo) rounded once (s15adxn.cpp).
double s15adxn(double hi, double lo, int k);

namespace {

namespace dd = zeb::dd;

// exp(A^2) erfc(A): minimax rational of degree 8/8 in A on [0.46875, 4.0],
// fitted by tools/refdata/fit_s_first.py; max relative error 2.6e-19 with the
// coefficients as stored. Coefficients from the highest power. Numerator:
constexpr double kErfcM_P[9][2] = {
    {1.7500137319606875e-11, 5.446947286658974e-28},
    {0.000458563708160669, -4.914973789345528e-21},
    {0.007220085767501093, -3.463867058806082e-19},
    {0.05374064022961048, 1.1049353243817467e-18},
    {0.24272592292766662, -3.356317853374802e-20},
    {0.716836758494622, -2.0615796612989334e-18},
    {1.391524977527407, 1.0759395568278071e-16},
    {1.6670836249811258, -1.7756215952423277e-17},
    {0.9999999999953246, 2.7269937950728916e-17},
};
// Denominator:
constexpr double kErfcM_Q[9][2] = {
    {0.0008127845757325758, -2.9508210986191257e-20},
    {0.012797230661917637, 5.30777267714621e-20},
    {0.09565979589365717, -4.573356794360278e-18},
    {0.4366123157260417, -5.2441039754568594e-18},
    {1.3178397061836646, -2.5283643756791135e-17},
    {2.674709142496686, 7.40514456354351e-17},
    {3.545866955077553, 2.0674317206338867e-16},
    {2.7954627919948427, 1.77478033690277e-17},
    {1.0, 0.0},
};

// R(u) = (1/sqrt(pi) - A exp(A^2) erfc(A)) / u: minimax rational of degree 5/5
// in u = 1/A^2 on [0.0, 0.0625], fitted by tools/refdata/fit_s_first.py; max
// erfc-relative error 5.7e-19 with the coefficients as stored. Coefficients
// from the highest power. Numerator:
constexpr double kErfcL_P[6][2] = {
    {6.986699161150314, 3.812092218915674e-16},
    {130.74932554526254, -1.1325393913420908e-14},
    {154.3096952855478, 3.1403268797986536e-15},
    {53.863236130155066, 1.4258474774566988e-15},
    {6.887525305595287, -2.680129723385528e-16},
    {0.2820947917738769, -6.950259976014727e-18},
};
// Denominator:
constexpr double kErfcL_Q[6][2] = {
    {428.227689307789, 1.5540867942886276e-14},
    {1099.9116031037331, 5.970931433265274e-14},
    {802.0504654914901, 3.7325423838968366e-14},
    {226.06366285771742, 7.0653430394618154e-15},
    {25.915641502217927, 1.0692257025495162e-15},
    {1.0, 0.0},
};

// 1/sqrt(pi) as hi + lo (mpmath, 50 digits); 2/sqrt(pi) rounded.
constexpr dd::dd kRsqrtPi{0.5641895835477563, 7.66772980658294e-18};
constexpr double k2RsqrtPi = 1.1283791670955126;

// The polynomial c (pairs hi + lo, highest power first) at x by compensated
// Horner: the rounding error of each step is carried in a second sum, so the
// value is as if evaluated in twice the precision.
template <std::size_t N>
dd::dd horner2(const double (&c)[N][2], double x) {
  double s = c[0][0];
  double e = c[0][1];
  for (std::size_t i = 1; i < N; ++i) {
    const dd::dd p = dd::two_prod(s, x);
    const dd::dd u = dd::two_sum(p.hi, c[i][0]);
    e = e * x + (p.lo + u.lo + c[i][1]);
    s = u.hi;
  }
  return dd::two_sum(s, e);
}

}  // namespace

// Ranges of Cody's approximations, in A = |x|:
//   A <= 0.46875:     1 - erf(x), erf from s15aezn;
//   0.46875 < A <= 4: exp(-A^2) F(A), F = P(A)/Q(A);
//   4 < A < 26.6:     exp(-A^2) F(A), F = (1/sqrt(pi) - R(1/A^2)/A^2) / A;
//   x >= 26.6:        0;  x <= -6.5: 2;
// for other x < 0 the value is 2 - erfc(A). exp(-A^2) is split as
// exp(-Y^2) exp(-(A - Y)(A + Y)), Y = trunc(16 A)/16, so that Y^2 and A - Y
// are exact; the product (A - Y)(A + Y) is carried as hi + lo into the second
// factor. Both exponentials come as hi + lo (s15adyn), F is summed by
// compensated Horner and the factors are multiplied as hi + lo, so that what
// remains is the last rounding.
double s15adzn(double x, double xl, double scale, double& lo) {
  lo = 0.0;
  if (!(x < 26.6)) return x >= 26.6 ? 0.0 : x;  // x may be NaN
  if (x <= -6.5) return 2.0 * scale;
  const double a = std::fabs(x);
  if (a <= 0.46875) {
    double el = 0.0;
    const double eh = s15aezn(x, el);
    // erf(x + xl) = erf(x) + xl (2/sqrt pi) exp(-x^2), the exponential by
    // 1 - v + v^2/2, within 2e-3 here.
    const double v = x * x;
    el += xl * k2RsqrtPi * (1.0 - v * (1.0 - 0.5 * v));
    const dd::dd r = dd::add(dd::two_sum(1.0, -eh), -el);
    lo = scale * r.lo;
    return scale * r.hi;
  }
  const double al = x < 0.0 ? -xl : xl;

  // exp(-A^2) as ex.hi + ex.lo; from A = 25 on scaled by 2^64, so that the
  // products stay exact as the value goes subnormal.
  const int k = a > 25.0 ? 64 : 0;
  const double y = std::trunc(16.0 * a) / 16.0;
  const dd::dd d = dd::mul(dd::two_sum(a, y), a - y);
  dd::dd e1, e2;
  e1.hi = s15adyn(-(y * y), 0.0, k, e1.lo);
  e2.hi = s15adyn(-d.hi, -d.lo, 0, e2.lo);
  const dd::dd ex = dd::mul(e1, e2);

  // F = exp(A^2) erfc(A) as f.hi + f.lo.
  dd::dd f;
  if (a <= 4.0) {
    f = dd::div(horner2(kErfcM_P, a), horner2(kErfcM_Q, a));
  } else {
    const double u = 1.0 / (a * a);
    const dd::dd r = dd::div(horner2(kErfcL_P, u), horner2(kErfcL_Q, u));
    f = dd::div(dd::add(kRsqrtPi, -(r.hi * u)), a);
  }
  // The low part of the argument: d erfc(A)/dA = -(2/sqrt pi) exp(-A^2), so
  // erfc(A + al) = exp(-A^2) (F - (2/sqrt pi) al) to first order.
  f = dd::add(f, -k2RsqrtPi * al);
  f = {f.hi * scale, f.lo * scale};

  dd::dd r = dd::mul(ex, f);
  if (k != 0) return s15adxn(r.hi, r.lo, k);  // here x > 0
  if (x < 0.0) r = dd::add(dd::two_sum(2.0 * scale, -r.hi), -r.lo);
  lo = r.lo;
  return r.hi;
}
