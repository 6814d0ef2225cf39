// The auxiliary functions of the cosine and sine integrals for x >= 16,
// shared by s13acfn and s13adfn.
#include "zeb_s_series.h"

namespace {

// <fit_elem:auxf>
// F(x) = x f(x) = 1 + y F1(y), f and g the auxiliary functions of the sine and
// cosine integrals: minimax polynomial of degree 15 in y = (16/x)^2 on [0, 1]
// (x >= 16) for the relative error, constant term held at 1; fitted by
// tools/refdata/fit_elem.py, max relative error 1.7e-18 with the coefficients
// rounded to double. The table is F1, from the highest power.
constexpr double kAuxF1[15] = {
    -3.856822588810069e-09,
    3.317417101766038e-08,
    -1.3268037783838007e-07,
    3.304886952929512e-07,
    -5.834308256893071e-07,
    7.978708639825209e-07,
    -9.228162549480049e-07,
    1.0060047341926867e-06,
    -1.1800285356187269e-06,
    1.696573187099766e-06,
    -3.2997347508324144e-06,
    9.387679050418602e-06,
    -4.291534163595283e-05,
    0.00036621093743402717,
    -0.00781249999999941,
};
// </fit_elem:auxf>

// <fit_elem:auxg>
// G(x) = x^2 g(x) = 1 + y G1(y), f and g the auxiliary functions of the sine
// and cosine integrals: minimax polynomial of degree 16 in y = (16/x)^2 on [0,
// 1] (x >= 16) for the relative error, constant term held at 1; fitted by
// tools/refdata/fit_elem.py, max relative error 8.4e-18 with the coefficients
// rounded to double. The table is G1, from the highest power.
constexpr double kAuxG1[16] = {
    7.060895842238209e-08,
    -6.351288663746384e-07,
    2.65396200375654e-06,
    -6.877488489834188e-06,
    1.2497916065864931e-05,
    -1.719929437997808e-05,
    1.915405378427029e-05,
    -1.862260017061163e-05,
    1.7453032959595418e-05,
    -1.7778760161410098e-05,
    2.206697868007437e-05,
    -3.629809075742578e-05,
    8.448914976308615e-05,
    -0.000300407390724716,
    0.001831054687076418,
    -0.023437499999996655,
};
// </fit_elem:auxg>

}  // namespace

// F(x) - 1 and G(x) - 1, with F(x) = x f(x) and G(x) = x^2 g(x), both
// 1 + O(1/x^2), so that x Ci(x) = sin x + (F - 1) sin x - G cos x / x and
// x (pi/2 - Si(x)) = cos x + (F - 1) cos x + G sin x / x: the callers add the
// leading sin x or cos x last, in double-double.
void s13aczn(double x, double& f1, double& g1) {
  const double r = 16.0 / x;
  const double y = r * r;
  f1 = y * zeb::series::horner(y, kAuxF1);
  g1 = y * zeb::series::horner(y, kAuxG1);
}
