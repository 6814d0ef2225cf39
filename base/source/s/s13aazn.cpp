// -Ei(-x) for -708.3 <= x < 0, the real continuation of E1 to negative
// arguments; s13aafn has screened the argument and holds the
// zeb::ext::Precision. The value is carried in the x87 extended format
// (zeb_ext.h) and rounded to double once.
#include <cstddef>

#include "zeb_dd.h"
#include "zeb_ext.h"
#include "zeb_s_ib.h"

// exp(x) and ln(hi + lo) in the extended format (s15adyn.cpp, s01bazn.cpp).
long double s15adyn(double x);
long double s01bazn(double hi, double lo);

namespace {

namespace dd = zeb::dd;
using zeb::ext::ld;

// R(y) = (Ei(y) - ln(y/y0)) / (y - y0): minimax rational of degree 9/9 in s =
// 2y/3 - 2 on [-2.0, 2.0], fitted by tools/refdata/fit_s_first.py; max
// relative error 2.3e-19 with the pairs as stored rounded to the x87 extended
// format. Coefficients from the highest power. Numerator:
constexpr double kEiA_P[10][2] = {
    {1.0222106921552354e-10, -1.9857525222822776e-27},
    {1.0324989671257154e-08, -6.552365954353912e-25},
    {1.0678646720097035e-07, -5.770371619252766e-24},
    {1.1542014457451755e-05, 6.519818207289568e-22},
    {-9.280809877780938e-07, -4.58929270742354e-24},
    {0.002813059823009518, 1.735675334942693e-20},
    {-0.00281970896709096, 1.983837048948032e-19},
    {0.19474338954050247, -1.6743422644792255e-18},
    {-0.09457931555789459, -3.1817118864003466e-18},
    {2.986772243435986, 1.412945128796497e-16},
};
// Denominator:
constexpr double kEiA_Q[10][2] = {
    {-6.417044490635227e-10, 4.5599319337852927e-26},
    {4.624030424295505e-08, -2.1602793762151967e-24},
    {-1.6017375299861237e-06, -5.338163556960744e-23},
    {3.48220945779384e-05, 2.6165796304986374e-21},
    {-0.0005211496952448268, 5.182727643447477e-20},
    {0.0055447564346282445, -2.6130007584200273e-19},
    {-0.04178140814028562, -1.5113389270537848e-19},
    {0.21429273133771945, -7.883513798356906e-18},
    {-0.6767717550316676, 3.774267503532323e-17},
    {1.0, 0.0},
};

// y exp(-y) Ei(y): minimax rational of degree 9/9 in u = 1/y on [0.083333333,
// 0.16666667], fitted by tools/refdata/fit_s_first.py; max relative error
// 7.0e-20 with the pairs as stored rounded to the x87 extended format.
// Coefficients from the constant term in u, which is the Horner order in 1/u.
// Numerator:
constexpr double kEiB_P[10][2] = {
    {0.9981193759279059, 5.453265979247677e-17},
    {-11.356881756975874, 5.087214999651968e-16},
    {327.19427131326023, -1.909700214024708e-14},
    {-1073.1006090245007, -4.438081073762535e-15},
    {13836.03553338154, 6.08214877946961e-13},
    {201283.60624422872, 8.066816423450722e-12},
    {-1724390.7755665747, 8.633000030930298e-11},
    {14276970.236562751, 5.595257667091405e-10},
    {-35463987.41089281, 1.8429284018905846e-09},
    {14264769.121837577, 2.2621492845975661e-10},
};
// Denominator:
constexpr double kEiB_Q[10][2] = {
    {1.0, 0.0},
    {-12.630520209201023, 7.717908186146874e-16},
    {355.60506802837546, -6.108973747630377e-15},
    {-2082.964326102463, -1.0546482742001321e-13},
    {31512.263516947394, -2.6444668000080526e-13},
    {-83493.6366992469, 2.6544900367687683e-12},
    {851896.6258084382, 3.6383755925905237e-11},
    {-1409499.2555497396, 1.0686305895865569e-10},
    {3906580.371851712, -9.184992117032546e-11},
    {-15823338.63579986, 7.03966697867314e-10},
};

// y exp(-y) Ei(y): minimax rational of degree 9/9 in u = 1/y on [0.041666667,
// 0.083333333], fitted by tools/refdata/fit_s_first.py; max relative error
// 2.0e-19 with the pairs as stored rounded to the x87 extended format.
// Coefficients from the constant term in u, which is the Horner order in 1/u.
// Numerator:
constexpr double kEiC_P[10][2] = {
    {0.9999933106254195, 1.220038598924617e-17},
    {-34.82477636838146, 3.0219551864483147e-15},
    {845.0698503451546, -1.2933478889683858e-14},
    {-9104.540458535355, -1.8302653240399498e-13},
    {62101.45216105319, -2.7436290128980568e-12},
    {333286.1255476901, 2.410486307018467e-11},
    {-6134863.761534966, -8.194203209099625e-11},
    {65689684.5572411, 1.1865707601746958e-09},
    {-248460713.3954641, 1.1119885018789293e-08},
    {887887993.1765442, -4.053617025977233e-08},
};
// Denominator:
constexpr double kEiC_Q[10][2] = {
    {1.0, 0.0},
    {-35.82654987543847, 7.030261813736124e-16},
    {879.1093169102828, 1.3251130049120468e-14},
    {-9933.222056644066, -2.894975521910093e-13},
    {71184.21422445703, -1.654425905878909e-12},
    {254292.8172970904, -1.1030070060384856e-11},
    {-5973580.130385898, -7.915750342306646e-11},
    {63124886.57801662, -6.097536290106164e-10},
    {-228688138.53714398, 3.509925161743095e-10},
    {646143184.313944, -1.4102791185832238e-08},
};

// y exp(-y) Ei(y): minimax rational of degree 10/10 in u = 1/y on
// [0.0014116318, 0.041666667], fitted by tools/refdata/fit_s_first.py; max
// relative error 2.7e-19 with the coefficients as stored. Coefficients from
// the constant term in u, which is the Horner order in 1/u. Numerator:
constexpr double kEiD_P[11][2] = {
    {1.0, -2.9414369231176386e-17},
    {-136.76583802946587, 8.534892554480361e-15},
    {8367.912535891268, -8.344623124105977e-13},
    {-295033.5690767618, 2.632014514661418e-11},
    {6501686.831641381, -3.3801814689622873e-10},
    {-91077230.00913382, -3.129670160559864e-09},
    {789718790.743184, -2.423913958617197e-08},
    {-3922938789.5401483, 1.4399617314182675e-07},
    {9520779992.751722, 2.394550850577521e-07},
    {-7956548593.015772, -2.4599610789849996e-07},
    {526802839.9225293, 4.344263159403376e-09},
};
// Denominator:
constexpr double kEiD_Q[11][2] = {
    {1.0, 0.0},
    {-137.76583802946593, 6.783223614767879e-15},
    {8503.67837392078, 5.059333878645656e-13},
    {-303267.7157746451, 1.698836284093445e-11},
    {6788749.785702345, -1.986493179166316e-12},
    {-97307280.05452476, -5.998325794111373e-09},
    {875079901.281958, -4.717328124013272e-08},
    {-4637784506.984726, -1.2679729705516573e-07},
    {12860242692.778488, -2.432686250839044e-07},
    {-15090327253.417477, -4.126648671435237e-08},
    {4743474948.703932, 3.08157387400553e-07},
};

// The zero of Ei, y0 = kY0[0] + kY0[1] + kY0[2] (mpmath's findroot at 140
// digits), and y0 and ln y0 to 64 bits (mpmath, 40 digits). The third part
// matters: at the double nearest y0, y - y0 is -(kY0[1] + kY0[2]) and Ei
// there is 5e-17.
constexpr double kY0[3] = {0.3725074107813666, 1.3140183414386028e-17,
                           6.4725688445954145e-34};
constexpr ld kY0x = 0.3725074107813666344619918665801191335357L;
constexpr ld kLnY0 = -0.9874983466453418518440360746184590467542L;

constexpr zeb::ext::Pairs kAP(kEiA_P);
constexpr zeb::ext::Pairs kAQ(kEiA_Q);
constexpr zeb::ext::Pairs kBP(kEiB_P);
constexpr zeb::ext::Pairs kBQ(kEiB_Q);
constexpr zeb::ext::Pairs kCP(kEiC_P);
constexpr zeb::ext::Pairs kCQ(kEiC_Q);

// p(y)/q(y), each as two Horner chains in y^2 (of the even and the odd
// powers).
template <std::size_t N>
ld rational(const zeb::ext::Pairs<N>& p, const zeb::ext::Pairs<N>& q, ld y) {
  return zeb::ext::horner<2>(p, y) / zeb::ext::horner<2>(q, y);
}

// The polynomial c (pairs hi + lo, highest power first) at x by compensated
// Horner: the rounding error of each step is carried in a second sum, so the
// value is as if evaluated in twice the precision. For the rational of the
// last range, whose numerator and denominator cancel by a factor 1e4 as
// polynomials in y.
template <std::size_t N>
dd::dd comp_horner(const double (&c)[N][2], double x) {
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

// With y = -x:
//   0 < y < 6:   Ei(y) = ln(y/y0) + (y - y0) R(y), R a rational in
//                s = -2x/3 - 2 = 2y/3 - 2. y - y0 is exact in the extended
//                format but for the third part of y0; near the zero y0 the
//                logarithm is ln(1 + v), v = (y - y0)/y0, by s01bazn on
//                1 + v as hi + lo, so that both terms keep their relative
//                accuracy as y - y0 vanishes; elsewhere ln y - ln y0.
//   6 <= y:      Ei(y) = exp(y)/y F(y), F = y exp(-y) Ei(y) a rational in 1/y
//                on [6, 12), [12, 24) and [24, 708.3], evaluated in y
//                (numerator and denominator times a power of y), the last by
//                compensated Horner.
double s13aazn(double x) {
  const double y = -x;
  ld r;
  if (y < 6.0) {
    const ld d = ((static_cast<ld>(y) - kY0[0]) - kY0[1]) - kY0[2];
    ld l;
    if (y >= 0.5 * kY0[0] && y <= 1.5 * kY0[0]) {
      const ld v = d / kY0x;
      const double vh = static_cast<double>(v);
      const dd::dd u = dd::two_sum(1.0, vh);
      l = s01bazn(u.hi, u.lo + static_cast<double>(v - vh));
    } else {
      l = s01bazn(y, 0.0) - kLnY0;
    }
    r = l + d * rational(kAP, kAQ, y * (2.0L / 3) - 2.0L);
  } else {
    ld f;
    if (y < 12.0) {
      f = rational(kBP, kBQ, y);
    } else if (y < 24.0) {
      f = rational(kCP, kCQ, y);
    } else {
      const dd::dd p = comp_horner(kEiD_P, y);
      const dd::dd q = comp_horner(kEiD_Q, y);
      f = (p.hi + static_cast<ld>(p.lo)) / (q.hi + static_cast<ld>(q.lo));
    }
    r = f / y * s15adyn(y);
  }
  return static_cast<double>(-r);
}
