// Gamma function.
#include <cmath>
#include <cstddef>
#include <iterator>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"

namespace {

namespace dd = zeb::dd;

// The series of Gamma(1 + G) for the 17-digit band, the band that x02bezn()
// selects (16). No other band is carried: this one serves any band asked for,
// as none would be more accurate. Its constant term is a pair like the rest.
// Gamma(1+G), G = (t+1)/2: minimax polynomial of degree 24 in t = 2G-1 on
// [-1.0, 1.0], fitted by tools/refdata/fit_s_first.py; max relative error
// 1.1e-19 with the coefficients as stored. Coefficients from the highest
// power.
constexpr double kGammaT[25][2] = {
    {5.17030384315125e-12, -1.4538357721984153e-28},
    {-1.461165042605115e-11, -1.5030414713365908e-27},
    {1.1638636627525357e-11, -5.793670225158823e-28},
    {-4.030038351006462e-11, -1.3300841813083894e-28},
    {2.0908548052401e-10, -7.653028544672656e-27},
    {-6.131435593478011e-10, -4.4129459076816385e-26},
    {1.6997075186813825e-09, -4.028953723393688e-26},
    {-5.120131151324677e-09, 2.9600992511925466e-25},
    {1.5500837297618312e-08, 1.2627765790929596e-24},
    {-4.647704059061038e-08, 1.3623990998178147e-24},
    {1.3930946221971378e-07, -8.298316011266137e-24},
    {-4.1780903184398303e-07, -1.4422801237539613e-23},
    {1.2528458455799534e-06, -9.744339331250521e-24},
    {-3.754990247769094e-06, 1.5444103357186336e-22},
    {1.1252455658286932e-05, -4.805861842022797e-23},
    {-3.3637583345650705e-05, -2.3395384899870463e-21},
    {0.00010092815034002127, 5.430343911444046e-21},
    {-0.00029689012163025037, 1.7724910838475938e-20},
    {0.0009157859971319573, -2.7383611158068585e-21},
    {-0.0024225953843628883, -5.644234823002862e-20},
    {0.009040334940289402, -7.556425992023467e-21},
    {-0.01341185057059677, -6.989320569561897e-19},
    {0.10370336342207528, -2.852268240559857e-18},
    {0.01616919872444251, 5.973145462761326e-19},
    {0.886226925452758, -3.8298852531805496e-17},
};

// Value with the failures of a too large argument and of a pole.
constexpr double kHuge = 4.3e304;

// Product of the exact factors x + c for c = c0, c0 + 1, ..., c0 + n - 1, as
// hi + lo, times 2^-64. Each partial product carries its rounding errors in a
// second sum (compensated product); four of them run side by side, so that
// their roundings do not wait on one another. Each stays below 170^43, and
// the scaling keeps the whole within the range of Dekker's exact products.
dd::dd product(double x, double c0, int n) {
  double p[4] = {1.0, 1.0, 1.0, 1.0};
  double e[4] = {0.0, 0.0, 0.0, 0.0};
  double c = c0;
  for (; n >= 4; n -= 4, c += 4.0) {
    for (int j = 0; j < 4; ++j) {
      const double a = x + (c + j);
      const dd::dd t = dd::two_prod(p[j], a);
      p[j] = t.hi;
      e[j] = e[j] * a + t.lo;
    }
  }
  for (; n > 0; --n, c += 1.0) {
    const double a = x + c;
    const dd::dd t = dd::two_prod(p[0], a);
    p[0] = t.hi;
    e[0] = e[0] * a + t.lo;
  }
  const dd::dd f01 = dd::mul(dd::fast_two_sum(p[0], e[0]), dd::fast_two_sum(p[1], e[1]));
  const dd::dd f23 = dd::mul(dd::fast_two_sum(p[2], e[2]), dd::fast_two_sum(p[3], e[3]));
  return dd::mul(f01, dd::dd{f23.hi * 0x1p-64, f23.lo * 0x1p-64});
}

}  // namespace

// Gamma(X) = P(2G - 1) * factor, where P is the series of Gamma(1 + G) for G
// in [0, 1] and the factor walks X to 1 + G by the recurrence. P's last steps
// are compensated, so that its rounding is near 2^-100 besides the fit's
// 1.1e-19; the factor is a product of exact differences X - k or sums X + k,
// carried as hi + lo through up to 170 roundings; the one rounding left is
// the last.
double s14aafn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  const double ax = std::fabs(x);
  if (ax > 170.0) {
    if (x < 0.0) {
      zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))", {2, 99999, 2, x, -170.0});
      zeb::errbuf_close(errbuf, 2, ifail);
      return 0.0;
    }
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))", {1, 99998, 2, x, 170.0});
    zeb::errbuf_close(errbuf, 1, ifail);
    return kHuge;
  }
  if (ax <= 1e-17) {
    if (ax < 2.23e-308) {
      zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))", {3, 99997, 2, x, 2.23e-308});
      zeb::errbuf_close(errbuf, 3, ifail);
      return x < 0.0 ? -4.4843049327354256e307 : 4.4843049327354256e307;
    }
    zeb::errbuf_close(errbuf, 0, ifail);
    return 1.0 / x;
  }
  const double n = std::trunc(x);
  // A negative integer is X equal to its integer part. (The fractional part
  // G = X - (trunc(X) - 1) is 1 there, but it also rounds to 1 for
  // -1.1e-16 < X < -1e-17, which are no poles.)
  if (x < 0.0 && x == n) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E12.4)", {4, 99996, 1, x});
    zeb::errbuf_close(errbuf, 4, ifail);
    return kHuge;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (!(ax <= 170.0)) return x;  // NaN

  // G = g.hi + g.lo in [0, 1]: X - trunc(X) for X > 0, X - (trunc(X) - 1) for
  // X < 0; exact but for -0.5 < X < 0, where 1 + X rounds.
  const dd::dd g = x > 0.0 ? dd::dd{x - n, 0.0} : dd::two_sum(x, 1.0 - n);
  // t = 2G - 1 = th + tl; th is exact but for 0 < X < 0.25 and -0.5 < X < 0.
  const dd::dd t2 = dd::two_sum(2.0 * g.hi, -1.0);
  const double th = t2.hi;
  const double tl = t2.lo + 2.0 * g.lo;

  // P(th): the leading terms by plain Horner, the last six, which carry all
  // but 2e-4 of the value, by compensated Horner; with the derivative, which
  // carries tl.
  constexpr std::size_t kPlain = std::size(kGammaT) - 6;
  double s = kGammaT[0][0];
  double ds = 0.0;
  for (std::size_t i = 1; i < kPlain; ++i) {
    ds = ds * th + s;
    s = s * th + kGammaT[i][0];
  }
  double e = 0.0;
  for (std::size_t i = kPlain; i < std::size(kGammaT); ++i) {
    ds = ds * th + s;
    const dd::dd p = dd::two_prod(s, th);
    const dd::dd u = dd::two_sum(p.hi, kGammaT[i][0]);
    e = e * th + (p.lo + u.lo + kGammaT[i][1]);
    s = u.hi;
  }
  const dd::dd pg = dd::two_sum(s, e + ds * tl);

  if (x >= 1.0) {
    // Gamma(X) = Gamma(1 + G) (X - 1)(X - 2)...(X - N + 1); each X - k is
    // exact.
    const dd::dd r = dd::mul(pg, product(x, -(n - 1.0), static_cast<int>(n) - 1));
    return (r.hi + r.lo) * 0x1p64;
  }
  if (x > 0.0) {
    const dd::dd r = dd::div(pg, dd::dd{x, 0.0});  // Gamma(X) = Gamma(1 + X) / X
    return r.hi + r.lo;
  }
  // Gamma(X) = Gamma(1 + G) / (X (X + 1) ... (X + M)), M = 1 - trunc(X),
  // where X + M = G. The sums X + k for k < M are exact.
  const dd::dd r = dd::div(pg, dd::mul(product(x, 0.0, static_cast<int>(-n) + 1), g));
  return (r.hi + r.lo) * 0x1p-64;
}
