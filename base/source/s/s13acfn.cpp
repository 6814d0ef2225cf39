// Cosine integral Ci(x), x > 0.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"
#include "zeb_s_series.h"
#include "zeb_x_ib.h"

// F(x) - 1 and G(x) - 1 for x >= 16, F(x) = x f(x), G(x) = x^2 g(x), f and g
// the auxiliary functions (s13aczn.cpp).
void s13aczn(double x, double& f1, double& g1);

namespace {

// <fit_elem:cin>
// S(u) = (u/4 - Cin(x)) / u^2 = sum_k (-1)^k u^k / ((2k+4) (2k+4)!), u = x^2,
// Cin(x) = gamma + ln x - Ci(x): minimax polynomial of degree 7 in u on [0, 1]
// for the absolute error of u^2 S; fitted by tools/refdata/fit_elem.py, max
// absolute error of u^2 S 6.6e-22 with the coefficients rounded to double.
// From the highest power.
constexpr double kCinS[8] = {
    5.017623203119704e-17,
    2.733830929027388e-15,
    -8.188897517499552e-13,
    1.739725529318983e-10,
    -2.7557318999468466e-08,
    3.1001984126316568e-06,
    -0.0002314814814814714,
    0.010416666666666666,
};
// </fit_elem:cin>

// <fit_elem:cinq>
// Q(u) = (Cin(x) - Cin(x0)) / (u - u0), u = x^2, x0 = 0.6165054856207162338
// the first zero of Ci, Cin(x) = gamma + ln x - Ci(x): minimax polynomial of
// degree 8 in u on [0.45^2, 0.85^2] for the relative error; fitted by
// tools/refdata/fit_elem.py, max relative error 1.1e-21 with the coefficients
// rounded to double. From the highest power.
constexpr double kCinQ[9] = {
    1.1041569073496898e-15,
    -7.016022684655693e-15,
    8.245465813905805e-13,
    -1.736675496510774e-10,
    2.7491316907744103e-08,
    -3.089749542188318e-06,
    0.00023030713252316707,
    -0.010329131758866152,
    0.2460741137876754,
};
// </fit_elem:cinq>

// <fit_elem:ci>
// Ci(x) on [1, 1.7]: minimax polynomial of degree 19 in t = x - c, fitted
// directly; fitted by tools/refdata/fit_elem.py, max error relative to Ci
// 7.1e-19 with the coefficients as stored. Ascending powers from p0.
constexpr double kCi0[25] = {
    1.35,  // c
    0.45492667521876895, -2.299008343858388e-17,  // p0
    0.16222717562447517, -2.6343780337825526e-18,  // p1
    -0.4214631605374575, 1.930823416918455e-18,  // p2
    0.1810920932168904, -1.0432337201381245e-17,  // p3
    -0.07049180000227441,
    0.0431248116496521,
    -0.027624084731631263,
    0.01750691351244623,
    -0.011329147396801433,
    0.007459967014788076,
    -0.004973529699554294,
    0.0033491940702524447,
    -0.0022737866629892636,
    0.0015544767799044916,
    -0.001073304377432968,
    0.0007438935735197777,
    -0.0004882280026505863,
    0.0003328147321541521,
    -0.0003418051035260733,
    0.00025283896030270765,
};

// Ci(x) on [1.7, 2.3841804225511862]: minimax polynomial of degree 16 in t = x
// - c, fitted directly; fitted by tools/refdata/fit_elem.py, max error
// relative to Ci 1.9e-19 with the coefficients as stored. Ascending powers
// from p0.
constexpr double kCi1[22] = {
    2.04,  // c
    0.4143833213242672, -1.339255038194404e-17,  // p0
    -0.22165498144162352, 5.410598228977625e-18,  // p1
    -0.16428276213523435, 3.423346107759667e-18,  // p2
    0.09062967407531583, -3.851275779394948e-18,  // p3
    -0.01510223616017593,
    0.004075320707504088,
    -0.0022720050896376806,
    0.0009986031587411234,
    -0.0004174786800714439,
    0.00018129685822004362,
    -8.010449232716624e-05,
    3.570663657911403e-05,
    -1.6042677457834256e-05,
    7.22332673656065e-06,
    -3.2938527223671466e-06,
    1.681390505108678e-06,
    -7.592990491822278e-07,
};

// Ci(x) on [2.3841804225511862, 4.3841804225511858]: minimax polynomial of
// degree 20 in t = x - c, centred at the zero 3.3841804225511864 of Ci, fitted
// as Ci(x)/(x - x0) times (x - x0); fitted by tools/refdata/fit_elem.py, max
// error relative to Ci 3.3e-18 with the coefficients as stored. Ascending
// powers from p0.
constexpr double kCi2[27] = {
    3.3841804225511862,  // c
    5.656852201571236e-17, 6.0868305907097325e-33,  // p0
    -0.28684038158464925, 1.0479724444206137e-17,  // p1
    0.07787052428757571, -3.2937268590389543e-19,  // p2
    0.032466625312124485, 2.0992159251401576e-18,  // p3
    -0.010152811250278922,
    9.727309071601039e-06,
    9.619062951088947e-05,
    3.2549678568762625e-05,
    -1.0176376103901002e-05,
    1.8824719314061615e-06,
    -4.810697570444885e-07,
    1.3641550607081347e-07,
    -3.709971539080285e-08,
    1.0073361404778718e-08,
    -2.7613146526941695e-09,
    7.617416536065672e-10,
    -2.134167321312419e-10,
    5.937733730217487e-11,
    -1.4682266487318873e-11,
    4.098531917624966e-12,
    -1.985383560625773e-12,
    5.610565140033239e-13,
};

// Ci(x) on [4.3841804225511858, 5.4270477440503688]: minimax polynomial of
// degree 13 in t = x - c, fitted directly; fitted by
// tools/refdata/fit_elem.py, max error relative to Ci 1.5e-18 with the
// coefficients as stored. Ascending powers from p0.
constexpr double kCi3[19] = {
    4.71238898038469,  // c
    -0.19840756069235804, -3.116163776845424e-20,  // p0
    -3.333746987142154e-17, -3.0815833267089565e-34,  // p1
    0.10610329539459695, -5.7710171262453624e-18,  // p2
    -0.01501054572479159, 3.6482894127425094e-19,  // p3
    -0.006452938732278085,
    0.0010954849031931887,
    0.00010100711231192367,
    -1.8372322008027657e-05,
    -1.851672895538996e-06,
    3.4928214273785024e-07,
    -8.239373661618052e-09,
    1.5828338656563467e-09,
    -7.110270604309263e-10,
    9.510273763531286e-11,
};

// Ci(x) on [5.4270477440503688, 7.4270477440503688]: minimax polynomial of
// degree 15 in t = x - c, centred at the zero 6.4270477440503686 of Ci, fitted
// as Ci(x)/(x - x0) times (x - x0); fitted by tools/refdata/fit_elem.py, max
// error relative to Ci 1.7e-18 with the coefficients as stored. Ascending
// powers from p0.
constexpr double kCi4[22] = {
    6.427047744050369,  // c
    2.886908260218442e-17, -9.295181770965782e-35,  // p0
    0.15398510704680263, -3.371161863836222e-18,  // p1
    -0.023132846519656202, -2.9623149522056665e-19,  // p2
    -0.02326465391553945, 1.1013018414558038e-18,  // p3
    0.0036443020697730227,
    0.0008295885628520835,
    -0.00013854638549790806,
    -1.207536977521683e-05,
    2.1972250892372537e-06,
    1.2045580605771078e-07,
    -2.3014960111389883e-08,
    -6.02232389855652e-10,
    1.3246349930329307e-10,
    5.695661815612812e-12,
    -1.0787337534557194e-12,
    4.3772213997965255e-14,
    -5.338264935555828e-15,
};

// Ci(x) on [7.4270477440503688, 8.5255754575806666]: minimax polynomial of
// degree 13 in t = x - c, fitted directly; fitted by
// tools/refdata/fit_elem.py, max error relative to Ci 5.3e-19 with the
// coefficients as stored. Ascending powers from p0.
constexpr double kCi5[19] = {
    7.853981633974483,  // c
    0.12377227540325957, 3.945694578640263e-18,  // p0
    3.897089715280014e-17, 3.0189227864797363e-33,  // p1
    -0.06366197723675814, -6.699219278643e-18,  // p2
    0.0054037964609246775, 2.3608491557305616e-19,  // p3
    0.004789140218798811,
    -0.0004878178169486629,
    -0.0001250797477303932,
    1.3650555523450935e-05,
    1.6370488297154565e-06,
    -1.852760783415546e-07,
    -1.3856102409110132e-08,
    1.6040962068666598e-09,
    7.86687912674357e-11,
    -9.751942011456086e-12,
};

// Ci(x) on [8.5255754575806666, 10.525575457580667]: minimax polynomial of
// degree 14 in t = x - c, centred at the zero 9.5255754575806661 of Ci, fitted
// as Ci(x)/(x - x0) times (x - x0); fitted by tools/refdata/fit_elem.py, max
// error relative to Ci 2.3e-18 with the coefficients as stored. Ascending
// powers from p0.
constexpr double kCi6[21] = {
    9.525575457580667,  // c
    -5.247249046370079e-17, 2.803587470614448e-33,  // p0
    -0.10444767735804975, -2.7180804228478875e-18,  // p1
    0.010764419206794792, 3.6110173775314824e-20,  // p2
    0.016654576573961674, -1.3847345746133916e-18,  // p3
    -0.0017514658194801196,
    -0.000723301457441987,
    7.794917983117044e-05,
    1.3709619902997273e-05,
    -1.5213384452367806e-06,
    -1.458645331209386e-07,
    1.6692750679804065e-08,
    1.0235290334477507e-09,
    -1.205368304695939e-10,
    -5.090504577217306e-12,
    6.084612069365726e-13,
    1.9012221841301696e-14,
};

// Ci(x) on [10.525575457580667, 11.643546829711378]: minimax polynomial of
// degree 13 in t = x - c, fitted directly; fitted by
// tools/refdata/fit_elem.py, max error relative to Ci 3.7e-19 with the
// coefficients as stored. Ascending powers from p0.
constexpr double kCi7[19] = {
    10.995574287564276,  // c
    -0.08956402592847867, 8.881124925894148e-19,  // p0
    -3.87027990551491e-17, 2.3392360254903474e-33,  // p1
    0.045472840883398674, -6.861008271087196e-19,  // p2
    -0.0027570390106758814, -2.0874768681064674e-19,  // p3
    -0.0036013478125873307,
    0.00026202162567704786,
    0.00010645533407960774,
    -8.29855967257e-06,
    -1.595218881955524e-06,
    1.2895855679753834e-07,
    1.4506801359660405e-08,
    -1.199724011239979e-09,
    -8.970495538476348e-11,
    7.981172114822226e-12,
};

// Ci(x) on [11.643546829711378, 13.643546829711378]: minimax polynomial of
// degree 14 in t = x - c, centred at the zero 12.643546829711377 of Ci, fitted
// as Ci(x)/(x - x0) times (x - x0); fitted by tools/refdata/fit_elem.py, max
// error relative to Ci 3.3e-18 with the coefficients as stored. Ascending
// powers from p0.
constexpr double kCi8[21] = {
    12.643546829711378,  // c
    6.435000312574878e-17, -2.9482149494082634e-33,  // p0
    0.0788563056862923, -6.3478656023835134e-18,  // p1
    -0.006167412259052454, 2.6698582652751547e-19,  // p2
    -0.012817523408351215, -8.670407408644975e-19,  // p3
    0.001014401032798003,
    0.0005929512941336543,
    -4.7550651732984614e-05,
    -1.2422495251082188e-05,
    1.0109407249606297e-06,
    1.4623390343712586e-07,
    -1.2089724119442916e-08,
    -1.1062450402965852e-09,
    9.292282001595401e-11,
    5.8778491795347115e-12,
    -4.941402322918326e-13,
    -2.2886785964603005e-14,
};

// Ci(x) on [13.643546829711378, 14.770349650703585]: minimax polynomial of
// degree 13 in t = x - c, fitted directly; fitted by
// tools/refdata/fit_elem.py, max error relative to Ci 3.3e-19 with the
// coefficients as stored. Ascending powers from p0.
constexpr double kCi9[19] = {
    14.137166941154069,  // c
    0.07006507730931906, 6.4442015044756355e-18,  // p0
    3.856615923647657e-17, 2.6598782229543777e-33,  // p1
    -0.0353677651315323, 1.0389775319291326e-18,  // p2
    0.0016678384138656785, 9.341026568175936e-20,  // p3
    0.002858832185012627,
    -0.0001617768084332503,
    -8.870765175811363e-05,
    5.378385261026268e-06,
    1.4214658572768017e-06,
    -8.937622926414814e-08,
    -1.3802885478281673e-08,
    8.879159295566918e-10,
    8.982918301600219e-11,
    -6.251391315582031e-12,
};

// Ci(x) on [14.770349650703585, 16]: minimax polynomial of degree 12 in t = x
// - c, centred at the zero 15.770349650703585 of Ci, fitted as Ci(x)/(x - x0)
// times (x - x0); fitted by tools/refdata/fit_elem.py, max error relative to
// Ci 2.5e-18 with the coefficients as stored. Ascending powers from p0.
constexpr double kCi10[19] = {
    15.770349650703585,  // c
    -9.45370516821899e-18, -2.0583946699465482e-34,  // p0
    -0.0632867769465949, 3.599001259104201e-18,  // p1
    0.003983193199890425, -4.690467180262308e-20,  // p2
    0.010379412945467072, 5.683342188017356e-20,  // p3
    -0.0006583434540345836,
    -0.0004939932900647081,
    3.159426674201498e-05,
    1.0839703056434111e-05,
    -6.994782384777658e-07,
    -1.34975912686619e-07,
    8.79077097966535e-09,
    1.0756316047134638e-09,
    -7.39043588825211e-11,
    -7.59209967663406e-12,
};

// Ci(x) for 1 <= x <= 16: the piece that holds x.
inline double ci_piece(double x) {
  if (x < 7.427047744050369) {
    if (x < 2.3841804225511862) {
      if (x < 1.7) {
        return zeb::series::piece(x, kCi0);
      }
      return zeb::series::piece(x, kCi1);
    }
    if (x < 4.384180422551186) {
      return zeb::series::piece(x, kCi2);
    }
    if (x < 5.427047744050369) {
      return zeb::series::piece(x, kCi3);
    }
    return zeb::series::piece(x, kCi4);
  }
  if (x < 11.643546829711378) {
    if (x < 8.525575457580667) {
      return zeb::series::piece(x, kCi5);
    }
    if (x < 10.525575457580667) {
      return zeb::series::piece(x, kCi6);
    }
    return zeb::series::piece(x, kCi7);
  }
  if (x < 13.643546829711378) {
    return zeb::series::piece(x, kCi8);
  }
  if (x < 14.770349650703585) {
    return zeb::series::piece(x, kCi9);
  }
  return zeb::series::piece(x, kCi10);
}
// </fit_elem:ci>

// Euler's constant as hi + lo (mpmath, 50 digits).
constexpr double kGammaHi = 0.5772156649015329;
constexpr double kGammaLo = -4.942915152430645e-18;

// The first zero of Ci, 0.61650548562071623379711..., as hi + lo (mpmath
// findroot at 50 digits).
constexpr double kX0Hi = 0x1.3ba69b6517559p-1;
constexpr double kX0Lo = -4.209920321433186e-17;

// Ci(x) for x near the first zero x0, 0.45 <= x <= 0.85: since Ci(x0) = 0,
// Ci(x) = ln(x/x0) - (Cin(x) - Cin(x0)), each term vanishing at x0. With
// d = x - x0 and p = x + x0 in double-double, ln(x/x0) = 2 atanh(d/p) and
// Cin(x) - Cin(x0) = d p Q(x^2), so the value keeps its accuracy relative to
// itself however close x comes to x0.
double ci_near_x0(double x) {
  const zeb::dd::dd d = zeb::dd::two_sum(x - kX0Hi, -kX0Lo);  // x - kX0Hi exact
  const zeb::dd::dd p = zeb::dd::add(zeb::dd::two_sum(x, kX0Hi), kX0Lo);
  const zeb::dd::dd s = zeb::dd::div(d, p);
  const zeb::dd::dd l = zeb::dd::fast_two_sum(2.0 * s.hi, 2.0 * (s.lo + s11aazn(s.hi)));
  const zeb::dd::dd dp = zeb::dd::mul(d, p);
  const zeb::dd::dd q = zeb::dd::mul(dp, zeb::series::horner(x * x, kCinQ));
  return zeb::dd::sub(l, q).hi;
}

}  // namespace

// 0 < x < 1: Ci = gamma + ln x - Cin(x), Cin(x) = u/4 - u^2 S(u), u = x^2,
// with ln x, gamma and u/4 in double-double, since the terms cancel on the
// way to the zero x0 = 0.6165; within 0.45 to 0.85 the form that vanishes at
// x0 with Ci. 1 <= x <= 16: the polynomial pieces, those about
// the zeros of Ci centred on them. 16 < x <= 1e16: the asymptotic form with
// the auxiliary functions; beyond 1e16: 0.
double s13acfn(double x, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  if (x <= 0.0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E13.5)", {1, 99999, 1, x});
    zeb::errbuf_close(errbuf, 1, ifail);
    return 0.0;
  }
  zeb::errbuf_close(errbuf, 0, ifail);
  if (x >= 0.45 && x <= 0.85) return ci_near_x0(x);
  if (x < 1.0) {
    // Below x02ajf the terms in u are far below an ulp of ln x (and x^2
    // would underflow).
    const zeb::dd::dd u = x < x02ajfn() ? zeb::dd::dd{0.0, 0.0} : zeb::dd::two_prod(x, x);
    zeb::dd::dd s = zeb::dd::add(zeb::dd::log(x), zeb::dd::dd{kGammaHi, kGammaLo});
    s = zeb::dd::sub(s, zeb::dd::dd{0.25 * u.hi, 0.25 * u.lo});
    return zeb::dd::add(s, u.hi * u.hi * zeb::series::horner(u.hi, kCinS)).hi;
  }
  if (x <= 16.0) return ci_piece(x);
  if (x <= 1.0e16) {
    // x Ci(x) = F sin x - G cos x / x, the leading sin x added in
    // double-double and the quotient by x taken from the pair.
    double f1 = 0.0;
    double g1 = 0.0;
    s13aczn(x, f1, g1);
    const double s = std::sin(x);
    const double c = std::cos(x);
    const double w = s * f1 - (c / x) * (1.0 + g1);
    return zeb::dd::div(zeb::dd::two_sum(s, w), x).hi;
  }
  return x > 1.0e16 ? 0.0 : x;  // beyond 1e16, or a NaN
}
