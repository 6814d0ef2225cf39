// ln Gamma(x) for x > 0. The value is carried in the x87 extended format
// (zeb_ext.h) and rounded to double once.
#include <cstddef>
#include <iterator>

#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

// ln(hi + lo) in extended precision (s01bazn.cpp).
long double s01bazn(double hi, double lo);

namespace {

using zeb::ext::ld;

// The rationals of the ranges up to 12, in the manner of Cody and Hillstrom.
// Each carries the whole value but for an exact factor, and is summed in the
// x87 extended format, whose 64-bit significand keeps its roundings near
// 2^-62.
// ln Gamma(1+z) / z: minimax rational of degree 7/7 in z on [-0.3203125, 0.5],
// fitted by tools/refdata/fit_s_first.py; max relative error 6.3e-19 with the
// pairs as stored rounded to the x87 extended format. Coefficients from the
// highest power. Numerator:
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
// fitted by tools/refdata/fit_s_first.py; max relative error 6.5e-20 with the
// pairs as stored rounded to the x87 extended format. Coefficients from the
// highest power. Numerator:
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
// 8.0], fitted by tools/refdata/fit_s_first.py; max relative error 8.5e-20
// with the pairs as stored rounded to the x87 extended format. Coefficients
// from the highest power. Numerator:
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

// ln 6 and ln(2 pi)/2 (mpmath, 40 digits).
constexpr ld kLn6 = 1.791759469228055000812477358380702272723L;
constexpr ld kHalfLn2Pi = 0.9189385332046727417803297364056176398614L;

constexpr zeb::ext::Pairs kR1P(kLgamR1_P);
constexpr zeb::ext::Pairs kR1Q(kLgamR1_Q);
constexpr zeb::ext::Pairs kR2P(kLgamR2_P);
constexpr zeb::ext::Pairs kR2Q(kLgamR2_Q);
constexpr zeb::ext::Pairs kR4P(kLgamR4_P);
constexpr zeb::ext::Pairs kR4Q(kLgamR4_Q);

// z P(z)/Q(z) for an exact z, P and Q each as two Horner chains in z^2 (of
// the even and the odd powers).
template <std::size_t N>
ld times_rational(double z, const zeb::ext::Pairs<N>& p, const zeb::ext::Pairs<N>& q) {
  return z * (zeb::ext::horner<2>(p, z) / zeb::ext::horner<2>(q, z));
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
    zeb::ext::Precision guard(x);
    double v = static_cast<double>(-s01bazn(x, 0.0));
    guard.release(v);
    return v;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (!(x <= 2.55e305)) return x;  // NaN
  zeb::ext::Precision guard(x);

  ld r;
  if (x <= 1.5) {
    if (x < 0.6796875) {
      // ln Gamma(X) = ln Gamma(1 + X) - ln X, with ln Gamma(1 + X) from the
      // first rational in X or, above 0.5, the second in X - 1 (exact).
      const ld v = x <= 0.5 ? times_rational(x, kR1P, kR1Q)
                            : times_rational(x - 1.0, kR2P, kR2Q);
      r = v - s01bazn(x, 0.0);
    } else {
      // The zero at 1 is the exact factor X - 1.
      r = times_rational(x - 1.0, kR1P, kR1Q);
    }
  } else if (x <= 4.0) {
    // The zero at 2 is the exact factor X - 2.
    r = times_rational(x - 2.0, kR2P, kR2Q);
  } else if (x <= 12.0) {
    r = kLn6 + times_rational(x - 4.0, kR4P, kR4Q);
  } else {
    // Stirling: (X - 1/2) ln X - X + ln(2 pi)/2 + correction/X; the
    // correction, below 4e-4 of the value, in double.
    double corr = 0.0;
    if (x <= 2.24e76) {
      const double u = 1.0 / (x * x);
      double c = kStirling[0];
      for (std::size_t i = 1; i < std::size(kStirling); ++i) c = c * u + kStirling[i];
      corr = c / x;
    }
    r = ((x - 0.5L) * s01bazn(x, 0.0) - x) + (kHalfLn2Pi + corr);
  }
  double v = static_cast<double>(r);
  guard.release(v);
  return v;
}
