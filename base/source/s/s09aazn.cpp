// The series of arcsin shared by s09aafn and s09abfn.
#include "zeb_s_series.h"

namespace {

// <fit_elem:asin>
// asin(x): S(u) with asin(x) = x + 1/6 x^3 + x^5 S(x^2), u = x^2, minimax
// polynomial of degree 11 in u on [0, 0.25] for the error relative to the
// function; fitted by tools/refdata/fit_elem.py, max relative error of the
// function 1.1e-18 with the coefficients rounded to double. From the highest
// power.
constexpr double kAsinS[12] = {
    0.03184286957392557,
    -0.01968533050844044,
    0.0207328723783326,
    0.004128905480430795,
    0.010661609011302295,
    0.011421516012160444,
    0.013977846294284762,
    0.017351881870629055,
    0.022372198429935933,
    0.03038194336720662,
    0.044642857158787574,
    0.0749999999999068,
};
// </fit_elem:asin>

}  // namespace

// asin(x) - x = q + r for abs(x) <= 1/2: q the rounded x^3/6, r the rest,
// good together to far below an ulp of asin(x).
void s09aazn(double x, double& q, double& r) {
  zeb::series::odd_tail<6>(x, kAsinS, q, r);
}
