// ln Gamma(x) for x > 0.
#include <cstddef>
#include <iterator>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

namespace {

namespace dd = zeb::dd;

// The rationals of the ranges up to 12, in the manner of Cody and Hillstrom.
// Each carries the whole value but for an exact factor, and is summed by
// compensated Horner so that its rounding stays near 2^-100.
// ln Gamma(1+z) / z: minimax rational of degree 7/7 in z on [-0.3203125, 0.5],
// fitted by tools/refdata/fit_s_first.py; max relative error 5.0e-19 with the
// coefficients as stored. Coefficients from the highest power. Numerator:
constexpr double kLgamR1_P[8][2] = {
    {0.0010393903074704237, 6.784386444459044e-20},
    {0.032902572469928434, 1.5459810251219846e-18},
    {0.26927699602300476, -2.306246684493338e-17},
    {0.8349585361545386, 3.0896263936602725e-17},
    {0.913521581307555, -4.681153337669665e-18},
    {-0.29138313112930014, 1.796171573864566e-17},
    {-1.1831002802675954, -9.328263130770954e-18},
    {-0.5772156649015329, 4.704809109653708e-18},
};
// Denominator:
constexpr double kLgamR1_Q[8][2] = {
    {0.00024446453283790044, 1.482895996246733e-20},
    {0.014469325268919007, 8.314591563212476e-19},
    {0.20315796686593537, -9.60870091070337e-18},
    {1.1610662699963334, -1.9015812067607882e-17},
    {3.2587820682637596, 1.564684965314334e-16},
    {4.761485585842439, 1.9778417568101853e-17},
    {3.4745545480541282, -5.822631693990482e-18},
    {1.0, 0.0},
};

// ln Gamma(2+w) / w: minimax rational of degree 8/8 in w on [-0.5, 2.0],
// fitted by tools/refdata/fit_s_first.py; max relative error 3.5e-20 with the
// coefficients as stored. Coefficients from the highest power. Numerator:
constexpr double kLgamR2_P[9][2] = {
    {5.66179721694385e-07, -2.1268126379757573e-23},
    {6.501581669936462e-05, 4.003430740705117e-21},
    {0.001971026967675545, -1.348210414295515e-19},
    {0.025291378595834958, 1.551657189119967e-18},
    {0.16456259579637872, -2.4559580321234402e-18},
    {0.5837953534200225, 4.718044864993352e-17},
    {1.1329286572353006, 3.527116740202898e-17},
    {1.1130954334445338, 3.3178109839216723e-17},
    {0.42278433509846713, 4.948756429590228e-18},
};
// Denominator:
constexpr double kLgamR2_Q[9][2] = {
    {1.0489880029832745e-07, 4.135752859135157e-24},
    {1.919988440261728e-05, -1.3422401738946744e-21},
    {0.0008145411574926054, -3.519731089998594e-20},
    {0.013971435271351163, -8.165668372980441e-19},
    {0.11923827418936646, -5.4188453643578804e-18},
    {0.5525987896033676, 3.4775498424839206e-17},
    {1.4126612794610383, -1.0518209425037457e-16},
    {1.8700513107617434, -7.217143477196908e-17},
    {1.0, 0.0},
};

// (ln Gamma(4+z) - ln 6) / z: minimax rational of degree 8/8 in z on [0.0,
// 8.0], fitted by tools/refdata/fit_s_first.py; max relative error 6.5e-20
// with the coefficients as stored. Coefficients from the highest power.
// Numerator:
constexpr double kLgamR4_P[9][2] = {
    {4.879884678384786e-10, -3.433379947678951e-26},
    {1.7080463883797296e-07, 2.3652131393315074e-24},
    {1.4897395159303592e-05, -8.28327660698524e-22},
    {0.0005285746351482379, -5.7824255699191224e-21},
    {0.00926213195043344, 6.020309392138549e-19},
    {0.0872434046391534, -3.602314277187179e-18},
    {0.4489009458805574, -1.0265962927225542e-17},
    {1.1858458743864582, -5.804777847294655e-17},
    {1.2561176684318005, -3.198318701690208e-17},
};
// Denominator:
constexpr double kLgamR4_Q[9][2] = {
    {7.555369754712353e-11, -1.2919410960061283e-27},
    {3.893150548681376e-08, -7.801016082114166e-25},
    {4.427014476978844e-06, 2.511022535095553e-22},
    {0.00019498079026197408, 4.597576597893176e-21},
    {0.004119261320066039, 9.33516989534889e-20},
    {0.04582591126648196, 4.26560186978355e-20},
    {0.2740993975321552, 1.5981925047181415e-17},
    {0.8310800992244619, -2.1964455984023826e-17},
    {1.0, 0.0},
};

// Stirling's correction series in 1/X^2 for X > 12 (Cody and Hillstrom's
// coefficients, highest power first), checked with mpmath: with the pair
// kHalfLn2Pi it leaves at most 2.0e-20 of ln Gamma(X), relative.
constexpr double kStirling[] = {
    0.0057083835261,        -0.001910444077728,    0.00084171387781295,
    -0.0005952379913043012, 0.0007936507935003503, -0.0027777777777776816,
    0.08333333333333333,
};

// ln 6 and ln(2 pi)/2 as hi + lo (mpmath, 50 digits).
constexpr dd::dd kLn6{1.791759469228055, 4.349979825096335e-17};
constexpr dd::dd kHalfLn2Pi{0.9189385332046728, -3.8782941580672414e-17};

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

// z P(z)/Q(z) as hi + lo, for an exact z.
template <std::size_t N>
dd::dd times_rational(double z, const double (&p)[N][2], const double (&q)[N][2]) {
  return dd::mul(dd::div(horner2(p, z), horner2(q, z)), z);
}

}  // namespace

double s14abfn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  if (x > 2.55e305) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {2, 1021, 1, x});
    zeb::errbuf_close(errbuf, 2, ifail);
    return x02alfn();
  }
  if (x <= x02ajfn()) {
    if (x <= 0.0) {
      zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 1011, 1, x});
      zeb::errbuf_close(errbuf, 1, ifail);
      return x == 0.0 ? x02alfn() : 0.0;
    }
    // ln Gamma(X) = -ln X - Euler X + ..., and Euler X is below 2e-18 of it.
    zeb::errbuf_close(errbuf, 0, ifail);
    const dd::dd l = dd::log(x);
    return -(l.hi + l.lo);
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (!(x <= 2.55e305)) return x;  // NaN

  dd::dd r;
  if (x <= 1.5) {
    if (x < 0.6796875) {
      // ln Gamma(X) = ln Gamma(1 + X) - ln X, with ln Gamma(1 + X) from the
      // first rational in X or, above 0.5, the second in X - 1 (exact).
      const dd::dd v = x <= 0.5 ? times_rational(x, kLgamR1_P, kLgamR1_Q)
                                : times_rational(x - 1.0, kLgamR2_P, kLgamR2_Q);
      r = dd::sub(v, dd::log(x));
    } else {
      // The zero at 1 is the exact factor X - 1.
      r = times_rational(x - 1.0, kLgamR1_P, kLgamR1_Q);
    }
  } else if (x <= 4.0) {
    // The zero at 2 is the exact factor X - 2.
    r = times_rational(x - 2.0, kLgamR2_P, kLgamR2_Q);
  } else if (x <= 12.0) {
    r = dd::add(kLn6, times_rational(x - 4.0, kLgamR4_P, kLgamR4_Q));
  } else {
    // Stirling: X (ln X - 1) - ln(X)/2 + ln(2 pi)/2 + correction/X, the large
    // terms as hi + lo. X enters the exact product scaled by 2^-64, which
    // keeps it within the range of Dekker's splitting.
    double corr = 0.0;
    if (x <= 2.24e76) {
      const double u = 1.0 / (x * x);
      double c = kStirling[0];
      for (std::size_t i = 1; i < std::size(kStirling); ++i) c = c * u + kStirling[i];
      corr = c / x;
    }
    const dd::dd l = dd::log(x);
    const dd::dd b = dd::mul(dd::add(l, -1.0), x * 0x1p-64);
    r = dd::add(dd::dd{b.hi * 0x1p64, b.lo * 0x1p64}, dd::mul(l, -0.5));
    r = dd::add(dd::add(r, kHalfLn2Pi), corr);
  }
  return r.hi + r.lo;
}
