// Dawson's integral F(x) = exp(-x^2) * (integral of exp(t^2) from 0 to x), an
// odd function; for a = |x|:
//   a <= 3.1e-9          F = x (the next term, -2x^3/3, is below half an ulp)
//   a < 0.5              F = x + x v Q(v), v = x^2
//   0.5 <= a < 4.0       seven polynomials in a - centre, intervals of 1/2
//   4.0 <= a < 3.2e8     asymptotic form F = (1/2 + u R(u)) / a, u = 1/a^2
//   3.2e8 <= a < 2.24e307   F = 1/(2a) (u R(u) is below half an ulp of 1/2)
//   2.24e307 <= a        0, as 1/(2a) is below the smallest normal number.
// The polynomials are derived by tools/refdata/fit_s15aff.py, which rewrites
// the generated blocks below.
#include <cmath>

#include "zeb_s_ib.h"

namespace {

// BEGIN GENERATED s15aff-small
// Q(v) = (F(x)/x - 1)/v, v = x^2: degree 8 in v on [0.0, 0.25], Chebyshev
// interpolation at 60 digits (tools/refdata/fit_s15aff.py); max F-relative
// error as stored 1.0e-17.
inline double small_q(double v) {
  double p = -7.028119895374555e-07;
  p = 7.392601343068861e-06 + v * p;
  p = -6.313760700665595e-05 + v * p;
  p = 0.0004735991367632415 + v * p;
  p = -0.0030784029630993204 + v * p;
  p = 0.016931216925623792 + v * p;
  p = -0.07619047619034017 + v * p;
  p = 0.2666666666666654 + v * p;
  p = -0.6666666666666666 + v * p;
  return p;
}
// END GENERATED s15aff-small

// BEGIN GENERATED s15aff-middle
// F(a) on [k/2, (k+1)/2), k = 1..7, as polynomials in t = a - (2k+1)/4.
// k = 1: degree 15 in t = a - 0.75 on [0.5, 1.0], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15aff.py); max relative error as stored
// 3.5e-18.
// k = 2: degree 14 in t = a - 1.25 on [1.0, 1.5], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15aff.py); max relative error as stored
// 7.1e-18.
// k = 3: degree 14 in t = a - 1.75 on [1.5, 2.0], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15aff.py); max relative error as stored
// 9.8e-18.
// k = 4: degree 14 in t = a - 2.25 on [2.0, 2.5], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15aff.py); max relative error as stored
// 1.4e-17.
// k = 5: degree 14 in t = a - 2.75 on [2.5, 3.0], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15aff.py); max relative error as stored
// 2.7e-18.
// k = 6: degree 13 in t = a - 3.25 on [3.0, 3.5], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15aff.py); max relative error as stored
// 5.7e-18.
// k = 7: degree 13 in t = a - 3.75 on [3.5, 4.0], Chebyshev interpolation at
// 60 digits (tools/refdata/fit_s15aff.py); max relative error as stored
// 4.2e-18.
inline double middle(int k, double a) {
  switch (k) {
    case 1: {
      const double t = a - 0.75;
      double p = 2.4554784237103123e-05;
      p = 9.951494707354545e-05 + t * p;
      p = -0.0002645401036604431 + t * p;
      p = -0.0005240038792296636 + t * p;
      p = 0.0021130566694961108 + t * p;
      p = 0.001561477826726578 + t * p;
      p = -0.01279294664773073 + t * p;
      p = 0.0017872217876423616 + t * p;
      p = 0.056227844290947196 + t * p;
      p = -0.04931976804596523 + t * p;
      p = -0.15980762899425555 + t * p;
      p = 0.26781502585585776 + t * p;
      p = 0.19865780309381917 + t * p;
      p = -0.6846234040319354 + t * p;
      p = 0.21548084838322262 + t * p;
      return 0.5230127677445182 + (3.8858325843447193e-17 + t * p);
    }
    case 2: {
      const double t = a - 1.25;
      double p = -2.924664052817228e-05;
      p = 0.00021203083614358781 + t * p;
      p = -5.516862426463733e-05 + t * p;
      p = -0.0013448886524892883 + t * p;
      p = 0.0020118008528477783 + t * p;
      p = 0.004884965016142673 + t * p;
      p = -0.016165202840939436 + t * p;
      p = -0.001775949535728178 + t * p;
      p = 0.06688074828283268 + t * p;
      p = -0.07738510978013938 + t * p;
      p = -0.10391085762589233 + t * p;
      p = 0.3233513464620971 + t * p;
      p = -0.19636746782580697 + t * p;
      p = -0.23956768491081537 + t * p;
      return 0.4958270739643261 + (-6.793066113322567e-18 + t * p);
    }
    case 3: {
      const double t = a - 1.75;
      double p = -6.969393088999439e-06;
      p = -8.927283602351776e-05 + t * p;
      p = 0.0002071360926403684 + t * p;
      p = 0.0002384004673483255 + t * p;
      p = -0.0016602623034361514 + t * p;
      p = 0.001592620727309412 + t * p;
      p = 0.005514239131555545 + t * p;
      p = -0.01681664783912568 + t * p;
      p = 0.007372176781042108 + t * p;
      p = 0.045956956798666 + t * p;
      p = -0.10254120473465704 + t * p;
      p = 0.06455471630090963 + t * p;
      p = 0.09211165594268246 + t * p;
      p = -0.2580274723511002 + t * p;
      return 0.3594364206717429 + (2.712168750840027e-18 + t * p);
    }
    case 4: {
      const double t = a - 2.25;
      double p = 1.060869215631336e-05;
      p = 1.1533581316230387e-05 + t * p;
      p = -0.00010269874166261794 + t * p;
      p = 0.00014891059985447128 + t * p;
      p = 0.00028137688309773465 + t * p;
      p = -0.0014515354768901514 + t * p;
      p = 0.0018590592648712384 + t * p;
      p = 0.0023490039941419746 + t * p;
      p = -0.012721495761263111 + t * p;
      p = 0.020401851927135235 + t * p;
      p = -0.007739679556008282 + t * p;
      p = -0.03359035082098235 + t * p;
      p = 0.09105764845924853 + t * p;
      p = -0.1544941828018212 + t * p;
      return 0.25655426284484917 + (-1.3367745256022192e-17 + t * p);
    }
    case 5: {
      const double t = a - 2.75;
      double p = -4.256672502967759e-06;
      p = 6.18557191730561e-06 + t * p;
      p = 1.3718983834254565e-05 + t * p;
      p = -7.681147108293532e-05 + t * p;
      p = 0.0001288363092250625 + t * p;
      p = 6.807417983701549e-05 + t * p;
      p = -0.0008313819486322166 + t * p;
      p = 0.001979970031166802 + t * p;
      p = -0.0021193898755828755 + t * p;
      p = -0.0011015730205350092 + t * p;
      p = 0.0093874954342301 + t * p;
      p = -0.023061679892144776 + t * p;
      p = 0.04464462883493265 + t * p;
      p = -0.08818020945784988 + t * p;
      return 0.19785094717415452 + (2.0702763101973984e-19 + t * p);
    }
    case 6: {
      const double t = a - 3.25;
      double p = -2.702782342639903e-06;
      p = 4.615950234648241e-06 + t * p;
      p = 3.135309251823921e-06 + t * p;
      p = -3.710354471787115e-05 + t * p;
      p = 0.00010329531928811729 + t * p;
      p = -0.00015024809376616038 + t * p;
      p = 2.3479289765939924e-05 + t * p;
      p = 0.0005246865947934657 + t * p;
      p = -0.0017874089875297735 + t * p;
      p = 0.004235019393703955 + t * p;
      p = -0.009295290560312334 + t * p;
      p = 0.02173965553382538 + t * p;
      p = -0.05671094464446548 + t * p;
      return 0.162570914560687 + (-1.0754901996131517e-17 + t * p);
    }
    case 7: {
      const double t = a - 3.75;
      double p = 1.6681160381682501e-07;
      p = -1.1804895256001832e-06 + t * p;
      p = 3.31954616054315e-06 + t * p;
      p = -5.261373372156268e-06 + t * p;
      p = 1.4734660147296339e-06 + t * p;
      p = 2.0773927764405488e-05 + t * p;
      p = -8.453281177110731e-05 + t * p;
      p = 0.00023390258654844553 + t * p;
      p = -0.0005812698597523598 + t * p;
      p = 0.0014780542102721156 + t * p;
      p = -0.004089528639113766 + t * p;
      p = 0.012379623976161198 + t * p;
      p = -0.040289296951933985 + t * p;
      return 0.1387052395935912 + (-1.3579098436305704e-17 + t * p);
    }
    default:
      return 0.0;
  }
}
// END GENERATED s15aff-middle

// BEGIN GENERATED s15aff-asym
// R(u) = (aF(a) - 1/2)/u, u = 1/a^2: degree 9 in u on [0.0, 0.015625],
// Chebyshev interpolation at 60 digits (tools/refdata/fit_s15aff.py); max
// aF-relative error as stored 9.8e-19.
inline double asym_far(double u) {
  double p = 809904.7971138527;
  p = 14230.747709026904 + u * p;
  p = 4348.44678391943 + u * p;
  p = 523.3169725803298 + u * p;
  p = 81.24330493338367 + u * p;
  p = 14.765486479141904 + u * p;
  p = 3.2812503379972755 + u * p;
  p = 0.9374999995834711 + u * p;
  p = 0.37500000000019823 + u * p;
  p = 0.24999999999999997 + u * p;
  return p;
}
// R(u) = (aF(a) - 1/2)/u, u = 1/a^2: degree 22 in t = u - 0.0390625 on
// [0.015625, 0.0625], Chebyshev interpolation at 60 digits
// (tools/refdata/fit_s15aff.py); max aF-relative error as stored 4.1e-18.
inline double asym_near(double u) {
  const double t = u - 0.0390625;
  double p = 8.625821714483331e+25;
  p = -1.675779127379971e+24 + t * p;
  p = -3.497187190206484e+23 + t * p;
  p = 9.175662473440556e+21 + t * p;
  p = 6.568860728731522e+20 + t * p;
  p = -2.545901556514923e+19 + t * p;
  p = -7.489724295070831e+17 + t * p;
  p = 4.988982148777234e+16 + t * p;
  p = 572444001992255.1 + t * p;
  p = -82785967857932.78 + t * p;
  p = -492335275614.6656 + t * p;
  p = 130606270608.33316 + t * p;
  p = 1723843876.3790643 + t * p;
  p = -182361270.352669 + t * p;
  p = -7343876.8322584815 + t * p;
  p = 21243.035325324025 + t * p;
  p = 13070.469673394002 + t * p;
  p = 915.5303528974853 + t * p;
  p = 69.9260391732656 + t * p;
  p = 8.22044012412017 + t * p;
  p = 1.5386609668077889 + t * p;
  p = 0.4681836344666204 + t * p;
  p = 0.26631902171042954 + t * p;
  return p;
}
// END GENERATED s15aff-asym

}  // namespace

double s15affn(double x) {
  const double a = std::fabs(x);
  if (!(a > 3.1e-9)) return x;  // and a NaN
  if (a < 0.5) {
    const double v = x * x;
    return x + x * (v * small_q(v));
  }
  double f;
  if (a < 4.0) {
    f = middle(static_cast<int>(2.0 * a), a);
  } else if (a < 3.2e8) {
    const double u = 1.0 / (a * a);
    const double r = a < 8.0 ? asym_near(u) : asym_far(u);
    f = (0.5 + u * r) / a;
  } else if (a < 2.24e307) {
    f = 0.5 / a;
  } else {
    f = 0.0;
  }
  return std::copysign(f, x);
}
