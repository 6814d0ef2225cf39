// -Ei(-x) for -708.3 <= x < 0, the real continuation of E1 to negative
// arguments; s13aafn has screened the argument.
#include <cstddef>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"

// 2^scale exp(x + xl) as hi + lo (s15adyn.cpp).
double s15adyn(double x, double xl, int scale, double& lo);

namespace {

namespace dd = zeb::dd;

// R(y) = (Ei(y) - ln(y/y0)) / (y - y0): minimax rational of degree 9/9 in y on
// [0.0, 6.0], fitted by tools/refdata/fit_s_first.py; max relative error
// 2.9e-21 with the coefficients as stored. Coefficients from the highest
// power. Numerator:
constexpr double kEiA_P[10][2] = {
    {7.279351167728472e-13, -2.3144124012480363e-30},
    {9.063498996171007e-11, 4.408345824922592e-27},
    {-7.000868787718821e-10, -3.1560486268190296e-26},
    {2.676116077221277e-07, -1.0133422110296743e-23},
    {-4.862620175067243e-06, -1.9284960191235607e-22},
    {0.00018905754908345632, -1.3531967045864161e-20},
    {-0.002203578205082342, 1.149690261189675e-19},
    {0.03430736123647085, 3.2959956852240725e-18},
    {-0.18244614227046482, -5.987743314280455e-18},
    {1.1014081059037335, -8.109038760896372e-17},
};
// Denominator:
constexpr double kEiA_Q[10][2] = {
    {-4.569695921276601e-12, 1.7220395540998796e-28},
    {6.173104123251682e-10, 4.4746887481189824e-26},
    {-3.8998973292901755e-08, -5.807751573484145e-26},
    {1.5106944527149335e-06, -2.1792350688325125e-23},
    {-3.949639567516382e-05, 1.8347942131877176e-21},
    {0.0007218369806874698, 2.551380218116006e-21},
    {-0.009209789860269968, 4.0463590111009473e-20},
    {0.07899766617208127, -1.2883934165571276e-18},
    {-0.4128145142468199, -8.74336092730553e-18},
    {1.0, 0.0},
};

// y exp(-y) Ei(y): minimax rational of degree 9/9 in u = 1/y on [0.083333333,
// 0.16666667], fitted by tools/refdata/fit_s_first.py; max relative error
// 6.1e-20 with the coefficients as stored. Coefficients from the constant term
// in u, which is the Horner order in 1/u. Numerator:
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
// 6.0e-20 with the coefficients as stored. Coefficients from the constant term
// in u, which is the Horner order in 1/u. Numerator:
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

// The zero of Ei, y0 = kY0[0] + kY0[1] + kY0[2], and ln y0 as hi + lo
// (mpmath's findroot at 140 digits). The third part matters: at the double
// nearest y0, y - y0 is -(kY0[1] + kY0[2]) and Ei there is 5e-17.
constexpr double kY0[3] = {0.3725074107813666, 1.3140183414386028e-17,
                           6.4725688445954145e-34};
constexpr dd::dd kLnY0{-0.9874983466453419, 1.0504707614307875e-17};

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

// With y = -x:
//   0 < y < 6:   Ei(y) = ln(y/y0) + (y - y0) R(y), R a rational in y (the
//                affine image of -2x/3 - 2). Near the zero y0 the logarithm
//                is ln(1 + v), v = (y - y0)/y0, by s01bafn, so that both
//                terms keep their relative accuracy as y - y0 vanishes;
//                elsewhere ln y - ln y0 as hi + lo.
//   6 <= y:      Ei(y) = exp(y)/y F(y), F = y exp(-y) Ei(y) a rational in 1/y
//                on [6, 12), [12, 24) and [24, 708.3], evaluated in y
//                (numerator and denominator times a power of y).
double s13aazn(double x) {
  const double y = -x;
  dd::dd r;
  if (y < 6.0) {
    // d = y - y0 as hi + lo.
    const dd::dd d1 = dd::two_sum(y, -kY0[0]);
    const dd::dd d2 = dd::two_sum(d1.hi, -kY0[1]);
    const dd::dd d = dd::fast_two_sum(d2.hi, d2.lo + d1.lo - kY0[2]);
    dd::dd l;
    if (y >= 0.5 * kY0[0] && y <= 1.5 * kY0[0]) {
      // ln(1 + v.hi + v.lo) = ln(1 + v.hi) + v.lo/(1 + v.hi).
      const dd::dd v = dd::div(d, dd::dd{kY0[0], kY0[1]});
      char buf[zeb::errbuf_len];
      int code = 0;
      l = dd::fast_two_sum(s01bafn(v.hi, buf, code), v.lo / (1.0 + v.hi));
    } else {
      l = dd::sub(dd::log(y), kLnY0);
    }
    const dd::dd q = dd::div(horner2(kEiA_P, y), horner2(kEiA_Q, y));
    r = dd::add(l, dd::mul(q, d));
  } else {
    dd::dd f;
    if (y < 12.0) {
      f = dd::div(horner2(kEiB_P, y), horner2(kEiB_Q, y));
    } else if (y < 24.0) {
      f = dd::div(horner2(kEiC_P, y), horner2(kEiC_Q, y));
    } else {
      f = dd::div(horner2(kEiD_P, y), horner2(kEiD_Q, y));
    }
    // exp(y) as hi + lo, scaled by 2^-64 into the range of exact products.
    dd::dd e;
    e.hi = s15adyn(y, 0.0, -64, e.lo);
    r = dd::mul(dd::div(f, y), e);
    return -(r.hi + r.lo) * 0x1p64;
  }
  return -(r.hi + r.lo);
}
