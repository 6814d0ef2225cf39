// The series of artanh, shared by s11aafn and the cosine integral s13acfn.
#include "zeb_s_series.h"

namespace {

// <fit_elem:atanh>
// atanh(x): R(u) = (atanh(x) - x) / x^3 with u = x^2, minimax polynomial of
// degree 20 in u on [0, 0.5] for the error relative to the function, constant
// term held at its double value; fitted by tools/refdata/fit_elem.py, max
// relative error of x + x^3 R(x^2) 7.4e-19 with the coefficients as stored.
// From the highest power.
constexpr double kAtanhR[21] = {
    17.454937122554274,
    -77.71112585174214,
    164.32274677042665,
    -216.65705321570113,
    198.8450160546448,
    -134.24133156730568,
    68.98900371800265,
    -27.42255863090123,
    8.606597902250146,
    -2.066447909540183,
    0.45111954166210694,
    -0.014172844930631168,
    0.05989514530875557,
    0.05817180249101663,
    0.06671027679521074,
    0.07692097280949457,
    0.0909091605314762,
    0.11111110965146594,
    0.1428571428739736,
    0.19999999999992374,
    0.3333333333333333,
};
// </fit_elem:atanh>

}  // namespace

// R(u) with atanh(x) = x + x^3 R(x^2) for x^2 <= 1/2.
double s11aazn(double u) { return zeb::series::horner2(u, kAtanhR); }
