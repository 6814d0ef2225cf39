// Gamma function. The value is carried in the x87 extended format
// (zeb_ext.h), whose 64-bit significand keeps the roundings of the series and
// of the up to 170 factors of the recurrence below 0.1 of the ulp of the
// double result, and whose exponent range holds any partial product; it is
// rounded to double once.
#include <cmath>
#include <cstddef>

#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"

namespace {

using zeb::ext::ld;

// The series of Gamma(1 + G) for the 17-digit band, the band that x02bezn()
// selects (16). No other band is carried: this one serves any band asked for,
// as none would be more accurate. Its constant term is a pair like the rest.
// Gamma(1+G), G = (t+1)/2: minimax polynomial of degree 24 in t = 2G-1 on
// [-1.0, 1.0], fitted by tools/refdata/fit_s_first.py; max relative error
// 1.4e-19 with the pairs as stored rounded to the x87 extended format.
// Coefficients from the highest power.
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

constexpr zeb::ext::Pairs kG(kGammaT);

// Value with the failures of a too large argument and of a pole.
constexpr double kHuge = 4.3e304;

// The product of g + i for i = a, a+1, ..., n-a (a >= 1), taken in pairs
// (i, n - i), whose product is q + i (n - i) with q = g (g + n): half the
// multiplications, each pair formed with one addition. Four products run side
// by side; the middle factor g + n/2 stands alone when n is even.
ld pairs(ld g, int a, int n) {
  const ld q = g * (g + n);
  ld p[4] = {1.0L, 1.0L, 1.0L, 1.0L};
  int i = a;
  for (; 2 * (i + 3) < n; i += 4) {
    for (int m = 0; m < 4; ++m) p[m] *= q + (i + m) * (n - i - m);
  }
  for (; 2 * i < n; ++i) p[0] *= q + i * (n - i);
  ld r = (p[0] * p[1]) * (p[2] * p[3]);
  if (n % 2 == 0 && 2 * a <= n) r *= g + n / 2;
  return r;
}

}  // namespace

// Gamma(X) = P(2G - 1) * factor, where P is the series of Gamma(1 + G) for G
// in [0, 1] and the factor walks X to 1 + G by the recurrence:
//   X >= 2:     (X - 1)(X - 2)...(X - N + 1), N = trunc(X), G = X - N: the
//               factors G + j, in pairs (j, N - j) as G X + j(N - j);
//   1 <= X < 2: 1;   0 < X < 1: 1/X;
//   X < 0:      1/(X (X + 1)...(X + M - 1) G), M = 1 - trunc(X), G = X + M:
//               the factors X + k = G - i, i = M - k, the one next to the
//               pole, G - 1, exact by itself and the others in pairs
//               (i, M + 2 - i) as G (X - 2) + i(M + 2 - i), which cannot
//               cancel there.
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
  const double tx = std::trunc(x);
  // A negative integer is X equal to its integer part. (The fractional part
  // G = X - (trunc(X) - 1) is 1 there, but it also rounds to 1 for
  // -1.1e-16 < X < -1e-17, which are no poles.)
  if (x < 0.0 && x == tx) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E12.4)", {4, 99996, 1, x});
    zeb::errbuf_close(errbuf, 4, ifail);
    return kHuge;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (!(ax <= 170.0)) return x;  // NaN
  zeb::ext::Precision guard(x);

  // n = N or M, G in [0, 1] and t = 2G - 1, exact in the extended format
  // (G = 1 + X for -2^-11 < X < 0 but for a last 2^-65).
  const int n = static_cast<int>(x < 0.0 ? 1.0 - tx : tx);
  const ld g = x < 0.0 ? x + static_cast<ld>(n) : static_cast<ld>(x - tx);
  // The series as four Horner chains in t^4.
  const ld pg = zeb::ext::horner<4>(kG, 2.0L * g - 1.0L);

  ld r;
  if (x >= 2.0) {
    r = pg * pairs(g, 1, n);  // here n = N
  } else if (x >= 1.0) {
    r = pg;
  } else if (x > 0.0) {
    r = pg / x;
  } else {
    // X (X + 1)...(X + M - 1) = (-1)^M (1 - G) prod_{i=2..M} (i - G); here
    // n = M, and 1 - G = -(X + M - 1) is exact in double, X itself for M = 1.
    const ld d = -(x + (n - 1.0)) * pairs(-g, 2, n + 2) * g;
    r = pg / (n % 2 == 0 ? d : -d);
  }
  double v = static_cast<double>(r);
  guard.release(v);
  return v;
}
