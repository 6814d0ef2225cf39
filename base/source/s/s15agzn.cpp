// erfcx(x) = exp(x^2) erfc(x) for x > -26.6 (the callers check the range):
//   |x| <= 0.46875       one polynomial in x
//   0.46875 < x <= 4     five polynomials in x - centre
//   4 < x                erfcx(x) = (1/sqrt(pi) + u R(u)) / x, u = 1/x^2; the
//                        constant is a pair hi + lo so that the numerator is
//                        rounded once. For x beyond 1.34e154, u underflows to
//                        0 and the value is 1/(sqrt(pi) x).
//   x < -0.46875         2 exp(x^2) - erfcx(-x), with x^2 carried exactly as
//                        hi + lo and exp(x^2) = exp(hi) (1 + lo), so that the
//                        rounding of x^2 does not reach the result.
// The polynomials are derived by tools/refdata/fit_s15agf.py, which rewrites
// the generated blocks below.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"

namespace {

// BEGIN GENERATED s15agf-small
// erfcx(x): degree 18 in x on [-0.46875, 0.46875], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15agf.py); max relative error as stored
// 7.5e-17.
inline double small(double x) {
  double p = 3.0597706067844976e-06;
  p = -9.358900300868838e-06 + x * p;
  p = 2.4665552976890825e-05 + x * p;
  p = -7.081633582031319e-05 + x * p;
  p = 0.00019844567933882676 + x * p;
  p = -0.0005345069290341568 + x * p;
  p = 0.0013888841544452703 + x * p;
  p = -0.003473590678534708 + x * p;
  p = 0.008333333743329814 + x * p;
  p = -0.019104833777254672 + x * p;
  p = 0.04166666664583372 + x * p;
  p = -0.08597174599741741 + x * p;
  p = 0.16666666666723964 + x * p;
  p = -0.3009011112273129 + x * p;
  p = 0.49999999999999284 + x * p;
  p = -0.752252778063652 + x * p;
  p = 1.0 + x * p;
  p = -1.1283791670955126 + x * p;
  return 1.0 + (0.0 + x * p);
}
// END GENERATED s15agf-small

// BEGIN GENERATED s15agf-middle
// erfcx(x) on the pieces of (0.46875, 4], as polynomials in t = x - centre.
// k = 0: degree 14 in t = x - 0.734375 on [0.46875, 1.0], Chebyshev
// interpolation at 60 digits (tools/refdata/fit_s15agf.py); max relative error
// as stored 4.9e-18.
// k = 1: degree 13 in t = x - 1.25 on [1.0, 1.5], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15agf.py); max relative error as stored
// 9.3e-18.
// k = 2: degree 12 in t = x - 1.75 on [1.5, 2.0], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15agf.py); max relative error as stored
// 6.0e-18.
// k = 3: degree 15 in t = x - 2.5 on [2.0, 3.0], Chebyshev interpolation at 60
// digits (tools/refdata/fit_s15agf.py); max relative error as stored 8.0e-18.
// k = 4: degree 14 in t = x - 3.5 on [3.0, 4.0], Chebyshev interpolation at 60
// digits (tools/refdata/fit_s15agf.py); max relative error as stored 5.6e-18.
inline double middle(int k, double x) {
  switch (k) {
    case 0: {
      const double t = x - 0.734375;
      double p = 5.016719497126579e-06;
      p = -1.5532509403035636e-05 + t * p;
      p = 4.532425552580439e-05 + t * p;
      p = -0.00013153004843029296 + t * p;
      p = 0.0003686513259509171 + t * p;
      p = -0.0009943867621467505 + t * p;
      p = 0.0025735040246202792 + t * p;
      p = -0.006364646727750494 + t * p;
      p = 0.014968053673528943 + t * p;
      p = -0.033268428204188016 + t * p;
      p = 0.06933566298135818 + t * p;
      p = -0.13408944800986022 + t * p;
      p = 0.2371432643449664 + t * p;
      p = -0.37528625676813504 + t * p;
      return 0.5127441091590655 + (2.576188244285121e-17 + t * p);
    }
    case 1: {
      const double t = x - 1.25;
      double p = -1.6610767030625112e-06;
      p = 5.501701839828387e-06 + t * p;
      p = -1.7341459254977562e-05 + t * p;
      p = 5.404491508514403e-05 + t * p;
      p = -0.00016296012111131222 + t * p;
      p = 0.0004739707006153454 + t * p;
      p = -0.0013257829272368543 + t * p;
      p = 0.003553109894683297 + t * p;
      p = -0.009081627632959959 + t * p;
      p = 0.022011364250946238 + t * p;
      p = -0.05021827439590747 + t * p;
      p = 0.10679557149659845 + t * p;
      p = -0.20882187596460985 + t * p;
      return 0.3678229164523611 + (3.607072079916514e-19 + t * p);
    }
    case 2: {
      const double t = x - 1.75;
      double p = 8.39673108255344e-07;
      p = -2.974613371329766e-06 + t * p;
      p = 1.0085700886432653e-05 + t * p;
      p = -3.375169827943583e-05 + t * p;
      p = 0.00010950532535839581 + t * p;
      p = -0.0003435334907935854 + t * p;
      p = 0.001039204521771997 + t * p;
      p = -0.0030209746489200107 + t * p;
      p = 0.008404319207334107 + t * p;
      p = -0.022259995241407905 + t * p;
      p = 0.055763630087087256 + t * p;
      p = -0.13097634551448517 + t * p;
      return 0.2849722347374364 + (8.539813023973122e-18 + t * p);
    }
    case 3: {
      const double t = x - 2.5;
      double p = -9.299068690583155e-10;
      p = 4.023499351874463e-09 + t * p;
      p = -1.61506305224933e-08 + t * p;
      p = 6.705533370866154e-08 + t * p;
      p = -2.729566325679601e-07 + t * p;
      p = 1.0852406768030674e-06 + t * p;
      p = -4.214295494064897e-06 + t * p;
      p = 1.5961851018812493e-05 + t * p;
      p = -5.886896472383184e-05 + t * p;
      p = 0.0002110198244195237 + t * p;
      p = -0.0007335909371382576 + t * p;
      p = 0.002467036815697219 + t * p;
      p = -0.008001569382101618 + t * p;
      p = 0.024937997086656956 + t * p;
      p = -0.07434734678979467 + t * p;
      return 0.2108063640611436 + (-5.725999103707609e-18 + t * p);
    }
    case 4: {
      const double t = x - 3.5;
      double p = 1.5981815899094853e-10;
      p = -7.971848938959326e-10 + t * p;
      p = 3.764843244262652e-09 + t * p;
      p = -1.816549302673174e-08 + t * p;
      p = 8.622012306201682e-08 + t * p;
      p = -4.017419077698321e-07 + t * p;
      p = 1.8371878077863912e-06 + t * p;
      p = -8.237986344257561e-06 + t * p;
      p = 3.618170436366868e-05 + t * p;
      p = -0.00015546891823837533 + t * p;
      p = 0.0006526863268788441 + t * p;
      p = -0.0026730744396433895 + t * p;
      p = 0.010661133192510575 + t * p;
      p = -0.041323577833252495 + t * p;
      return 0.1552936556088943 + (-1.355844542216092e-18 + t * p);
    }
    default:
      return 0.0;
  }
}
// END GENERATED s15agf-middle

// BEGIN GENERATED s15agf-asym
// R(u) = (x erfcx(x) - 1/sqrt(pi))/u, u = 1/x^2: degree 14 in u on [0.0,
// 0.0625], Chebyshev interpolation at 60 digits (tools/refdata/fit_s15agf.py);
// max x erfcx(x)-relative error as stored 2.4e-18.
// 1/sqrt(pi) as a pair of doubles, hi + lo.
constexpr double kRsqrtPiHi = 0.5641895835477563;
constexpr double kRsqrtPiLo = 7.66772980658294e-18;
inline double asym_r(double u) {
  double p = -781286018.2461469;
  p = 436727107.2103716 + u * p;
  p = -117168570.136252 + u * p;
  p = 20605057.621118106 + u * p;
  p = -2781875.536045798 + u * p;
  p = 326196.6986635459 + u * p;
  p = -37067.94524818233 + u * p;
  p = 4449.683797571391 + u * p;
  p = -595.3905788759083 + u * p;
  p = 91.63429057669184 + u * p;
  p = -16.661207789574036 + u * p;
  p = 3.70249407939919 + u * p;
  p = -1.0578554690213493 + u * p;
  p = 0.42314218766070877 + u * p;
  p = -0.28209479177387814 + u * p;
  return p;
}
// END GENERATED s15agf-asym

// erfcx for x > 0.46875.
inline double positive(double x) {
  if (x <= 4.0) {
    const int k = x <= 1.0 ? 0 : x <= 1.5 ? 1 : x <= 2.0 ? 2 : x <= 3.0 ? 3 : 4;
    return middle(k, x);
  }
  const double u = 1.0 / (x * x);
  return (kRsqrtPiHi + (kRsqrtPiLo + u * asym_r(u))) / x;
}

}  // namespace

double s15agzn(double x) {
  if (x > 0.46875) return positive(x);
  if (x >= -0.46875) return small(x);
  const zeb::dd::dd x2 = zeb::dd::two_prod(x, x);
  const double e = std::exp(x2.hi);
  return 2.0 * (e + e * x2.lo) - positive(-x);
}
