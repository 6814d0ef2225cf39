// D(x) = ln gamma(x) - (x-1/2) ln x + x - (1/2) ln(2 pi) for 0 < x < 15.
//
// Near 1 and 2, D is summed from its Taylor series, the first three terms in
// double-double and the rest by a loop of at most 67 terms. Below 1/2,
// D(x) = g(x) + D(x+1); from 5/2 upwards, D(x) = g(x) + g(x+1) + ... + D(x+n)
// with x+n >= 10 for Stirling's series (s14ahyn), where
//   g(y) = (y + 1/2) ln(1 + 1/y) - 1 = u^2/3 + u^4/5 + u^6/7 + ...,
//   u = 1/(2y+1).
// Every term is positive, so nothing cancels; g is carried in double-double
// where it is formed from a logarithm near 1.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

namespace {

using zeb::dd::dd;

// Taylor coefficients of D(1+t), t^0..t^66, by mpmath at 60 digits
// (tools/refdata/fit_s14ah.py). Truncation
// after 67 terms at |t| = 1/2: relative error 8.95e-22.
constexpr double kTaylor1Head[4] = {0.08106146679532726, -2.8504218427709546e-18,
                                          -0.07721566490153287, 4.942915152430645e-18};
constexpr double kTaylor1[67] = {
    0.08106146679532726,
    -0.07721566490153287,
    0.07246703342411322,
    -0.0673523010531981,
    0.062247475094451214,
    -0.05738555102867399,
    0.052890510330741526,
    -0.04881180153075088,
    0.04515252666760018,
    -0.041889821425120245,
    0.0389883464016707,
    -0.0364085626003745,
    0.03411141630368476,
    -0.03206072153955732,
    0.03022415508657013,
    -0.028573467787182373,
    0.027084288474546372,
    -0.025735743364566934,
    0.024510015993416682,
    -0.023391913297745315,
    0.022368468750733273,
    -0.021428594139666038,
    0.020562781401429777,
    -0.019762851033277413,
    0.019021741614109328,
    -0.018333334525473474,
    0.017692308265444417,
    -0.01709401736996938,
    0.01653439166743918,
    -0.016009852280978416,
    0.015517241410354593,
    -0.0150537634558816,
    0.014616935491146942,
    -0.014204545458073196,
    0.013814616757505218,
    -0.013445378152092043,
    0.013095238095642316,
    -0.01276276276295941,
    0.012446657183595024,
    -0.012145748987900891,
    0.011858974358997095,
    -0.011585365853669628,
    0.011324041811852103,
    -0.011074197120711393,
    0.01083509513742201,
    -0.010606060606061238,
    0.010386473429952,
    -0.010175763182238819,
    0.009973404255319222,
    -0.009778911564625887,
    0.009591836734693895,
    -0.00941176470588236,
    0.009238310708898948,
    -0.0090711175616836,
    0.008909853249475892,
    -0.008754208754208754,
    0.008603896103896103,
    -0.008458646616541353,
    0.008318209316394435,
    -0.008182349503214495,
    0.008050847457627118,
    -0.007923497267759563,
    0.007800105764145955,
    -0.007680491551459293,
    0.007564484126984127,
    -0.007451923076923077,
    0.0073426573426573424,
};

// Taylor coefficients of D(2+t), t^0..t^66, by mpmath at 60 digits
// (tools/refdata/fit_s14ah.py). Truncation
// after 67 terms at |t| = 1/2: relative error 9.71e-42.
constexpr double kTaylor2Head[4] = {0.0413406959554093, -2.941654530929307e-18,
                                          -0.02036284546147817, -9.003182262642802e-19};
constexpr double kTaylor2[67] = {
    0.0413406959554093,
    -0.02036284546147817,
    0.009967033424113219,
    -0.004852301053198095,
    0.002351641761117881,
    -0.0011355510286739853,
    0.0005467603307415233,
    -0.00026269438789373715,
    0.00012601997117161386,
    -6.0394341786912715e-05,
    2.8927998892919645e-05,
    -1.385379355631496e-05,
    6.635586355216146e-06,
    -3.1794722496273704e-06,
    1.5243237782316635e-06,
    -7.313195484442234e-07,
    3.5114747931678363e-07,
    -1.6875447387461837e-07,
    8.117537325468882e-08,
    -3.908477759366491e-08,
    1.883690527608224e-08,
    -9.087175803139594e-09,
    4.387940083361172e-09,
    -2.120785784736536e-09,
    1.0259522530999903e-09,
    -4.967526182065339e-10,
    2.407262052282077e-10,
    -1.167518484072133e-10,
    5.666933735863581e-11,
    -2.7527278165849826e-11,
    1.3381233401166646e-11,
    -6.509296033193317e-12,
    3.168579052877468e-12,
    -1.5433903999804352e-12,
    7.522398058010199e-13,
    -3.668555768496416e-13,
    1.7901184066136178e-13,
    -8.739895028408469e-14,
    4.269322738807253e-14,
    -2.0865606772743265e-14,
    1.0202666980071289e-14,
    -4.991130129674638e-15,
    2.4427487633033416e-15,
    -1.1960409992579115e-15,
    5.858597840649437e-16,
    -2.8708798156646296e-16,
    1.4073552016375519e-16,
    -6.901664025886872e-17,
    3.3857865551166476e-17,
    -1.6615582766747987e-17,
    8.15674061694191e-18,
    -4.0055105293205395e-18,
    1.9675898279154047e-18,
    -9.668125042754374e-19,
    4.752002816482379e-19,
    -2.336327914815719e-19,
    1.1489726922219523e-19,
    -5.651981251167161e-20,
    2.781014647273816e-20,
    -1.3687181138363068e-20,
    6.737979603410423e-21,
    -3.3177771399752584e-21,
    1.6340434646555425e-21,
    -8.049632105125787e-22,
    3.9662653879823085e-22,
    -1.954691416755628e-22,
    9.635246579538506e-23,
};


// D(c+t) from its Taylor series about c: the first three terms in
// double-double, then terms while they matter, at most 67 in all.
dd taylor(double t, const double (&head)[4], const double (&c)[67]) {
  using namespace zeb::dd;
  dd s = two_prod(t, head[2]);
  s.lo += t * head[3];
  s = add(dd{head[0], head[1]}, s);
  const dd t2 = two_prod(t, t);
  s = add(s, mul(t2, c[2]));
  const double tol = 0.0625 * x02ajfn() * std::fabs(s.hi);
  double tk = t2.hi * t;
  double tail = 0.0;
  for (int k = 3; k < 67; ++k) {
    const double term = c[k] * tk;
    tail += term;
    if (std::fabs(term) <= tol) break;
    tk *= t;
  }
  return add(s, tail);
}

// g(y) for y = x + i >= 5/2, with u = 1/(2y+1) formed from the exact sum
// 2x + (2i+1): the leading u^2/3 in double-double, the rest (below 2% of it)
// by its series in w = u^2 <= 1/36, twelve terms.
dd g_series(double x2, double odd) {
  using namespace zeb::dd;
  const dd u = recip(two_sum(x2, odd));
  dd u2 = two_prod(u.hi, u.hi);
  u2.lo += 2.0 * u.hi * u.lo;
  const double w = u2.hi;
  const double rest =
      w * w * (1.0 / 5 + w * (1.0 / 7 + w * (1.0 / 9 + w * (1.0 / 11 + w * (1.0 / 13 +
      w * (1.0 / 15 + w * (1.0 / 17 + w * (1.0 / 19 + w * (1.0 / 21 + w * (1.0 / 23 +
      w * (1.0 / 25)))))))))));
  return add(div(u2, 3.0), rest);
}

}  // namespace

zeb::dd::dd s14ahzn(double x) {
  using namespace zeb::dd;
  if (x < 0.5) {
    // g(x) from logarithms near 1: its value is as small as a tenth of the
    // product it comes from, so the product is carried in double-double.
    const dd l = sub(zeb::dd::log(two_sum(x, 1.0)), zeb::dd::log(x));
    const dd g = add(mul(two_sum(x, 0.5), l), -1.0);
    return add(g, taylor(x, kTaylor1Head, kTaylor1));
  }
  if (x < 1.5) {
    return taylor(x - 1.0, kTaylor1Head, kTaylor1);
  }
  if (x < 2.5) {
    return taylor(x - 2.0, kTaylor2Head, kTaylor2);
  }
  const int n = x < 10.0 ? static_cast<int>(std::ceil(10.0 - x)) : 0;
  dd sum{0.0, 0.0};
  for (int i = 0; i < n; ++i) sum = add(sum, g_series(2.0 * x, 2.0 * i + 1.0));
  return add(sum, s14ahyn(x + n));
}
