// scale * erfc(x + xl), for a power of two `scale`, rounded to double, and
// in lo what the rounding left (exact while the value is normal): the kernel
// of erfc, erf and the normal distribution functions, which hand it an
// argument with its low part xl (|xl| at most half an ulp of x). The value
// is carried in the x87 extended format (zeb_ext.h) and rounded once.
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "zeb_ext.h"
#include "zeb_s_ib.h"

// erf(x) for |x| <= 0.46875 in the extended format (s15aezn.cpp).
long double s15aezn(double x);

namespace {

using zeb::ext::ld;

// exp(A^2) erfc(A): minimax rational of degree 8/8 in A on [0.46875, 4.0],
// fitted by tools/refdata/fit_s_first.py; max relative error 2.8e-19 with the
// pairs as stored rounded to the x87 extended format. Coefficients from the
// highest power. Numerator:
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
// erfc-relative error 1.9e-18 with the coefficients rounded to double.
// Coefficients from the highest power. Numerator:
constexpr double kErfcL_P[6] = {
    6.986699161150314,
    130.74932554526254,
    154.3096952855478,
    53.863236130155066,
    6.887525305595287,
    0.2820947917738769,
};
// Denominator:
constexpr double kErfcL_Q[6] = {
    428.227689307789,
    1099.9116031037331,
    802.0504654914901,
    226.06366285771742,
    25.915641502217927,
    1.0,
};

// P(r) = (exp(r) - 1 - r - r^2/2) / r^3: minimax polynomial of degree 9 in r
// on [-0.35, 0.35], fitted by tools/refdata/fit_s_first.py (table "exp", the
// one s15adyn.cpp uses too); max exp-relative error 1.1e-19 with the
// coefficients rounded to double. Coefficients from the highest power.
constexpr double kExpP[10] = {
    2.083774717414753e-09,
    2.511239828662255e-08,
    2.755753432581493e-07,
    2.7557234245805305e-06,
    2.4801587009025083e-05,
    0.00019841269896426903,
    0.0013888888889044921,
    0.008333333333317353,
    0.04166666666666639,
    0.16666666666666682,
};

// ln 2 = kLn2Hi + kLn2Lo: kLn2Hi has 42 significant bits, so that k kLn2Hi is
// exact in double for k < 2^11; kLn2Lo is the rest to 64 bits (mpmath, 40
// digits).
constexpr double kLn2Hi = 0x1.62e42fefa3800p-1;
constexpr ld kLn2Lo = 5.4979230187083711747124716125134360255e-14L;

// 2/sqrt(pi) (mpmath, 50 digits).
constexpr ld k2RsqrtPi = 1.1283791670955125738961589031215452L;
// 1/sqrt(pi).
constexpr ld kRsqrtPi = 0.56418958354775628694807945156077259L;

constexpr zeb::ext::Pairs kMP(kErfcM_P);
constexpr zeb::ext::Pairs kMQ(kErfcM_Q);

// The table reversed in order, for the polynomial x^(N-1) p(1/x).
template <std::size_t N>
struct Rev {
  double c[N];
  constexpr explicit Rev(const double (&p)[N]) : c{} {
    for (std::size_t i = 0; i < N; ++i) c[i] = p[N - 1 - i];
  }
};
constexpr Rev kLP(kErfcL_P);
constexpr Rev kLQ(kErfcL_Q);

// exp(-x) = 2^-k exp(r) for 0 <= x <= 706, given xd, x rounded to double:
// k the integer nearest to xd/ln2 and r = k ln2 - x, |r| <= ln2/2 + 2^-40.
// k kLn2Hi is exact in double and, unless k is 0, within a factor 2 of x, so
// k kLn2Hi - x is exact in the extended format; r then takes k kLn2Lo with
// one rounding. exp(r) = 1 + r + r^2/2 + r^3 P(r), P as four Horner chains
// in r^4. The value is returned as exp(r) and the power 2^-k as a double
// (k <= 1018 here, so the power is normal), for the caller to scale.
struct ExpNeg {
  ld m;
  double p2;
};
inline ExpNeg exp_neg(ld x, double xd) {
  // xd/ln2 rounded to an integer by the addition of 1.5 2^52.
  const double k = (xd * 1.4426950408889634 + 0x1.8p52) - 0x1.8p52;
  const ld r = (k * kLn2Hi - x) + k * kLn2Lo;
  const ld e = (1.0L + r) + (r * r) * (0.5L + r * zeb::ext::horner<4>(kExpP, r));
  return {e, std::bit_cast<double>(static_cast<std::uint64_t>(1023 - static_cast<int>(k)) << 52)};
}

}  // namespace

// Ranges of Cody's approximations, in A = |x|:
//   A <= 0.46875:     1 - erf(x), erf from s15aezn;
//   0.46875 < A <= 4: exp(-A^2) F(A), F = P(A)/Q(A);
//   4 < A < 26.6:     exp(-A^2) F(A), F = (1/sqrt(pi) - R(1/A^2)/A^2) / A;
//   x >= 26.6:        0;  x <= -6.5: 2;
// for other x < 0 the value is 2 - erfc(A). exp(-A^2) is split as
// exp(-Y^2) exp(-(A - Y)(A + Y)), Y = trunc(16 A)/16: Y^2 = k^2/256 is
// exact, A - Y and A + Y are exact, and their product D, up to 3.325, is
// rounded once, to 2^-64. Each factor comes from exp_neg in the extended
// format.
double s15adzn(double x, double xl, double scale, double& lo) {
  lo = 0.0;
  if (!(x < 26.6)) return x >= 26.6 ? 0.0 : x;  // x may be NaN
  if (x <= -6.5) return 2.0 * scale;
  zeb::ext::Precision guard(x, xl, scale);
  const double a = std::fabs(x);
  ld v = 0.0L;
  if (a <= 0.46875) {
    // erf(x + xl) = erf(x) + xl (2/sqrt pi) exp(-x^2), the exponential by
    // 1 - w + w^2/2, within 2e-3 here.
    const ld w = static_cast<ld>(x) * x;
    v = scale * (1.0L - (s15aezn(x) + xl * k2RsqrtPi * (1.0L - w * (1.0L - 0.5L * w))));
  } else {
    const ld al = x < 0.0 ? -xl : xl;
    const int k = static_cast<int>(16.0 * a);
    const double y = 0.0625 * k;
    const double amy = a - y;
    const ld d = amy * (static_cast<ld>(a) + y);
    // D in double only picks the integer of the reduction (an integer
    // conversion of the extended format would switch the x87 rounding mode).
    const double dd = amy * (a + y);
    const double y2 = y * y;
    const ExpNeg ey = exp_neg(y2, y2);
    const ExpNeg ed = exp_neg(d, dd);
    const ld e = (ey.m * ey.p2) * (ed.m * ed.p2);
    // F = exp(A^2) erfc(A).
    ld f;
    if (a <= 4.0) {
      f = zeb::ext::horner<2>(kMP, a) / zeb::ext::horner<2>(kMQ, a);
    } else {
      // R(u)/A^2 = R(u) u, u = 1/A^2, is P(u) u / Q(u), or with the
      // polynomials reversed in s = A^2, p(s) / (s q(s)), degree 5 over 6; F
      // is then (q(s) s / sqrt(pi) - p(s)) / (q(s) s A), one division.
      const ld s2 = static_cast<ld>(a) * a;
      const ld qs = zeb::ext::horner<1>(kLQ.c, s2) * s2;
      f = (qs * kRsqrtPi - zeb::ext::horner<1>(kLP.c, s2)) / (qs * a);
    }
    // The low part of the argument: d erfc(A)/dA = -(2/sqrt pi) exp(-A^2), so
    // erfc(A + al) = exp(-A^2) (F - (2/sqrt pi) al) to first order.
    v = e * (f - k2RsqrtPi * al) * scale;
    if (x < 0.0) v = 2.0L * scale - v;
  }
  double hi = static_cast<double>(v);
  double rest = static_cast<double>(v - hi);
  guard.release(hi, rest);
  lo = rest;
  return hi;
}
