// The series of arcsin shared by s09aafn and s09abfn.
#include "zeb_s_series.h"

namespace {

// <fit_elem:asin>
// asin(x): R(u) = (asin(x) - x) / x^3 with u = x^2, minimax polynomial of
// degree 12 in u on [0, 0.25] for the error relative to the function, constant
// term held at its double value; fitted by tools/refdata/fit_elem.py, max
// relative error of x + x^3 R(x^2) 1.1e-18 with the coefficients as stored.
// From the highest power.
constexpr double kAsinR[13] = {
    0.03183192696525237,
    -0.019667147413970743,
    0.020719477859587755,
    0.004134665354551756,
    0.01066000685634845,
    0.011421817807357796,
    0.013977807128873337,
    0.01735188536322314,
    0.022372198220370124,
    0.030381943375306045,
    0.04464285715860131,
    0.07499999999990899,
    0.16666666666666666,
};
// </fit_elem:asin>

}  // namespace

// R(u) with asin(x) = x + x^3 R(x^2) for x^2 <= 1/4.
double s09aazn(double u) { return zeb::series::horner2(u, kAsinR); }
