// Exponential integral E1(x) for x > 0, and -Ei(-x) for x < 0.
#include <cstddef>

#include "zeb_ext.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

// -Ei(-x) for -708.3 <= x < 0 (s13aazn.cpp); exp(x) and ln(hi + lo) in the
// x87 extended format (s15adyn.cpp, s01bazn.cpp; zeb_ext.h).
double s13aazn(double x);
long double s15adyn(double x);
long double s01bazn(double hi, double lo);

namespace {

using zeb::ext::ld;

// E1(x) + ln x: minimax polynomial of degree 13 in x on [0.0, 1.0], fitted by
// tools/refdata/fit_s_first.py; max E1-relative error 5.6e-20 with the pairs
// as stored rounded to the x87 extended format. Coefficients from the highest
// power.
constexpr double kE1A[14][2] = {
    {7.624665367604512e-12, -3.6391464408169014e-28},
    {-1.5969950187478082e-10, -4.502294462306785e-27},
    {2.2508422179613365e-09, -8.194398041450366e-26},
    {-2.7524066433240246e-08, 6.013327783133572e-26},
    {3.0616344679322e-07, -4.593622803620434e-24},
    {-3.100180430532584e-06, -1.8433633618174027e-22},
    {2.8344663232444786e-05, -1.2419860196212614e-21},
    {-0.00023148147898058449, 8.584359326334303e-21},
    {0.001666666666123436, -7.217014824386131e-20},
    {-0.010416666666588232, 5.210204304585258e-19},
    {0.055555555555548516, 3.23471600940299e-18},
    {-0.24999999999999964, -1.1872325640940392e-17},
    {1.0, -7.627310142628581e-18},
    {-0.5772156649015329, 4.983592324088429e-18},
};

// E1(x): minimax polynomial of degree 24 in t = 2x-3 on [-1.0, 1.0], fitted by
// tools/refdata/fit_s_first.py; max relative error 6.6e-20 with the pairs as
// stored rounded to the x87 extended format. Coefficients from the highest
// power.
constexpr double kE1B[25][2] = {
    {2.6882645354199924e-13, 5.4618196628735956e-30},
    {-8.960883262543577e-13, 2.007887724379244e-29},
    {1.1288868181993128e-12, -9.67481409536818e-29},
    {-3.2195107601915367e-12, -1.0360394549386703e-28},
    {1.4771703916400703e-11, 8.163787793153533e-28},
    {-4.7513283287587784e-11, -2.0741746784839936e-27},
    {1.430783269477793e-10, 4.765371431641895e-27},
    {-4.5317156943854274e-10, 9.749235977244134e-27},
    {1.4520179354292525e-09, 5.030144729571783e-26},
    {-4.647721023594356e-09, 2.71879445383435e-25},
    {1.4933958704128003e-08, 9.38141060011993e-25},
    {-4.824736873299802e-08, 6.732228966277623e-25},
    {1.568063234099466e-07, -1.2627788845999936e-24},
    {-5.131844263999648e-07, 4.885141884849428e-23},
    {1.6935018568299774e-06, -8.688275064749437e-23},
    {-5.644872653536087e-06, -3.358600927065207e-23},
    {1.904874321923763e-05, 1.297924338826839e-21},
    {-6.526056621429407e-05, 6.588711490277123e-21},
    {0.00022760494266725674, -2.3601002060031845e-21},
    {-0.00080775643109249, 4.06866192358652e-20},
    {0.0028838195852516724, -2.0776002311018269e-19},
    {-0.009985763339976039, -4.521845969350568e-19},
    {0.030990300020615254, 1.5722361294501177e-19},
    {-0.07437672004947661, 1.116572188995868e-18},
    {0.10001958240663265, -1.9705881831899063e-18},
};

// E1(x): minimax polynomial of degree 25 in t = x-3 on [-1.0, 1.0], fitted by
// tools/refdata/fit_s_first.py; max relative error 8.3e-20 with the pairs as
// stored rounded to the x87 extended format. Coefficients from the highest
// power.
constexpr double kE1C[26][2] = {
    {-8.11378898345619e-14, -1.1501686047791178e-30},
    {2.9152473511034176e-13, 1.9078837229909099e-29},
    {-3.9213187057126797e-13, -2.2659075660422686e-29},
    {9.929820210915894e-13, 3.8022281551583916e-29},
    {-4.595942616152796e-12, -2.77873565158364e-28},
    {1.5127635526056366e-11, 3.8260625393613872e-28},
    {-4.533993452072668e-11, -2.075337874521815e-28},
    {1.4254296073116486e-10, 1.2797827755553047e-26},
    {-4.553653652723696e-10, 1.759727021493455e-26},
    {1.4525282662464695e-09, -4.6174406448189164e-26},
    {-4.646239879916623e-09, 3.2505248916702195e-25},
    {1.493358648880825e-08, 1.161402438925086e-24},
    {-4.824726359971693e-08, 8.153892355412064e-25},
    {1.5679527517499964e-07, -5.402525583566603e-24},
    {-5.130344806749897e-07, -4.7508751094053965e-23},
    {1.6916416853809179e-06, -3.189276679363393e-23},
    {-5.623561262671859e-06, -4.695598348033822e-23},
    {1.882516949219296e-05, 9.305949532115414e-22},
    {-6.313224016603306e-05, -1.4312153994823272e-21},
    {0.00020943805623401503, 1.2572164873724865e-20},
    {-0.0006709985551635483, -2.0006135145286737e-20},
    {0.001997629286364922, -9.91531796833097e-20},
    {-0.005224568902800539, 5.676237604242201e-20},
    {0.011063792970636432, -1.1822347681497445e-19},
    {-0.01659568945595465, 1.6667879019939314e-18},
    {0.013048381094197037, 5.682944608409241e-19},
};

// x exp(x) E1(x): minimax rational of degree 9/9 in u = 1/x on [0.0, 0.25],
// fitted by tools/refdata/fit_s_first.py; max relative error 3.6e-20 with the
// pairs as stored rounded to the x87 extended format. Coefficients from the
// constant term in u, which is the Horner order in 1/u. Numerator:
constexpr double kE1D_P[10][2] = {
    {1.0, -1.3765191653248897e-20},
    {48.85570185750624, 2.930967249877496e-15},
    {926.5344120008197, 1.5054362408185388e-14},
    {8785.623175908973, 3.823243161856262e-13},
    {44746.30086857119, -1.5732242265415121e-12},
    {122383.78971408602, -8.614870271090097e-13},
    {169875.7822624186, -1.3092789198897777e-11},
    {104561.53205130679, -1.5237160558358202e-13},
    {20810.884868209036, -1.1878346441469326e-12},
    {343.37646343012295, -1.678929769895044e-14},
};
// Denominator:
constexpr double kE1D_Q[10][2] = {
    {1.0, 0.0},
    {49.85570185750624, 2.84191861547178e-15},
    {974.390113858326, 4.751491881875578e-15},
    {9666.301886052248, 8.417920284986277e-13},
    {52738.956738060166, -2.705845921317868e-12},
    {160559.94651749145, 5.4600868266126e-12},
    {264832.9482132475, -2.6434762753791354e-11},
    {218787.7837793806, -1.2795595151580605e-11},
    {76905.93523179559, -3.104970625358234e-12},
    {7778.8982674185145, 4.415762875528796e-13},
};

constexpr zeb::ext::Pairs kA(kE1A);
constexpr zeb::ext::Pairs kB(kE1B);
constexpr zeb::ext::Pairs kC(kE1C);
constexpr zeb::ext::Pairs kDP(kE1D_P);
constexpr zeb::ext::Pairs kDQ(kE1D_Q);

}  // namespace

// Ranges for x > 0:
//   (0, 1]:      E1(x) = P(x) - ln x, P the entire part -Euler + x - x^2/4 + ...;
//                P is the series in x rather than 2x - 1, which would round
//                below 0.25;
//   (1, 2]:      the series in t = 2x - 3, exact;
//   (2, 4]:      the series in t = x - 3, exact;
//   (4, 708.3]:  exp(-x)/x F(1/x), F a rational in 1/x that is evaluated in x
//                itself (numerator and denominator times x^9); the value is
//                subnormal from 701.8 on;
//   above 708.3: 0.
// The series are summed in the x87 extended format, whose 64-bit significand
// keeps their roundings near 2^-62, exp(-x) comes in the same format, and the
// one rounding to double is the last.
double s13aafn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  if (x == 0.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5))", {1, 1001, 0});
    zeb::errbuf_close(errbuf, 1, ifail);
    return x02alfn();
  }
  if (x < -708.3) {
    zeb::errbuf_record(errbuf, "(3(1X,I5))", {2, 1002, 0});
    zeb::errbuf_close(errbuf, 2, ifail);
    return -x02alfn();
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (!(x <= 708.3)) return x > 708.3 ? 0.0 : x;  // x may be NaN
  zeb::ext::Precision guard(x);
  double v = 0.0;
  if (x < 0.0) {
    v = s13aazn(x);
    guard.release(v);
    return v;
  }
  ld r;
  if (x <= 1.0) {
    r = zeb::ext::horner<2>(kA, x) - s01bazn(x, 0.0);
  } else if (x <= 2.0) {
    r = zeb::ext::horner<4>(kB, 2.0 * x - 3.0);
  } else if (x <= 4.0) {
    r = zeb::ext::horner<4>(kC, x - 3.0);
  } else {
    r = s15adyn(-x) * (zeb::ext::horner<2>(kDP, x) / (zeb::ext::horner<2>(kDQ, x) * x));
  }
  v = static_cast<double>(r);
  guard.release(v);
  return v;
}
